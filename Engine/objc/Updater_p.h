// Updater_p.h: what stands behind SUUpdater: the delegate, the settings, the check that runs.
// Thread: main, with Qt's event loop. Ownership: owned by its SUUpdater, to which it points back; it owns the run. The
// delegate is not retained. Objective-C++ only.
#pragma once

#import <Sparkle/Sparkle.h>

#include "Engine/core/check/CheckRun.h"
#include "Foundation/Retained.h"

#include <memory>

namespace Pelnar::Engine
{

class Updater final : public ICheckHost
{
public:
    explicit Updater(SUUpdater* face);
    ~Updater() override;
    Updater(Updater const&) = delete;
    Updater& operator=(Updater const&) = delete;

    id<SUUpdaterDelegate> Delegate() const { return m_delegate; }
    void SetDelegate(id<SUUpdaterDelegate> delegate) { m_delegate = delegate; }
    QUrl FeedUrl() const;
    void SetFeedUrl(QUrl const& url) { m_feedUrl = url; }

    [[nodiscard]] bool IsInProgress() const { return m_run != nullptr; }
    void StartCheck(CheckKind kind);

    /// For tests: takes the place of what ships, from the next check on. The bundle's own feed size stays.
    void SetFetchLimits(FetchLimits const& limits) { m_fetchLimits = limits; }

    /// Values that nothing reads but their own accessors.
    struct
    {
        BOOL automaticallyChecksForUpdates = NO;
        BOOL sendsSystemProfile = NO;
    } keptForTheInterface;

private:
    /// Ends the running check without a word: sockets do not outlive the application object, this object does.
    static void AbandonRunningCheck();

    void FeedLoaded(std::vector<FeedItem> const& items) override;
    BestItemAnswer AskForBestItem() override;
    int CompareVersions(QString const& a, QString const& b) override;
    void TellFound(ItemPlace const& place) override;
    void TellNotFound() override;
    void TellAborted(EngineError const& error) override;
    void CheckEnded() override;

    SUUpdater* m_face;
    id<SUUpdaterDelegate> m_delegate = nil;
    QUrl m_feedUrl;
    std::optional<FetchLimits> m_fetchLimits;
    CheckKind m_kind = CheckKind::Probe;
    Foundation::Retained<SUAppcast> m_appcast;
    std::unique_ptr<CheckRun> m_run;
};

} // namespace Pelnar::Engine
