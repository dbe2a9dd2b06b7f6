// SparkleManager_p.h: the session's implementation record, for the session's own sources. Objective-C++ only.
// Thread: the Qt main thread; only `locked` is atomic, so that no other attempt to lock comes between test and set.
// Ownership: the session owns the framework's objects below; the delegate and the comparator keep non-owning pointers
// back.
#pragma once

#if !defined(__OBJC__)
#error "SparkleManager_p.h is for the session's Objective-C++ sources."
#endif

#include "App/UpdateChecker/SparkleImpl/Choice/SessionState.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager.h"
#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "Foundation/Retained.h"

#import <Sparkle/Sparkle.h>

#include <QVariantMap>

#include <atomic>
#include <functional>
#include <memory>
#include <string>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

@class PelnarSparkleUpdaterDelegate;
@class PelnarSparkleVersionComparator;

namespace Pelnar::App
{

struct SparkleUpdateContext;

class SparkleManager::Impl
{
public:
    Impl();
    ~Impl();
    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

    // Lock, context and state.
    [[nodiscard]] bool Lock();
    /// May raise the framework's exception for the feed's address; LockUpdater then undoes the completed steps.
    void SetContext(SharedNotNullPtr<SparkleUpdateContext> const& newContext);
    void Unlock();
    void UnlockIfRequested();
    void SetState(Session::State newState);
    void NotifyCheckFinished();

    /// Ends a request that nobody waits for.
    void SwitchToIdle();
    /// Ends a request whose holder waits: no newer version was found. REQUIRES: a context.
    void ReportNoNewerVersion();

    // Guards: return true without a record, or false with one error record. All except the first REQUIRE a context.
    [[nodiscard]] bool EnsureContext() const;
    [[nodiscard]] bool EnsureCheckFinishedCallback() const;
    [[nodiscard]] bool EnsureLocalVersion() const;
    [[nodiscard]] bool EnsureRemoteVersion() const;
    [[nodiscard]] bool EnsureVersionOperators() const;
    /// Throws std::bad_function_call if a needed operator is missing.
    [[nodiscard]] bool EnsureRemoteVersionIsGreaterThanLocal() const;

    // The framework's objects.
    void CreateUpdater();
    void DestroyUpdater();

    // One function for each of the framework's callbacks; the delegate only forwards.
    void DidFindValidUpdate(SUAppcastItem* item);
    void DidNotFindUpdate();
    void DidAbort(NSError* error);
    void WillInstallOnQuit(SUAppcastItem* item, NSInvocation* invocation);
    bool ShouldRelaunch();
    void WillRelaunch();
    void DidCancelInstallOnQuit();
    NSString* PathToRelaunch(); ///< autoreleased

    // The appcast selection.
    Session::UpdateType DetectUpdateType(SUAppcastItem* item) const;
    QVariantMap DetectExtensions(SUAppcastItem* item) const;
    [[nodiscard]] bool ValidateAppcastItem(SUAppcastItem* item) const;
    /// Either may be nil; returns nil if neither is valid.
    SUAppcastItem* SelectBestValidAppcastItem(SUAppcastItem* a, SUAppcastItem* b) const;
    /// The delegate's whole answer; writes its records and bestItemIsDelta.
    SUAppcastItem* SelectBestOfAppcast(SUAppcast* appcast);
    void PrintDebugSUAppcastItemInfo(SUAppcastItem* item, std::string const& prefix) const;

    // The comparator is created before the delegate, which returns it.
    Foundation::Retained<SUUpdater> updater;
    Foundation::Retained<PelnarSparkleUpdaterDelegate> delegate;
    Foundation::Retained<PelnarSparkleVersionComparator> comparator;
    std::shared_ptr<SparkleUpdateContext> context; ///< of the updater that last took the lock; unlocking keeps it
    std::atomic<bool> locked{false};
    bool unlockRequested = false; ///< unlock when a callback next returns the state to WAITING
    Session::State state = Session::State::WAITING;
    Session::UpdateType updateType = Session::UpdateType::UNKNOWN; ///< of the last reported update
    QVariantMap extensions;                                        ///< of the last reported update
    bool bestItemIsDelta = false;
    std::function<void()> closeDialog; ///< set while the session shows a dialog

private:
  /// REQUIRES: an open pool, which may be the only owner of the answer.
  SUAppcastItem* ChooseFromAppcast(SUAppcast* appcast);
  /// Does what the result of a check means in this state; \a report tells it to the context. False in a state for which
  /// it means nothing.
  [[nodiscard]] bool TakeResult(std::function<void()> const& report);
  void ReportFoundVersion(SUAppcastItem* item);
  void WriteExtensions() const;
  /// The result of the context's getter; null without a getter, and if it fails, which is logged. The getter may
  /// replace the context.
  QWidget* DialogParent() const;
  [[nodiscard]] bool IsInstallable() const;
  QString InstalledApplicationName() const;
};

} // namespace Pelnar::App
