// UpdateRules.h: the decisions of an update that need only values: how it is shown, which archives may be used, what it
// may need, which relaunch path counts. Pure functions.
#pragma once

#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Engine/core/update/UpdateSettings.h"
#include "Engine/core/update/WindowContent.h"

#include <vector>

namespace Pelnar::Engine
{

/// How much of an update a person sees before it can be installed.
enum class UpdateMode
{
    Windows,
    Silent,
};
[[nodiscard]] UpdateMode ModeOf(CheckKind kind, AutomaticDownload automaticDownload, FeedItem const& item);
[[nodiscard]] CheckOrigin OriginOf(CheckKind kind);

/// One archive from which an update can be made.
struct UpdateCandidate
{
    FeedItem item;
    ItemIndex place;
};
[[nodiscard]] PayloadKind KindOf(UpdateCandidate const& candidate);

/// Fails if no update of \a bundle can be verified or matched.
[[nodiscard]] Result<void> JudgeBundle(RunningBundle const& bundle);
/// Fails if \a item is not worth a download.
[[nodiscard]] Result<void> JudgeItem(FeedItem const& item);

/// The space that must be free next to the bundle: an estimate of the unpacked size, from the archives' lengths.
[[nodiscard]] quint64 NeededBytes(std::vector<UpdateCandidate> const& candidates);

[[nodiscard]] DownloadRequest DownloadOf(FeedItem const& item, UpdateSettings const& settings);
[[nodiscard]] PrepareJob PreparationOf(UpdateCandidate const& candidate, RunningBundle const& bundle,
                                       std::string const& targetName);
[[nodiscard]] InstallJob InstallationOf(UpdateCandidate const& candidate, RunningBundle const& bundle,
                                        std::string const& targetName);

/// The version of \a item for a person.
[[nodiscard]] QString ShownVersionOf(FeedItem const& item);
[[nodiscard]] UpdateOffer OfferOf(FeedItem const& item, RunningBundle const& bundle);

/// Whether a person sees the \a error at an update's end in a window: after a check or an update that they requested.
enum class PersonAsked
{
    No,
    Yes,
};
[[nodiscard]] bool IsShown(EngineError const& error, PersonAsked asked);

/// True if \a error means that a server, a feed or an archive is unusable, so that the next request must wait.
[[nodiscard]] bool CountsForBackOff(EngineError const& error);

/// The bytes of the application's answer \a path for the helper; empty, with a log line, if it cannot be a bundle's
/// path.
[[nodiscard]] std::string RelaunchPathOf(QString const& path);

/// The entries of \a environment ("NAME=value" each, ended by a null pointer) that can be passed to a program.
[[nodiscard]] std::vector<std::string> EnvironmentOf(char const* const* environment);

} // namespace Pelnar::Engine
