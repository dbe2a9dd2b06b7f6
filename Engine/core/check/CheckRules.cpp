#include "Engine/core/check/CheckRules.h"

namespace Pelnar::Engine
{

OfferVerdict JudgeOffer(OfferQuestion const& question, VersionOrder const& order)
{
    if (!question.bundleVersion.isEmpty() && order(question.bundleVersion, question.itemVersion) >= 0)
    {
        return OfferVerdict::NotNewer;
    }
    if (question.kind == CheckKind::Interactive)
    {
        return OfferVerdict::Offered;
    }
    if (!question.isCritical && !question.skippedVersion.isEmpty() &&
        (question.itemVersion == question.skippedVersion || order(question.skippedVersion, question.itemVersion) >= 0))
    {
        return OfferVerdict::Skipped;
    }
    // Deliberate: only that version. Its failure says nothing about an older version that is newer than the bundle.
    if (!question.failedVersion.isEmpty() &&
        (question.itemVersion == question.failedVersion || order(question.failedVersion, question.itemVersion) == 0))
    {
        return OfferVerdict::Failed;
    }
    // A probe may be the first half of a check that a person requested.
    if (question.kind == CheckKind::Background && !question.heldBackVersion.isEmpty() &&
        (question.itemVersion == question.heldBackVersion ||
         order(question.heldBackVersion, question.itemVersion) == 0))
    {
        return OfferVerdict::HeldBack;
    }
    return OfferVerdict::Offered;
}

std::optional<int> NewestItem(std::vector<FeedItem> const& items, VersionOrder const& order)
{
    std::optional<int> newest;
    for (int position = 0; position < static_cast<int>(items.size()); ++position)
    {
        FeedItem const& item = items[static_cast<size_t>(position)];
        if (item.fileUrl.isEmpty() || item.versionString.isEmpty())
        {
            continue;
        }
        if (!newest || order(items[static_cast<size_t>(*newest)].versionString, item.versionString) < 0)
        {
            newest = position;
        }
    }
    return newest;
}

} // namespace Pelnar::Engine
