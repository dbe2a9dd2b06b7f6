// PolicyAgreementTest.cpp: random feeds with policies: what a client takes, after its engine has left out what is meant
// for others, is what explain, matrix, diff and simulate say.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionOrder_p.h"
#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/feed/ReleasePolicy.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "HostFramework/VersionText.h"
#include "Publisher/diff/FeedDiff.h"
#include "Publisher/explain/Explanation.h"
#include "Publisher/matrix/Matrix.h"
#include "Publisher/simulate/Simulation.h"
#include "tests/corpus/ShippedChoice.h"

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

    /// Most of the time nothing.
    QByteArray Sometimes(QByteArray const& text) { return Number(4) == 0 ? text : QByteArray(); }
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
               QByteArray::number(1 + Number(3)) + "' s:version='" + version + "'" + Machine();
    }

    QByteArray Item(int number)
    {
        char const* const version = OneOf({"5.1", "5.1.0", "5.2", "6", "6.1", "5", "4.9", "6.x"});
        QByteArray item = "<item>" + Enclosure(version, number) + "/>";
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
        // No two deltas start from one version: the order in which they are met is not defined.
        item += Number(2) == 0 ? Enclosure(version, number) + " s:deltaFrom='5.0'/>" : QByteArray();
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

std::string Text(FeedItem const* item)
{
    return item ? Text(item->versionString, item->deltaFrom, item->fileUrl.toString(QUrl::FullyEncoded)) : "none";
}

std::string Text(Publisher::Outcome const& outcome)
{
    return outcome.IsUpdate() ? Text(outcome.version, outcome.deltaFrom, outcome.url) : "none";
}

/// One random feed and one random client of it.
struct Case
{
    explicit Case(PolicyGenerator& generator)
        : bytes(generator.Feed())
        , installation(generator.Installation())
        , localText(QLatin1String(generator.Version()))
        , client{Util::VersionFromString(localText, QStringLiteral(".")), Core::Version(12, 3)}
        , items(Engine::ParseFeed(bytes, QUrl(QStringLiteral("https://feeds.example.com/a.xml")),
                                  {Engine::FeedPlatform::Linux, installation.machine})
                    .items)
    {
    }

    QByteArray bytes;
    Engine::Installation installation;
    QString localText;
    Publisher::Client client;
    std::vector<FeedItem> items;
};

/// What the engine lets through.
std::vector<FeedItem> Kept(Case const& each)
{
    std::vector<FeedItem> kept = each.items;
    Engine::Installation installation = each.installation;
    installation.version = each.localText;
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

std::string ByMatrix(Case const& each)
{
    return Text(Publisher::MakeMatrix(each.items, {{each.localText, each.client.localVersion}},
                                      {{QLatin1String(SYSTEM), each.client.systemVersion}}, each.installation)
                    .outcomes.front()
                    .front());
}

/// No bound of a system stands in these feeds, so that there is one change at most.
std::string ByDiff(Case const& each)
{
    std::vector<Publisher::OutcomeChange> const changes =
        Publisher::DiffFeeds({}, each.items, {{each.localText, each.client.localVersion}}, each.installation);
    return changes.empty() ? "none" : Text(changes.front().after);
}

/// Whether a staged item reaches its groups at different times of these days.
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

/// The version that the client has after the check of a day.
QString NextVersion(Case const& each)
{
    std::vector<FeedItem> const kept = Kept(each);
    std::optional<ShippedChoice> const choice = ChooseFromFeed(kept, each.client.localVersion);
    bool const isPage = choice && std::any_of(kept.begin(), kept.end(),
                                              [&](FeedItem const& item)
                                              {
                                                  return item.policy.isInformational &&
                                                         item.versionString == choice->version &&
                                                         choice->url == item.fileUrl.toString(QUrl::FullyEncoded);
                                              });
    return choice && !isPage ? choice->version : each.localText;
}

} // namespace

TEST(PolicyAgreement, EveryVerbSaysWhatTheClientTakes)
{
    Util::SetOSVersion(QLatin1String(SYSTEM));
    PolicyGenerator generator(2030);
    int updates = 0;
    int leftOut = 0;
    int simulated = 0;
    for (int i = 0; i < FeedCount(); ++i)
    {
        Case const each(generator);
        SCOPED_TRACE(each.bytes.toStdString() + each.localText.toStdString());
        std::string const shipped = Shipped(each);
        Publisher::Explanation const explanation = Publisher::ExplainFeed(each.items, each.client, each.installation);
        ASSERT_EQ(Text(explanation.chosen), shipped);
        ASSERT_EQ(LeftOutByExplain(explanation), LeftOutByTheEngine(each));
        ASSERT_EQ(ByMatrix(each), shipped);
        ASSERT_EQ(ByDiff(each), shipped);
        if (each.installation.rolloutGroup && !DividesGroups(each))
        {
            ASSERT_TRUE(SessionOrder(BySimulation(each), NextVersion(each)) == 0);
            ++simulated;
        }
        updates += shipped == "none" ? 0 : 1;
        leftOut += int(LeftOutByExplain(explanation).size());
    }
    // The generator reaches every kind of answer.
    EXPECT_GT(updates, FeedCount() / 5);
    EXPECT_LT(updates, FeedCount());
    EXPECT_GT(leftOut, FeedCount() / 2);
    EXPECT_GT(simulated, FeedCount() / 10);
}

} // namespace Pelnar::Testing
