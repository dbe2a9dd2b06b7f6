// Explanation.h: what a client makes of every item and delta of a feed, and why.
// Ownership: an explanation points into the items that it was made from.
#pragma once

#include "Publisher/choice/FeedChoice.h"

#include <QString>
#include <QVariantMap>

#include <vector>

namespace Pelnar::Publisher
{

/// The standing of an item or a delta in the client's choice.
enum class Standing
{
    Chosen,
    Rival,    ///< a delta that may be chosen instead: see FeedChoice
    Lost,     ///< valid, and another was preferred
    Refused,  ///< fails a test
    LeftOut,  ///< by the engine: the session does not see it
    NotAsked, ///< a delta that the client does not look at
};

struct ItemExplanation
{
    Engine::FeedItem const* item = nullptr;
    int index = 0; ///< in the feed, or among the deltas of the item; from 0
    App::Session::UpdateType updateType = App::Session::UpdateType::UNKNOWN;
    App::Session::Judgement verdict = App::Session::Judgement::VALID; ///< of a delta that is not asked for, too
    Engine::PolicyVerdict policy = Engine::PolicyVerdict::Plain;
    Standing standing = Standing::Refused;
    QString detail; ///< the test with the two values that it compared, or how the item lost
    QVariantMap extensions;
    std::vector<ItemExplanation> deltas;

    /// "other-channel", "version-older", "valid".
    [[nodiscard]] char const* VerdictName() const;
};

struct Explanation
{
    FeedChoice choice;
    int chosenIndex = 0; ///< of the item that was chosen or whose delta was
    std::vector<ItemExplanation> items;
};

Explanation ExplainFeed(std::vector<Engine::FeedItem> const& items, Client const& client,
                        Engine::Installation const& installation = {});

} // namespace Pelnar::Publisher
