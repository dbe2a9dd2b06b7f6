// PolicyAgreementTest.cpp: random feeds with policies, keys, signatures and key statements. A client takes an item
// after its engine has left out those for other installations. explain, matrix, diff and simulate must name the same
// item.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionOrder_p.h"
#include "Engine/core/check/KeyStatement.h"
#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "HostFramework/VersionText.h"
#include "Publisher/diff/FeedDiff.h"
#include "Publisher/explain/Explanation.h"
#include "Publisher/matrix/Matrix.h"
#include "Publisher/simulate/Simulation.h"
#include "tests/corpus/ShippedChoice.h"
#include "tests/engine/KeyStatementText.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace Pelnar::Testing
{
namespace
{

using Engine::FeedItem;
using Engine::PolicyVerdict;

char const* const SYSTEM = "12.3";
QDateTime const NOW(QDate(2030, 1, 10), QTime(12, 0), Qt::UTC);

int FeedCount()
{
    return qEnvironmentVariableIsSet("PELNAR_EVERY_PLACE") ? 10000 : 400;
}

constexpr std::uint8_t KEY_SEEDS = 4;

std::string KeyOf(int seed)
{
    static std::vector<std::string> keys;
    for (int i = int(keys.size()); i <= KEY_SEEDS; ++i)
    {
        keys.push_back(MakeKeyPair(std::uint8_t(i + 1)).publicKey);
    }
    return keys[std::size_t(seed)];
}

/// The source of a client's keys.
enum class KeySource
{
    Feed,      ///< the tool does not know them; the feed says which keys the version trusts
    Bundle,    ///< the bundle's own; the tool knows them
    Statement, ///< from a root key's statement in the feed
};

class PolicyGenerator
{
public:
    explicit PolicyGenerator(unsigned seed) : m_engine(seed) {}

    QByteArray Feed()
    {
        QByteArray text = "<rss xmlns:s='http://www.andymatuschak.org/xml-namespaces/sparkle' "
                          "xmlns:p='https://pelnar.example/xml-namespaces/appcast'><channel>";
        for (int i = Number(6); i >= 0; --i)
        {
            text += Item(i);
        }
        return text + "</channel></rss>";
    }

    KeySource Source() { return KeySource(Number(3)); }

    QStringList BundleKeys()
    {
        QStringList ids(Id());
        ids.append(Number(2) == 0 ? Id() : QString());
        ids.removeAll(QString());
        ids.removeDuplicates();
        return ids;
    }

    /// Most of them suit this client and are valid.
    QByteArray Statement()
    {
        StatementText statement;
        statement.serial = OneOf({"2", "3", "4", "9"});
        statement.expires = OneOf({"9999-12-31T23:59:59Z", "2031-01-01T00:00:00Z", "2030-01-10T12:00:00Z"});
        statement.bundles = {OneOf({"com.example.app", "com.example.app", "com.example.app", "com.example.other"})};
        statement.validSeeds = {std::uint8_t(1 + Number(KEY_SEEDS))};
        return StatementLineOf(statement, Number(6) == 0 ? ROOT_SEED + 1 : ROOT_SEED);
    }

    Engine::Installation Installation()
    {
        Engine::Installation installation;
        installation.machine = QLatin1String(OneOf({"x86_64", "aarch64", ""}));
        installation.channels = QString::fromLatin1(OneOf({"", "beta", "beta,rc"})).split(QLatin1Char(','));
        installation.now = NOW;
        if (Number(3) != 0)
        {
            installation.rolloutGroup = [group = Number(7)](QString const&) { return group; };
        }
        return installation;
    }

    char const* Version() { return OneOf({"5", "5.0", "5.1", "5.2", "6", "4.9"}); }

private:
    int Number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_engine); }
    char const* OneOf(std::initializer_list<char const*> values) { return values.begin()[Number(int(values.size()))]; }

    /// Empty most of the time.
    QByteArray Sometimes(QByteArray const& text) { return Number(4) == 0 ? text : QByteArray(); }
    QString Id() { return QString::fromStdString(Engine::KeyIdOf(KeyOf(Number(KEY_SEEDS)))); }

    QByteArray Keys()
    {
        QByteArray const signer = Number(4) == 0 ? "key" : Id().toLatin1();
        return Sometimes("<p:keys signer='" + signer + "' trusted='" + BundleKeys().join(QLatin1Char(' ')).toLatin1() +
                         "'/>");
    }

    QByteArray Signatures()
    {
        QByteArray const plain = Number(2) == 0 ? " s:edSignature='c2ln'" : "";
        return plain + Sometimes(" p:signatures='" + Id().toLatin1() + ":c2ln " + Id().toLatin1() + ":c2lo'");
    }

    QByteArray Machine()
    {
        return Sometimes(QByteArray(" p:machine='") + OneOf({"x86_64", "aarch64", "x86_64 aarch64", "abacus"}) + "'");
    }

    QByteArray Element(char const* name, std::initializer_list<char const*> values)
    {
        return Sometimes(QByteArray("<s:") + name + ">" + OneOf(values) + "</s:" + name + ">");
    }

    QByteArray Enclosure(char const* version, int number)
    {
        return "<enclosure url='https://x.example/" + QByteArray::number(number) + ".zip' length='" +
               QByteArray::number(1 + Number(3)) + "' s:version='" + version + "'" + Machine() + Signatures();
    }

    QByteArray Item(int number)
    {
        char const* const version = OneOf({"5.1", "5.1.0", "5.2", "6", "6.1", "5", "4.9", "6.x"});
        QByteArray item = "<item>" + Enclosure(version, number) + "/>" + Keys();
        item += QByteArray("<pubDate>") +
                OneOf({"Mon, 07 Jan 2019 10:00:00 +0000", "Wed, 09 Jan 2030 10:00:00 +0000",
                       "Mon, 07 Jan 2041 10:00:00 GMT", "soon", ""}) +
                "</pubDate>";
        item += Element("channel", {"beta", "rc", "Beta"}) + Element("hardwareRequirements", {"arm64", "x86_64"});
        item += Element("minimumUpdateVersion", {"5.1", "5.0.0", "six"});
        item += Element("phasedRolloutInterval", {"86400", "3600", "0", "day"});
        item += Sometimes(OneOf({"<s:criticalUpdate/>", "<s:criticalUpdate s:version='5.1'/>"}));
        item += Sometimes(OneOf({"<s:informationalUpdate/>", "<s:informationalUpdate><s:belowVersion>5.1"
                                                             "</s:belowVersion></s:informationalUpdate>"}));
        item += Number(8) == 0 ? "<p:withdrawn/>" : "";
        item += "<s:deltas>";
        for (char const* start : {"5.0", "5", "5.0.0", "5.0"})
        {
            item += Number(3) == 0 ? Enclosure(version, number + Number(2)) + " s:deltaFrom='" + start + "'/>"
                                   : QByteArray();
        }
        return item + "</s:deltas></item>";
    }

    std::mt19937 m_engine;
};

int SessionOrder(QString const& a, QString const& b)
{
    return App::Session::OrderOfVersions(a, b, App::Session::IsOlderVersion, App::Session::IsSameVersion);
}

std::string Text(QString const& version, QString const& deltaFrom, QString const& url)
{
    return (version + QLatin1Char('|') + deltaFrom + QLatin1Char('|') + url).toStdString();
}

/// All items that a client may take if no rule defines the order of deltas.
using Answers = std::set<std::string>;

Answers AnswersOf(Publisher::Explanation const& explanation)
{
    std::vector<FeedItem const*> items = explanation.choice.rivals;
    items.push_back(explanation.choice.chosen);
    Answers answers;
    for (FeedItem const* item : items)
    {
        answers.insert(item ? Text(item->versionString, item->deltaFrom, item->fileUrl.toString(QUrl::FullyEncoded))
                            : "none");
    }
    return answers;
}

Answers AnswersOf(Publisher::Outcome const& outcome)
{
    Answers answers{outcome.IsUpdate() ? Text(outcome.version, outcome.deltaFrom, outcome.url) : "none"};
    for (Publisher::Outcome const& rival : outcome.rivals)
    {
        answers.merge(AnswersOf(rival));
    }
    return answers;
}

/// One random feed and one random client of it.
struct Case
{
    explicit Case(PolicyGenerator& generator)
        : source(generator.Source())
        , bytes(generator.Feed() + (source == KeySource::Statement ? generator.Statement() : QByteArray()))
        , installation(generator.Installation())
        , localText(QLatin1String(generator.Version()))
        , client{Util::VersionFromString(localText, QStringLiteral(".")), Core::Version(12, 3)}
        , items(Engine::ParseFeed(bytes, QUrl(QStringLiteral("https://feeds.example.com/a.xml")),
                                  {Engine::FeedPlatform::Linux, installation.machine})
                    .value()
                    .items)
    {
        if (source == KeySource::Bundle)
        {
            installation.trustedKeys = generator.BundleKeys();
        }
        else if (source == KeySource::Statement)
        {
            Engine::KeyTrust const trust{{KeyOf(0)}, MakeKeyPair(ROOT_SEED).publicKey, "com.example.app", 3};
            auto const believed = Engine::BelieveKeys(bytes, trust, NOW);
            isRefused = !believed;
            installation.trustedKeys =
                isRefused ? QStringList() : QStringList(QString::fromStdString(believed->keys.Ids().front()));
        }
    }

    KeySource source;
    bool isRefused = false; ///< the client refuses the statement and so the feed
    QByteArray bytes;
    Engine::Installation installation;
    QString localText;
    Publisher::Client client;
    std::vector<FeedItem> items;
};

/// The keys of the bundle. If the tool does not know them: those in the feed for its version.
QStringList KeysOf(Case const& each)
{
    auto const isOwn = [&each](FeedItem const& item)
    {
        return each.source == KeySource::Feed && !item.trustedKeys.isEmpty() &&
               App::Session::VersionFromStringNoexcept(item.versionString).IsValid() &&
               SessionOrder(item.versionString, each.localText) == 0;
    };
    auto const own = std::find_if(each.items.begin(), each.items.end(), isOwn);
    return own == each.items.end() ? each.installation.trustedKeys : own->trustedKeys;
}

/// The items that the engine keeps.
std::vector<FeedItem> Kept(Case const& each)
{
    std::vector<FeedItem> kept = each.items;
    Engine::Installation installation = each.installation;
    installation.version = each.localText;
    installation.trustedKeys = KeysOf(each);
    Engine::LeaveOut(kept, installation, SessionOrder);
    return kept;
}

std::string Shipped(Case const& each)
{
    std::optional<ShippedChoice> const choice = ChooseFromFeed(Kept(each), each.client.localVersion);
    return choice ? Text(choice->version, choice->deltaFrom, choice->url) : "none";
}

std::set<int> LeftOutByTheEngine(Case const& each)
{
    std::set<int> left;
    std::vector<FeedItem> const kept = Kept(each);
    for (int i = 0; i < int(each.items.size()); ++i)
    {
        FeedItem const& item = each.items[std::size_t(i)];
        bool const isKept =
            std::any_of(kept.begin(), kept.end(),
                        [&](FeedItem const& other) { return other.line == item.line && other.column == item.column; });
        if (!isKept)
        {
            left.insert(i);
        }
    }
    return left;
}

std::set<int> LeftOutByExplain(Publisher::Explanation const& explanation)
{
    std::set<int> left;
    for (Publisher::ItemExplanation const& item : explanation.items)
    {
        if (item.standing == Publisher::Standing::LeftOut)
        {
            left.insert(item.index);
        }
    }
    return left;
}

Answers ByMatrix(Case const& each)
{
    return AnswersOf(Publisher::MakeMatrix(each.items, {{each.localText, each.client.localVersion}},
                                           {{QLatin1String(SYSTEM), each.client.systemVersion}}, each.installation)
                         .outcomes.front()
                         .front());
}

/// These feeds have no system bounds, so there is one change at most.
Answers ByDiff(Case const& each)
{
    std::vector<Publisher::OutcomeChange> const changes =
        Publisher::DiffFeeds({}, each.items, {{each.localText, each.client.localVersion}}, each.installation);
    return AnswersOf(changes.empty() ? Publisher::Outcome() : changes.front().after);
}

/// True if a staged item reaches its groups at different times of these days.
bool DividesGroups(Case const& each)
{
    return std::any_of(each.items.begin(), each.items.end(),
                       [](FeedItem const& item) {
                           return item.policy.rolloutSeconds != 0 &&
                                  Engine::FeedTime(item.dateString).date().year() == NOW.date().year();
                       });
}

QString BySimulation(Case const& each)
{
    Publisher::SimulationRequest request;
    request.startVersions = {{each.localText, each.client.localVersion}};
    request.systemVersion = each.client.systemVersion;
    request.installation = each.installation;
    request.start = NOW;
    Publisher::Simulation const simulation = Publisher::Simulate(each.items, request);
    for (int i = 0; i < simulation.versions.size(); ++i)
    {
        if (simulation.counts.back()[std::size_t(i)] == 1)
        {
            return simulation.versions.at(i);
        }
    }
    return {};
}

/// True if \a choice, one of \a items or of their deltas, is informational.
bool IsPage(ShippedChoice const& choice, std::vector<FeedItem> const& items)
{
    return std::any_of(items.begin(), items.end(),
                       [&](FeedItem const& item)
                       {
                           bool const isChosen = item.versionString == choice.version &&
                                                 item.deltaFrom == choice.deltaFrom &&
                                                 choice.url == item.fileUrl.toString(QUrl::FullyEncoded);
                           return (isChosen && item.policy.isInformational) || IsPage(choice, item.deltas);
                       });
}

/// The client's version after the check of a day.
QString NextVersion(Case const& each)
{
    std::vector<FeedItem> const kept = Kept(each);
    std::optional<ShippedChoice> const choice = ChooseFromFeed(kept, each.client.localVersion);
    return choice && !IsPage(*choice, kept) ? choice->version : each.localText;
}

} // namespace

TEST(PolicyAgreement, EveryVerbSaysWhatTheClientTakes)
{
    Util::SetOSVersion(QLatin1String(SYSTEM));
    PolicyGenerator generator(2030);
    int updates = 0;
    int leftOut = 0;
    int simulated = 0;
    int refused = 0;
    int undefined = 0;
    int untrusted = 0;
    for (int i = 0; i < FeedCount(); ++i)
    {
        Case const each(generator);
        if (each.isRefused)
        {
            ++refused;
            continue;
        }
        SCOPED_TRACE(each.bytes.toStdString() + each.localText.toStdString() + " trusts " +
                     KeysOf(each).join(QLatin1Char(' ')).toStdString());
        std::string const shipped = Shipped(each);
        Publisher::Explanation const explanation = Publisher::ExplainFeed(each.items, each.client, each.installation);
        Answers const answers = AnswersOf(explanation);
        ASSERT_EQ(answers.count(shipped), 1u) << shipped;
        ASSERT_EQ(LeftOutByExplain(explanation), LeftOutByTheEngine(each));
        ASSERT_EQ(ByMatrix(each), answers);
        ASSERT_EQ(ByDiff(each), answers);
        if (each.installation.rolloutGroup && !DividesGroups(each))
        {
            ASSERT_TRUE(SessionOrder(BySimulation(each), NextVersion(each)) == 0);
            ++simulated;
        }
        updates += shipped == "none" ? 0 : 1;
        leftOut += int(LeftOutByExplain(explanation).size());
        undefined += answers.size() > 1 ? 1 : 0;
        untrusted += std::count_if(explanation.items.begin(), explanation.items.end(),
                                   [](Publisher::ItemExplanation const& item)
                                   { return item.policy == PolicyVerdict::KeyNotTrusted; });
    }
    // The generator produces every kind of answer.
    EXPECT_GT(updates, FeedCount() / 5);
    EXPECT_LT(updates, FeedCount());
    EXPECT_GT(leftOut, FeedCount() / 2);
    EXPECT_GT(simulated, FeedCount() / 20);
    EXPECT_GT(refused, FeedCount() / 20);
    EXPECT_GT(undefined, FeedCount() / 100);
    EXPECT_GT(untrusted, FeedCount() / 20);
}

} // namespace Pelnar::Testing
