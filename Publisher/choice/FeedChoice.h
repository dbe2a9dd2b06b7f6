// FeedChoice.h: which item of a feed a client takes, and how each of the others loses. The rules are the session's own;
// only the items come from the parser without Foundation between them.
// Ownership: a choice points into the items that it was made from.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/Contest.h"
#include "Publisher/choice/ClientInstallation.h"

#include <QVariantMap>

#include <memory>
#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

/// Two valid items, of which one was preferred.
struct Duel
{
    Engine::FeedItem const* winner = nullptr;
    Engine::FeedItem const* loser = nullptr;
    App::Session::PreferenceRule rule = App::Session::PreferenceRule::NEWER_VERSION;
};

struct FeedChoice
{
    Engine::FeedItem const* chosen = nullptr; ///< an item or a delta; null when there is nothing to offer
    Engine::FeedItem const* full = nullptr;   ///< the best full item, whose deltas were looked at
    /// Other deltas that may be chosen instead. Deltas of one start have no defined order when their texts differ, such
    /// as 5 and 5.0. They are sorted by that text, and chosen is the first of all.
    std::vector<Engine::FeedItem const*> rivals;
    std::vector<Duel> duels; ///< in the order in which they were decided
};

/// A feed that many clients choose from. What the rules read of an item is kept for the next client.
class FeedChooser
{
public:
    /// \a items must outlive it. \a installation is what all clients have in common; its version is each client's.
    explicit FeedChooser(std::vector<Engine::FeedItem> const& items, Engine::Installation installation = {});
    ~FeedChooser();
    FeedChooser(FeedChooser const&) = delete;
    FeedChooser& operator=(FeedChooser const&) = delete;

    FeedChoice Choose(Client const& client);

    /// As Choose, but tells only of duels between items that may win, and is fast for many clients.
    FeedChoice Answer(Client const& client);

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

/// The choice of one client: see FeedChooser::Choose.
FeedChoice ChooseFromFeed(std::vector<Engine::FeedItem> const& items, Client const& client,
                          Engine::Installation const& installation = {});

/// The first test that \a item, or a delta, fails for \a client.
App::Session::Judgement JudgeFeedItem(Engine::FeedItem const& item, Client const& client);

App::Session::UpdateType UpdateTypeOf(Engine::FeedItem const& item);

/// Whether \a delta, of the best full item, is looked at for \a client.
[[nodiscard]] bool ServesClient(Engine::FeedItem const& delta, Client const& client);

/// The extensions that the host is handed with \a item; a value that is no text is an invalid variant.
QVariantMap ExtensionsOf(Engine::FeedItem const& item);

} // namespace Pelnar::Publisher
