// CheckRules.h: whether the chosen item is offered. Pure functions.
#pragma once

#include "Engine/core/feed/ReleaseRules.h"

#include <QString>

#include <optional>
#include <vector>

namespace Pelnar::Engine
{

enum class CheckKind
{
    Probe,       ///< reports only
    Background,  ///< the user did not request it
    Interactive, ///< the user requested it
};

enum class OfferVerdict
{
    Offered,
    NotNewer, ///< than the running bundle
    Skipped,  ///< the user skipped this version or a newer one
    Failed,   ///< this version was installed, did not start well and was rolled back
    HeldBack, ///< it could not be installed, and no person asks
};

struct OfferQuestion
{
    CheckKind kind = CheckKind::Probe;
    QString itemVersion;
    QString bundleVersion;  ///< empty if the bundle has none: the choice is offered
    QString skippedVersion; ///< empty if the user skipped none
    QString failedVersion;  ///< empty if no version was rolled back to the running one
    /// Its installation failed, so background checks do not offer it; empty if no version is held back.
    QString heldBackVersion = {};
    bool isCritical = false; ///< then a skip does not count
};

/// Exceptions of \a order propagate.
[[nodiscard]] OfferVerdict JudgeOffer(OfferQuestion const& question, VersionOrder const& order);

/// The engine's own choice for an application that does not choose: the position of the newest item with a download. Of
/// equal items the first; empty if no item has a download. Exceptions of \a order propagate.
[[nodiscard]] std::optional<int> NewestItem(std::vector<FeedItem> const& items, VersionOrder const& order);

} // namespace Pelnar::Engine
