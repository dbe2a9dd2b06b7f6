// CheckPolicy.h: whether the item that was chosen is offered. Pure decisions.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/feed/FeedItem.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

enum class CheckKind
{
    Probe,       ///< reports only
    Background,  ///< not asked for by the user
    Interactive, ///< asked for by the user
};

/// Negative when the first version is older than the second, positive when it is newer. May throw.
using VersionOrder = std::function<int(QString const&, QString const&)>;

enum class OfferVerdict
{
    Offered,
    NotNewer, ///< than the running bundle
    Skipped,  ///< the user skipped this version or a newer one
    Failed,   ///< this version was installed, did not start well and was taken back
    HeldBack, ///< it could not be installed, and nobody asks
};

struct OfferQuestion
{
    CheckKind kind = CheckKind::Probe;
    QString itemVersion;
    QString bundleVersion;  ///< empty when the bundle gives none: the choice stands
    QString skippedVersion; ///< empty when the user skipped none
    QString failedVersion;  ///< empty when none was taken back for the running one
    /// Its installation has failed, so background checks do not offer it; empty when no version is held back.
    QString heldBackVersion = {};
};

/// Lets exceptions of \a order through.
[[nodiscard]] OfferVerdict JudgeOffer(OfferQuestion const& question, VersionOrder const& order);

/// The engine's own choice, for an application that makes none: the position of the newest item with a download; of
/// equals the first; nothing when no item has one. Lets exceptions of \a order through.
[[nodiscard]] std::optional<int> NewestItem(std::vector<FeedItem> const& items, VersionOrder const& order);

} // namespace Pelnar::Engine
