// Explanation.h: a client's verdict on every item and delta of a feed, and the reason. Ownership: an explanation points
// to the items from which it was made.
#pragma once

#include "Publisher/choice/FeedChoice.h"

#include <QString>
#include <QVariantMap>

#include <vector>

namespace Pelnar::Publisher
{

/// The state of an item or a delta in the client's choice.
enum class Standing
{
    Chosen,
    Rival,    ///< a delta that may be chosen instead: see FeedChoice
    Lost,     ///< valid, but another one was preferred
    Refused,  ///< fails a test
    LeftOut,  ///< by the engine: the session does not see it
    NotAsked, ///< a delta that the client does not consider
};

struct ItemExplanation
{
    Engine::FeedItem const* item = nullptr;
    int index = 0; ///< in the feed, or among the deltas of the item; from 0
    App::Session::Judgement verdict = App::Session::Judgement::VALID; ///< also of a delta that is not considered
    Engine::PolicyVerdict policy = Engine::PolicyVerdict::Plain;
    Standing standing = Standing::Refused;
    QString detail; ///< the test with its two values, or how the item lost
    QVariantMap extensions;
    std::vector<ItemExplanation> deltas;

    /// "other-channel", "version-older", "valid".
    [[nodiscard]] char const* VerdictName() const;
};

struct Explanation
{
    FeedChoice choice;
    int chosenIndex = 0; ///< of the chosen item, or of the item of the chosen delta
    std::vector<ItemExplanation> items;
};

Explanation ExplainFeed(std::vector<Engine::FeedItem> const& items, Client const& client,
                        Engine::Installation const& installation = {});

} // namespace Pelnar::Publisher
