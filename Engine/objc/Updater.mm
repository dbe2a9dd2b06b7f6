#include "Engine/objc/Updater_p.h"

#import "Engine/objc/ImmediateInstallation_p.h"
#import "Engine/objc/SUAppcast_p.h"
#import "Engine/objc/SUUpdater_p.h"
#import "Engine/objc/TranslatedError_p.h"

#include "Engine/core/check/DelegateCall.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/update/UpdateEnvironment.h"
#include "Engine/objc/BundleSettings_p.h"
#include "Engine/objc/HelperLocation_p.h"
#include "Engine/ui/DesktopWindows.h"
#include "Foundation/FoundationText.h"
#include "Foundation/RaisedException.h"

#include <QCoreApplication>

#include <glog/logging.h>

#include <utility>

using namespace Pelnar::Foundation;

namespace Pelnar::Engine
{
namespace
{

/// The updater that is connected to the application object.
Updater* runningUpdater = nullptr;

} // namespace

Updater::Updater(SUUpdater* face) : m_face(face)
{
    if (QCoreApplication::instance())
    {
        AttachToApplication();
    }
}

Updater::~Updater() = default;

void Updater::SetDelegate(id<SUUpdaterDelegate> delegate)
{
    m_delegate = delegate;
    TellFailedInstallationLater();
}

QUrl Updater::FeedUrl() const { return m_feedUrl.isEmpty() ? ReadFeedUrl() : m_feedUrl; }

void Updater::StartCheck(CheckKind kind)
{
    if (IsInProgress())
    {
        LOG(WARNING) << "A check for updates is already running; the new one is ignored";
        if (kind == CheckKind::Interactive && m_flow)
        {
            m_flow->BringToFront();
        }
        return;
    }
    if (!QCoreApplication::instance())
    {
        LOG(ERROR) << "A check for updates needs Qt's application object; it is not started";
        return;
    }
    AttachToApplication();
    if (m_isRecovering)
    {
        m_waitingCheck = kind;
        return;
    }
    StartFlow(kind);
}

void Updater::StartFlow(CheckKind kind)
{
    PrepareForCheck();
    UpdateSettings settings = ReadUpdateSettings(FeedUrl());
    settings.check.failedVersion = m_failedVersion;
    settings.check.feedStore = m_feedStore.get();
    auto const& failure = m_memory->Failure();
    if (failure && IsHeldBack(*failure, Parts().Now()))
    {
        settings.check.heldBackVersion = QString::fromStdString(failure->toVersion);
    }
    if (m_fetchLimits)
    {
        qint64 const maxBodyBytes = settings.check.fetchLimits.maxBodyBytes;
        settings.check.fetchLimits = *m_fetchLimits;
        settings.check.fetchLimits.maxBodyBytes = maxBodyBytes;
    }
    m_flow = std::make_unique<UpdateFlow>(kind, std::move(settings), *this, Windows(), Parts());
    m_flow->Start();
}

void Updater::AttachToApplication()
{
    if (std::exchange(runningUpdater, this))
    {
        return;
    }
    qAddPostRoutine(&Updater::Abandon);
    m_startOwner = std::make_unique<QObject>();
    @autoreleasepool
    {
        std::optional<StartedApplication> const application = ReadStartedApplication();
        // Otherwise, which is the usual case, no check has to wait.
        if (application && HasUnfinishedUpdate(application->bundlePath))
        {
            m_isRecovering = true;
            RecoverAtStart(*application, *m_startOwner, [this](StartOutcome const& outcome) { TakeStart(outcome); });
        }
        StartedApplication const started = application.value_or(StartedApplication());
        m_memory = std::make_unique<InstallMemory>(started.stateFolder, started.downloadFolder, started.bundlePath, started.version);
        TellFailedInstallationLater();
    }
}

void Updater::TakeStart(StartOutcome const& outcome)
{
    m_isRecovering = false;
    m_failedVersion = outcome.failedVersion;
    if (!m_failedVersion.isEmpty())
    {
        m_memory->TakeRollback(m_failedVersion);
        TellFailedInstallationLater();
    }
    if (std::optional<CheckKind> const kind = std::exchange(m_waitingCheck, std::nullopt))
    {
        @autoreleasepool
        {
            StartFlow(*kind);
        }
    }
}

void Updater::TellFailedInstallationLater()
{
    if (m_startOwner && m_memory && m_memory->News())
    {
        QMetaObject::invokeMethod(
            m_startOwner.get(), [this] { TellFailedInstallation(); }, Qt::QueuedConnection);
    }
}

void Updater::TellFailedInstallation()
{
    // A person would mistake a running check for the failed one. Its end calls this function again.
    if (!m_memory->News() || IsInProgress())
    {
        return;
    }
    InstallRecord const& failure = *m_memory->News();
    EngineError const error = MakeFaultError(failure.fault, failure.errorNumber);
    if (m_memory->IsToBeTold())
    {
        if (!m_memory->ClaimTelling())
        {
            TellFailedInstallationLater(); // another copy of the application tells this one
            return;
        }
        @autoreleasepool
        {
            PrepareForCheck();
        }
        Windows().ShowError(error.sentence, [] {});
    }
    if (m_delegate)
    {
        m_memory->SetHeard();
        TellFailedInstallationLater();
        (void)CallDelegate("updater:didAbortWithError:", [this, &error] { TellAborted(error); });
    }
}

void Updater::ConfirmStart()
{
    if (!QCoreApplication::instance())
    {
        LOG(ERROR) << "The confirmation of a good start needs Qt's application object; it is not passed on";
        return;
    }
    AttachToApplication();
    @autoreleasepool
    {
        std::optional<StartedApplication> const application = ReadStartedApplication();
        if (application && HasUnfinishedUpdate(application->bundlePath))
        {
            Engine::ConfirmGoodStart(*application, *m_startOwner, [](StartOutcome const&) {});
        }
    }
}

void Updater::PrepareForCheck()
{
    if (m_parts)
    {
        return;
    }
    m_parts = std::make_unique<UpdateEnvironment>(HelperProgram());
    m_chores = std::make_unique<DiskChores>();
    m_feedStore = std::make_unique<FeedStore>(ReadFeedFolder());
    m_windows = MakeDesktopWindows();
    WatchSessionEnd(
        [this]
        {
            if (m_flow)
            {
                m_flow->GiveUpInstallation();
            }
        });
}

void Updater::Abandon()
{
    // The application object discards its routines after it has run them.
    Updater* const updater = std::exchange(runningUpdater, nullptr);
    updater->m_flow.reset();
    updater->m_startOwner.reset();
    updater->m_memory.reset();
    updater->m_isRecovering = false;
    updater->m_waitingCheck.reset();
    updater->m_windows.reset();
    updater->m_parts.reset();
    updater->m_chores.reset();
    updater->m_feedStore.reset();
    updater->m_appcast.Reset();
    updater->m_found.Reset();
    updater->m_fallback.Reset();
}

void Updater::FeedLoaded(std::vector<FeedItem> const& items)
{
    CallTranslatingRaised(
        [this, &items]
        {
            @autoreleasepool
            {
                m_appcast = Retained<SUAppcast>::Adopt([[SUAppcast alloc] initWithFeedItems:items]);
            }
        });
}

void Updater::CallIfImplemented(SEL method, std::function<void()> const& call) const
{
    CallTranslatingRaised(
        [this, method, &call]
        {
            @autoreleasepool
            {
                if ([m_delegate respondsToSelector:method])
                {
                    call();
                }
            }
        });
}

BestItemAnswer Updater::AskForBestItem()
{
    BestItemAnswer answer;
    answer.kind = BestItemAnswer::Kind::NotAsked;
    CallIfImplemented(@selector(bestValidUpdateInAppcast:forUpdater:),
                      [this, &answer]
                      {
                          answer = BestItemAnswer();
                          SUAppcastItem* const item = [m_delegate bestValidUpdateInAppcast:m_appcast.Get()
                                                                                forUpdater:m_face];
                          if (!item)
                          {
                              return;
                          }
                          std::optional<ItemIndex> const place = [m_appcast.Get() placeOfItem:item];
                          answer.kind = place ? BestItemAnswer::Kind::Place : BestItemAnswer::Kind::Foreign;
                          answer.place = place.value_or(ItemIndex{});
                      });
    return answer;
}

int Updater::CompareVersions(QString const& a, QString const& b)
{
    int order = 0;
    CallTranslatingRaised(
        [this, &a, &b, &order]
        {
            @autoreleasepool
            {
                id<SUVersionComparison> comparator = nil;
                if ([m_delegate respondsToSelector:@selector(versionComparatorForUpdater:)])
                {
                    comparator = [m_delegate versionComparatorForUpdater:m_face];
                }
                if (!comparator)
                {
                    comparator = [SUStandardVersionComparator defaultComparator];
                }
                order = static_cast<int>([comparator compareVersion:ToNSString(a) toVersion:ToNSString(b)]);
            }
        });
    return order;
}

void Updater::TellFound(FoundUpdate const& found)
{
    CallTranslatingRaised(
        [this, &found]
        {
            @autoreleasepool
            {
                m_found = Retained<SUAppcastItem>::Share([m_appcast.Get() itemAtPlace:found.place]);
                m_fallback = found.fallback
                                 ? Retained<SUAppcastItem>::Share([m_appcast.Get() itemAtPlace:*found.fallback])
                                 : Retained<SUAppcastItem>();
            }
        });
    CallIfImplemented(@selector(updater:didFindValidUpdate:),
                      [this] { [m_delegate updater:m_face didFindValidUpdate:m_found.Get()]; });
}

void Updater::TellNotFound()
{
    CallIfImplemented(@selector(updaterDidNotFindUpdate:), [this] { [m_delegate updaterDidNotFindUpdate:m_face]; });
}

void Updater::TellAborted(EngineError const& error)
{
    CallIfImplemented(@selector(updater:didAbortWithError:),
                      [this, &error]
                      { [m_delegate updater:m_face didAbortWithError:[PelnarTranslatedError errorWithError:error]]; });
}

void Updater::CheckEnded()
{
    @autoreleasepool
    {
        WriteLastCheckTime(*m_chores);
    }
    m_appcast.Reset();
}

SUAppcastItem* Updater::ItemAt(ItemIndex const& place) const
{
    // Of the two items for one update, only the first may be a delta.
    return m_fallback && !place.delta ? m_fallback.Get() : m_found.Get();
}

void Updater::TellWillInstallOnQuit(ItemIndex const& place, std::function<void(RelaunchWish)> const& installNow)
{
    CallIfImplemented(@selector(updater:willInstallUpdateOnQuit:immediateInstallationInvocation:),
                      [this, &place, &installNow]
                      {
                          [m_delegate updater:m_face
                                      willInstallUpdateOnQuit:ItemAt(place)
                              immediateInstallationInvocation:[PelnarImmediateInstallation
                                                                  invocationCalling:installNow]];
                      });
}

void Updater::TellCancelledInstallOnQuit(ItemIndex const& place)
{
    CallIfImplemented(@selector(updater:didCancelInstallUpdateOnQuit:),
                      [this, &place] { [m_delegate updater:m_face didCancelInstallUpdateOnQuit:ItemAt(place)]; });
}

RelaunchAnswer Updater::ShouldRelaunch()
{
    RelaunchAnswer answer = RelaunchAnswer::Allowed;
    CallIfImplemented(@selector(updaterShouldRelaunchApplication:),
                      [this, &answer]
                      {
                          BOOL const isAllowed = [m_delegate updaterShouldRelaunchApplication:m_face];
                          answer = isAllowed ? RelaunchAnswer::Allowed : RelaunchAnswer::Refused;
                      });
    return answer;
}

QString Updater::PathToRelaunch()
{
    QString path;
    CallIfImplemented(@selector(pathToRelaunchForUpdater:),
                      [this, &path]
                      { path = BundlePathText(ToQString([m_delegate pathToRelaunchForUpdater:m_face])); });
    return path;
}

void Updater::TellWillRelaunch()
{
    CallIfImplemented(@selector(updaterWillRelaunchApplication:),
                      [this] { [m_delegate updaterWillRelaunchApplication:m_face]; });
}

void Updater::SkipVersion(QString const& version)
{
    @autoreleasepool
    {
        WriteSkippedVersion(version);
    }
}

void Updater::StoreFeedRecord(FeedRecord const& record)
{
    @autoreleasepool
    {
        KeepFeedRecord(record, *m_chores);
    }
}

void Updater::StoreBackOff(BackOffState const& state)
{
    @autoreleasepool
    {
        WriteBackOff(state, *m_chores);
    }
}

void Updater::UpdateEnded()
{
    m_found.Reset();
    m_fallback.Reset();
    // The flow is on the stack below this call.
    m_flow.release()->deleteLater();
    TellFailedInstallationLater();
}

} // namespace Pelnar::Engine
