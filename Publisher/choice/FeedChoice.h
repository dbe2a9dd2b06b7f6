// FeedChoice.h: the item of a feed that a client takes, and why each other item loses. The rules are those of the
// session; the items come directly from the parser. Ownership: a choice points to the items from which it was made.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/Contest.h"
#include "Publisher/choice/ClientInstallation.h"

#include <QVariantMap>

#include <memory>
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
    Engine::FeedItem const* chosen = nullptr; ///< an item or a delta; null if there is nothing to offer
    Engine::FeedItem const* full = nullptr;   ///< the best full item, whose deltas were looked at
    /// Other deltas that may be chosen instead. Deltas of one start have no defined order when their texts differ, such
    /// as 5 and 5.0. They are sorted by that text, and chosen is the first of all.
    std::vector<Engine::FeedItem const*> rivals;
    std::vector<Duel> duels; ///< in the order of the decisions
};

/// A feed for the choices of many clients. It keeps what the rules have read of an item.
class FeedChooser
{
public:
    /// \a items must outlive it. \a installation is common to all clients, except its version. \a otherItems are not
    /// offered, but name the keys of versions that \a items do not name.
    explicit FeedChooser(std::vector<Engine::FeedItem> const& items, Engine::Installation installation = {},
                         std::vector<Engine::FeedItem> const& otherItems = {});
    ~FeedChooser();
    FeedChooser(FeedChooser const&) = delete;
    FeedChooser& operator=(FeedChooser const&) = delete;

    FeedChoice Choose(Client const& client);

    /// Like Choose, but reports only duels between items that may win, and is fast for many clients.
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
/// "BUNDLE", "DELTA".
QString UpdateTypeNameOf(Engine::FeedItem const& item);

/// True if \a client considers \a delta, of the best full item.
[[nodiscard]] bool ServesClient(Engine::FeedItem const& delta, Client const& client);

/// The extensions of \a item for the host; a value that is not text is an invalid variant.
QVariantMap ExtensionsOf(Engine::FeedItem const& item);

} // namespace Pelnar::Publisher
