// Updater_p.h: the implementation of SUUpdater: the delegate, the settings, the running check and its update.
// Thread: main, with Qt's event loop. Ownership: its SUUpdater owns it, and it points back; it owns the flow, the
// windows and the parts. The delegate is not retained. Objective-C++ only.
#pragma once

#import <Sparkle/Sparkle.h>

#include "Engine/core/base/DiskChores.h"
#include "Engine/core/update/FeedStore.h"
#include "Engine/core/update/GoodStart.h"
#include "Engine/core/update/InstallMemory.h"
#include "Engine/core/update/UpdateFlow.h"
#include "Foundation/Retained.h"

#include <memory>
#include <optional>

namespace Pelnar::Engine
{

class Updater final : public IUpdateHost
{
public:
    explicit Updater(SUUpdater* face);
    ~Updater() override;
    Updater(Updater const&) = delete;
    Updater& operator=(Updater const&) = delete;

    id<SUUpdaterDelegate> Delegate() const { return m_delegate; }
    void SetDelegate(id<SUUpdaterDelegate> delegate);
    QUrl FeedUrl() const;
    void SetFeedUrl(QUrl const& url) { m_feedUrl = url; }

    [[nodiscard]] bool IsInProgress() const { return m_flow != nullptr || m_waitingCheck; }
    void StartCheck(CheckKind kind);
    /// See Pelnar::ConfirmGoodStart.
    void ConfirmStart();

    /// For tests: replaces the default limits from the next check on. The bundle's own feed size stays.
    void SetFetchLimits(FetchLimits const& limits) { m_fetchLimits = limits; }
    /// For tests: replaces the default from the next check on; a null pointer restores the default.
    void SetParts(IUpdateEnvironment* parts) { m_testParts = parts; }
    void SetWindows(IUserInterface* windows) { m_testWindows = windows; }

    /// Values that only their own accessors read.
    struct
    {
        BOOL automaticallyChecksForUpdates = NO;
        BOOL sendsSystemProfile = NO;
    } unusedSettings;

private:
    /// Ends the running check without a notification: windows and sockets do not outlive the application object, but
    /// this object does.
    static void Abandon();
    /// Called early, and again when the application object may be a new one. It connects this object to the application
    /// object, and finishes or undoes an interrupted update.
    void AttachToApplication();
    void TakeStart(StartOutcome const& outcome);
    /// Reports a failed earlier installation once no check is in progress.
    void TellFailedInstallationLater();
    void TellFailedInstallation();
    /// Creates the objects that a check needs and that the application object must outlive, once for each application
    /// object.
    void PrepareForCheck();
    void StartFlow(CheckKind kind);
    IUpdateEnvironment& Parts() { return m_testParts ? *m_testParts : *m_parts; }
    IUserInterface& Windows() { return m_testWindows ? *m_testWindows : *m_windows; }
    SUAppcastItem* ItemAt(ItemIndex const& place) const;
    /// Does \a call, which calls the delegate's \a method, if the delegate has that method. What it raises becomes a
    /// C++ exception.
    void CallIfImplemented(SEL method, std::function<void()> const& call) const;

    void StoreFeedRecord(FeedRecord const& record) override;
    void FeedLoaded(std::vector<FeedItem> const& items) override;
    BestItemAnswer AskForBestItem() override;
    int CompareVersions(QString const& a, QString const& b) override;
    void TellFound(FoundUpdate const& found) override;
    void TellNotFound() override;
    void TellAborted(EngineError const& error) override;
    void CheckEnded() override;
    void TellWillInstallOnQuit(ItemIndex const& place, std::function<void(RelaunchWish)> const& installNow) override;
    void TellCancelledInstallOnQuit(ItemIndex const& place) override;
    RelaunchAnswer ShouldRelaunch() override;
    QString PathToRelaunch() override;
    void TellWillRelaunch() override;
    void SkipVersion(QString const& version) override;
    void StoreBackOff(BackOffState const& state) override;
    void UpdateEnded() override;

    SUUpdater* m_face;
    id<SUUpdaterDelegate> m_delegate = nil;
    QUrl m_feedUrl;
    std::optional<FetchLimits> m_fetchLimits;
    IUpdateEnvironment* m_testParts = nullptr;
    IUserInterface* m_testWindows = nullptr;
    Foundation::Retained<SUAppcast> m_appcast; ///< while a feed is processed
    Foundation::Retained<SUAppcastItem> m_found;
    Foundation::Retained<SUAppcastItem> m_fallback;
    std::unique_ptr<QObject> m_startOwner; ///< owns the work at the start, while the application object lives
    bool m_isRecovering = false;
    QString m_failedVersion;                 ///< the version that was rolled back to the running one
    std::optional<CheckKind> m_waitingCheck; ///< until the recovery has ended, which may report a failed version
    std::unique_ptr<InstallMemory> m_memory;
    std::unique_ptr<IUpdateEnvironment> m_parts;
    std::unique_ptr<DiskChores> m_chores; ///< writes what a check stores
    std::unique_ptr<FeedStore> m_feedStore;
    std::unique_ptr<IUserInterface> m_windows;
    std::unique_ptr<UpdateFlow> m_flow; ///< destroyed first
};

} // namespace Pelnar::Engine
