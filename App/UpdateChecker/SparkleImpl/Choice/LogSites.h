// LogSites.h: every record that the session writes, by name: severity, line and prefix. Plain C++, private to the
// session. Constants. Readers of logs recognise the session's records by file, line and signature, so these stay fixed
// when the code moves.
#pragma once

#include "common/LogSite.h"

namespace Pelnar::App::Session::Sites
{

#define PELNAR_SESSION_LOG_SITES(SITE)                                                                                 \
    SITE(CREATE_UPDATER, Progress, 243, "void Pelnar::App::SparkleManager::Impl::CreateUpdater()")                     \
    SITE(DESTROY_UPDATER, Progress, 259, "void Pelnar::App::SparkleManager::Impl::DestroyUpdater()")                   \
    SITE(LOCK, Progress, 280, "bool Pelnar::App::SparkleManager::Impl::Lock()")                                        \
    SITE(LOCK_RAISED, Error, 284, "bool Pelnar::App::SparkleManager::Impl::Lock()")                                    \
    SITE(UNLOCK, Progress, 292, "void Pelnar::App::SparkleManager::Impl::Unlock()")                                    \
    SITE(SET_CONTEXT, Progress, 302,                                                                                   \
         "void Pelnar::App::SparkleManager::Impl::SetContext(const SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &)") \
    SITE(SET_CONTEXT_RAISED, Error, 309,                                                                               \
         "void Pelnar::App::SparkleManager::Impl::SetContext(const SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &)") \
    SITE(SET_CONTEXT_FEED, Progress, 312, "")                                                                          \
    SITE(SET_STATE, Progress, 318, "void Pelnar::App::SparkleManager::Impl::SetState((anonymous namespace)::State)")   \
    SITE(EXTENSION_TYPE, Warning, 358,                                                                                 \
         "QVariantMap Pelnar::App::SparkleManager::Impl::DetectExtensions(SUAppcastItem *) const")                     \
    SITE(SAME_PRIORITIES, Error, 440,                                                                                  \
         "SUAppcastItem *Pelnar::App::SparkleManager::Impl::SelectBestValidAppcastItem(SUAppcastItem *, SUAppcastItem *) const") \
    SITE(DIALOG_PARENT_FAILED, Error, 466,                                                                             \
         "QWidget *Pelnar::App::SparkleManager::Impl::DialogParent() const")                                           \
    SITE(ENSURE_CONTEXT, Error, 475, "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const")                  \
    SITE(ENSURE_CALLBACK, Error, 484,                                                                                  \
         "bool Pelnar::App::SparkleManager::Impl::EnsureCheckFinishedCallback() const")                                \
    SITE(ENSURE_LOCAL_VERSION, Error, 493, "bool Pelnar::App::SparkleManager::Impl::EnsureLocalVersion() const")       \
    SITE(ENSURE_REMOTE_VERSION, Error, 502, "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersion() const")     \
    SITE(ENSURE_REMOTE_GREATER, Error, 511,                                                                            \
         "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersionIsGreaterThanLocal() const")                      \
    SITE(ENSURE_OPERATORS, Error, 520, "bool Pelnar::App::SparkleManager::Impl::EnsureVersionOperators() const")       \
    SITE(UNLOCK_IF_REQUESTED, Progress, 526, "void Pelnar::App::SparkleManager::Impl::UnlockIfRequested()")            \
    SITE(NOTIFY_CHECK_FINISHED, Progress, 533, "void Pelnar::App::SparkleManager::Impl::NotifyCheckFinished()")        \
    SITE(DUMP_ITEM, Progress, 544, "")                                                                                 \
    SITE(DUMP_TITLE, Progress, 545, "")                                                                                \
    SITE(DUMP_DATE, Progress, 546, "")                                                                                 \
    SITE(DUMP_DESCRIPTION, Progress, 547, "")                                                                          \
    SITE(DUMP_MINIMUM_SYSTEM, Progress, 548, "")                                                                       \
    SITE(DUMP_MAXIMUM_SYSTEM, Progress, 549, "")                                                                       \
    SITE(DUMP_FILE_URL, Progress, 550, "")                                                                             \
    SITE(DUMP_LENGTH, Progress, 551, "")                                                                               \
    SITE(DUMP_VERSION, Progress, 552, "")                                                                              \
    SITE(DUMP_UPDATE_TYPE, Progress, 553, "")                                                                          \
    SITE(GET_INSTANCE, Progress, 560, "static Pelnar::App::SparkleManager &Pelnar::App::SparkleManager::GetInstance()") \
    SITE(LOCK_UPDATER, Progress, 567,                                                                                  \
         "bool Pelnar::App::SparkleManager::LockUpdater(const SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &)") \
    SITE(LOCK_UPDATER_REFUSED, Error, 570,                                                                             \
         "bool Pelnar::App::SparkleManager::LockUpdater(const SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &)") \
    SITE(UNLOCK_WHEN_POSSIBLE, Progress, 579, "void Pelnar::App::SparkleManager::UnlockUpdaterWhenPossible()")         \
    SITE(CHECK, Progress, 597, "void Pelnar::App::SparkleManager::CheckForUpdates()")                                  \
    SITE(CHECK_RAISED, Error, 614, "void Pelnar::App::SparkleManager::CheckForUpdates()")                              \
    SITE(SHOW_DIALOG, Progress, 625, "void Pelnar::App::SparkleManager::ShowUpdateDialog()")                           \
    SITE(SHOW_DIALOG_RAISED, Error, 654, "void Pelnar::App::SparkleManager::ShowUpdateDialog()")                       \
    SITE(REJECT, Progress, 665, "void Pelnar::App::SparkleManager::RejectUpdateAndHideDialog()")                       \
    SITE(FOUND, Progress, 727, "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]")                          \
    SITE(FOUND_UPDATE_TYPE, Progress, 730, "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]")              \
    SITE(FOUND_EXTENSIONS, Progress, 735, "")                                                                          \
    SITE(FOUND_EXTENSION, Progress, 738, "")                                                                           \
    SITE(FOUND_DIAGNOSTIC, Error, 761, "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]")                  \
    SITE(FOUND_BAD_VERSION, Error, 762, "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]")                 \
    SITE(FOUND_UNSPECIFIED, Error, 783, "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]")                 \
    SITE(NOT_FOUND, Progress, 794, "-[PelnarSparkleUpdaterDelegate updaterDidNotFindUpdate:]")                         \
    SITE(NOT_FOUND_UNSPECIFIED, Error, 823, "-[PelnarSparkleUpdaterDelegate updaterDidNotFindUpdate:]")                \
    SITE(ABORTED, Progress, 835, "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]")                         \
    SITE(ABORTED_ERROR, Error, 837, "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]")                      \
    SITE(ABORTED_UNSPECIFIED, Error, 888, "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]")                \
    SITE(WILL_INSTALL, Progress, 903,                                                                                  \
         "-[PelnarSparkleUpdaterDelegate updater:willInstallUpdateOnQuit:immediateInstallationInvocation:]")           \
    SITE(WILL_INSTALL_FAILED, Error, 917,                                                                              \
         "-[PelnarSparkleUpdaterDelegate updater:willInstallUpdateOnQuit:immediateInstallationInvocation:]")           \
    SITE(SHOULD_RELAUNCH, Progress, 974, "-[PelnarSparkleUpdaterDelegate updaterShouldRelaunchApplication:]")          \
    SITE(SHOULD_RELAUNCH_UNSPECIFIED, Error, 986,                                                                      \
         "-[PelnarSparkleUpdaterDelegate updaterShouldRelaunchApplication:]")                                          \
    SITE(WILL_RELAUNCH, Progress, 996, "-[PelnarSparkleUpdaterDelegate updaterWillRelaunchApplication:]")              \
    SITE(WILL_RELAUNCH_UNSPECIFIED, Error, 1017, "-[PelnarSparkleUpdaterDelegate updaterWillRelaunchApplication:]")    \
    SITE(DID_CANCEL, Progress, 1028, "-[PelnarSparkleUpdaterDelegate updater:didCancelInstallUpdateOnQuit:]")          \
    SITE(DID_CANCEL_UNSPECIFIED, Error, 1044,                                                                          \
         "-[PelnarSparkleUpdaterDelegate updater:didCancelInstallUpdateOnQuit:]")                                      \
    SITE(RELAUNCH_PATH, Progress, 1055, "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]")                   \
    SITE(RELAUNCH_PATH_TYPE, Error, 1063, "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]")                 \
    SITE(RELAUNCH_PATH_FAILED, Error, 1068, "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]")               \
    SITE(RELAUNCH_PATH_ANSWER, Progress, 1074, "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]")            \
    SITE(BEST_ITEM, Progress, 1086, "-[PelnarSparkleUpdaterDelegate bestValidUpdateInAppcast:forUpdater:]")            \
    SITE(BEST_ITEM_DETECTED, Progress, 1125,                                                                           \
         "-[PelnarSparkleUpdaterDelegate bestValidUpdateInAppcast:forUpdater:]")                                       \
    SITE(BEST_ITEM_NOT_DETECTED, Progress, 1131,                                                                       \
         "-[PelnarSparkleUpdaterDelegate bestValidUpdateInAppcast:forUpdater:]")                                       \
    SITE(COMPARE_DIAGNOSTIC, Error, 1173, "-[PelnarSparkleVersionComparator compareVersion:toVersion:]")               \
    SITE(COMPARE_VERSIONS, Error, 1174, "-[PelnarSparkleVersionComparator compareVersion:toVersion:]")

#define PELNAR_DECLARE_SITE(name, severity, line, prefix) extern Core::LogSite const name;
PELNAR_SESSION_LOG_SITES(PELNAR_DECLARE_SITE)
#undef PELNAR_DECLARE_SITE

} // namespace Pelnar::App::Session::Sites
