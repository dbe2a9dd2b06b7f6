// UpdatePlan.h: the decisions of an update that need nothing but values: how it is shown, which archives it may be made
// of, what it may need, which relaunch path counts. Pure.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/payload/UpdateJob.h"
#include "Engine/core/update/UpdateSettings.h"
#include "Engine/core/update/WindowContent.h"

#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// How much of an update a person sees before it can be installed.
enum class UpdateManner
{
    Windows,
    Silent,
};
[[nodiscard]] UpdateManner MannerOf(CheckKind kind, AutomaticDownload automaticDownload);
[[nodiscard]] CheckOrigin OriginOf(CheckKind kind);

/// One archive that an update can be made of.
struct UpdateCandidate
{
    FeedItem item;
    ItemPlace place;
};
[[nodiscard]] PayloadKind KindOf(UpdateCandidate const& candidate);

/// Why no update of \a bundle can be verified or matched; nothing when that is possible.
[[nodiscard]] std::optional<EngineError> FaultOf(RunningBundle const& bundle);
/// Why \a item is not even worth a download; nothing when it is.
[[nodiscard]] std::optional<EngineError> FaultOf(FeedItem const& item);

/// The room to look for beside the bundle: an estimate, from the archives' lengths, of what they unpack to.
[[nodiscard]] quint64 NeededBytes(std::vector<UpdateCandidate> const& candidates);

[[nodiscard]] DownloadRequest DownloadOf(FeedItem const& item, UpdateSettings const& settings);
[[nodiscard]] PrepareJob PreparationOf(UpdateCandidate const& candidate, RunningBundle const& bundle,
                                       std::string const& targetName);

/// The version of \a item for a person.
[[nodiscard]] QString ShownVersionOf(FeedItem const& item);
[[nodiscard]] UpdateOffer OfferOf(FeedItem const& item, RunningBundle const& bundle);

/// Whether a person hears of an update's end by \a error in a window: after a check or an update of their own.
enum class PersonAsked
{
    No,
    Yes,
};
[[nodiscard]] bool IsShown(EngineError const& error, PersonAsked asked);

/// Whether \a error says that a server, a feed or an archive is of no use, so that asking again at once is too soon.
[[nodiscard]] bool CountsForBackOff(EngineError const& error);

/// The bytes of the application's answer \a path for the helper; empty, with a log line, when it can be no bundle's
/// path.
[[nodiscard]] std::string RelaunchPathOf(QString const& path);

/// Those entries of \a environment ("NAME=value" each, ended by a null pointer) that can be given to a program.
[[nodiscard]] std::vector<std::string> EnvironmentOf(char const* const* environment);

} // namespace Pelnar::Engine
