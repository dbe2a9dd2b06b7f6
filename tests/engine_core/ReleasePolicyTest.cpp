// ReleasePolicyTest.cpp: for which installations an item is meant: what a feed says, the verdict, and its name.

#include "Engine/core/feed/ReleasePolicy.h"
#include "Engine/core/feed/FeedParser.h"
#include "tests/engine_core/FeedFixture.h"

#include <gtest/gtest.h>

namespace Pelnar::Testing
{
namespace
{

using Engine::FeedItem;
using Engine::Installation;
using Engine::PolicyVerdict;

/// Versions of one digit after a dot at most.
int OrderOf(QString const& a, QString const& b)
{
    double const difference = a.toDouble() - b.toDouble();
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

FeedItem ItemWith(QByteArray const& elements, QByteArray const& attributes = {},
                  Engine::FeedTarget const& target = Engine::FeedPlatform::Linux)
{
    QByteArray const feed = "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
                            "xmlns:pelnar='https://pelnar.example/xml-namespaces/appcast'><channel><item>"
                            "<pubDate>Mon, 07 Jan 2030 10:00:00 +0000</pubDate>" +
                            elements + "<enclosure url='a.zip' length='1' sparkle:version='6.0' " + attributes +
                            "/></item></channel></rss>";
    Engine::FeedParseResult const result =
        Engine::ParseFeed(feed, QUrl(QStringLiteral("https://feeds.example.com/a.xml")), target);
    EXPECT_EQ(result.items.size(), 1U) << feed.toStdString();
    return result.items.empty() ? FeedItem() : result.items.front();
}

QDateTime Moment(char const* text)
{
    return QDateTime::fromString(QLatin1String(text), Qt::ISODate);
}

Installation Client(char const* version = "5.0", char const* machine = "x86_64", QStringList const& channels = {})
{
    Installation installation;
    installation.version = QLatin1String(version);
    installation.machine = QLatin1String(machine);
    installation.channels = channels;
    installation.now = Moment("2030-01-08T10:00:00Z");
    return installation;
}

Installation InGroup(int group, char const* moment, char const* version = "5.0")
{
    Installation installation = Client(version);
    installation.rolloutGroup = [group](QString const&) { return group; };
    installation.now = Moment(moment);
    return installation;
}

struct Row
{
    char const* name;
    char const* elements;
    char const* attributes;
    Installation installation;
    char const* verdict;
};

std::ostream& operator<<(std::ostream& stream, Row const& row)
{
    return stream << row.name;
}

char const* const DAILY = "<sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>";
char const* const BETA = "<sparkle:channel>beta</sparkle:channel>";
QStringList const LISTS_BETA{QStringLiteral("alpha"), QStringLiteral("beta")};

class PolicyRow : public ::testing::TestWithParam<Row>
{
};

} // namespace

TEST_P(PolicyRow, HasItsVerdict)
{
    Row const& row = GetParam();
    FeedItem const item = ItemWith(row.elements, row.attributes);
    EXPECT_STREQ(Engine::NameOf(Engine::JudgePolicy(item, row.installation, OrderOf)), row.verdict);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PolicyRow,
    ::testing::Values(
        Row{"Nothing", "", "", Client(), ""}, Row{"Withdrawn", "<pelnar:withdrawn/>", "", Client(), "withdrawn"},
        Row{"WithdrawnOfNoNamespace", "<withdrawn/>", "", Client(), ""},
        Row{"WithdrawnBeforeAllElse", "<pelnar:withdrawn/><sparkle:channel>beta</sparkle:channel>", "", Client(),
            "withdrawn"},
        Row{"ChannelNotListed", BETA, "", Client(), "other-channel"},
        Row{"ChannelListed", BETA, "", Client("5.0", "x86_64", LISTS_BETA), ""},
        Row{"ChannelInOtherCase", "<sparkle:channel>Beta</sparkle:channel>", "", Client("5.0", "x86_64", LISTS_BETA),
            "other-channel"},
        Row{"ChannelEmpty", "<sparkle:channel> </sparkle:channel>", "", Client(), ""},
        Row{"ItemOfNoChannelForWhoListsSome", "", "", Client("5.0", "x86_64", LISTS_BETA), ""},
        Row{"OtherMachine", "", "pelnar:machine='aarch64'", Client(), "other-architecture"},
        Row{"SameMachine", "", "pelnar:machine='x86_64'", Client(), ""},
        Row{"SameMachineByAnotherName", "", "pelnar:machine='amd64'", Client(), ""},
        Row{"OneOfTwoMachines", "", "pelnar:machine='aarch64, x86_64'", Client(), ""},
        Row{"MachineIsNotKnown", "", "pelnar:machine='aarch64'", Client("5.0", ""), ""},
        Row{"HardwareOfAnother", "<sparkle:hardwareRequirements>arm64</sparkle:hardwareRequirements>", "", Client(),
            "other-architecture"},
        Row{"HardwareOfThis", "<sparkle:hardwareRequirements>arm64</sparkle:hardwareRequirements>", "",
            Client("5.0", "aarch64"), ""},
        Row{"HardwareThatNobodyKnows", "<sparkle:hardwareRequirements>abacus</sparkle:hardwareRequirements>", "",
            Client(), "other-architecture"},
        Row{"TooOldToUpdate", "<sparkle:minimumUpdateVersion>5.1</sparkle:minimumUpdateVersion>", "", Client(),
            "needs-another-version-first"},
        Row{"JustOldEnoughToUpdate", "<sparkle:minimumUpdateVersion>5.0</sparkle:minimumUpdateVersion>", "", Client(),
            ""},
        Row{"UnknownVersionUpdates", "<sparkle:minimumUpdateVersion>5.1</sparkle:minimumUpdateVersion>", "", Client(""),
            ""},
        Row{"StagedForAPerson", DAILY, "", Client(), ""},
        Row{"StagedForTheFirstGroup", DAILY, "", InGroup(0, "2030-01-07T10:00:00Z"), ""},
        Row{"StagedBeforeItsDate", DAILY, "", InGroup(0, "2030-01-07T09:59:59Z"), "not-yet-rolled-out"},
        Row{"StagedForTheNextGroup", DAILY, "", InGroup(1, "2030-01-08T09:59:59Z"), "not-yet-rolled-out"},
        Row{"StagedForTheNextGroupInTime", DAILY, "", InGroup(1, "2030-01-08T10:00:00Z"), ""},
        Row{"StagedForTheLastGroup", DAILY, "", InGroup(6, "2030-01-13T09:59:59Z"), "not-yet-rolled-out"},
        Row{"StagedForTheLastGroupInTime", DAILY, "", InGroup(6, "2030-01-13T10:00:00Z"), ""},
        Row{"StagedInNoNumber", "<sparkle:phasedRolloutInterval>day</sparkle:phasedRolloutInterval>", "",
            InGroup(6, "2030-01-07T10:00:00Z"), ""},
        Row{"StagedBackwards", "<sparkle:phasedRolloutInterval>-86400</sparkle:phasedRolloutInterval>", "",
            InGroup(6, "2030-01-07T10:00:00Z"), ""},
        Row{"StagedForEver", "<sparkle:phasedRolloutInterval>9223372036854775807</sparkle:phasedRolloutInterval>", "",
            InGroup(6, "2030-01-07T10:00:00Z"), ""},
        Row{"StagedAndCritical",
            "<sparkle:criticalUpdate/><sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>", "",
            InGroup(6, "2030-01-07T10:00:00Z"), ""},
        Row{"StagedAndCriticalForOlder",
            "<sparkle:criticalUpdate sparkle:version='5.0'/><sparkle:phasedRolloutInterval>86400"
            "</sparkle:phasedRolloutInterval>",
            "", InGroup(6, "2030-01-07T10:00:00Z"), "not-yet-rolled-out"},
        Row{"StagedAndCriticalForIt",
            "<sparkle:criticalUpdate sparkle:version='5.0'/><sparkle:phasedRolloutInterval>86400"
            "</sparkle:phasedRolloutInterval>",
            "", InGroup(6, "2030-01-07T10:00:00Z", "4.9"), ""},
        Row{"Informational", "<sparkle:informationalUpdate/>", "", Client(), "informational"},
        Row{"InformationalForAVersion",
            "<sparkle:informationalUpdate><sparkle:version>4.8</sparkle:version><sparkle:version>5.0"
            "</sparkle:version></sparkle:informationalUpdate>",
            "", Client(), "informational"},
        Row{"InformationalForOthers",
            "<sparkle:informationalUpdate><sparkle:version>4.8</sparkle:version></sparkle:informationalUpdate>", "",
            Client(), ""},
        Row{"InformationalBelow",
            "<sparkle:informationalUpdate><sparkle:belowVersion>5.1</sparkle:belowVersion></"
            "sparkle:informationalUpdate>",
            "", Client(), "informational"},
        Row{"InformationalFurtherBelow",
            "<sparkle:informationalUpdate><sparkle:belowVersion>5.0</sparkle:belowVersion></"
            "sparkle:informationalUpdate>",
            "", Client(), ""}),
    [](auto const& info) { return std::string(info.param.name); });

TEST(ReleasePolicy, OfSeveralEnclosuresTheFirstForTheMachineIsTaken)
{
    QByteArray const others = "<enclosure url='b.zip' length='2' sparkle:version='6.0' pelnar:machine='aarch64'/>"
                              "<enclosure url='c.zip' length='3' sparkle:version='6.0' pelnar:machine='x86_64'/>";
    auto const nameFor = [&](char const* machine)
    {
        FeedItem const item =
            ItemWith(others, "pelnar:machine='x86_64'", {Engine::FeedPlatform::Linux, QLatin1String(machine)});
        return item.fileUrl.fileName().toStdString();
    };
    EXPECT_EQ(nameFor("x86_64"), "c.zip");
    EXPECT_EQ(nameFor("aarch64"), "b.zip");
    EXPECT_EQ(nameFor("riscv64"), "b.zip");
    EXPECT_EQ(nameFor(""), "b.zip");
}

TEST(ReleasePolicy, GroupIsAskedForTheVersionOfTheItem)
{
    Installation installation = InGroup(0, "2030-01-07T10:00:00Z");
    QString asked;
    installation.rolloutGroup = [&asked](QString const& version)
    {
        asked = version;
        return 3;
    };
    FeedItem const item = ItemWith(DAILY);
    EXPECT_EQ(Engine::JudgePolicy(item, installation, OrderOf), PolicyVerdict::NotYetRolledOut);
    EXPECT_EQ(asked.toStdString(), "6.0");
    EXPECT_EQ(Engine::ReasonOf(PolicyVerdict::NotYetRolledOut, item, installation).toStdString(),
              "group 4 of 7 gets it at 2030-01-10T10:00:00Z");
}

TEST(ReleasePolicy, ItemWithoutADateIsNotStaged)
{
    FeedItem item = ItemWith(DAILY);
    item.dateString = QStringLiteral("soon");
    EXPECT_EQ(Engine::JudgePolicy(item, InGroup(6, "2030-01-07T10:00:00Z"), OrderOf), PolicyVerdict::Plain);
}

TEST(ReleasePolicy, WhatIsLeftOutGoesWithItsDeltas)
{
    QByteArray const deltas = "<sparkle:deltas>"
                              "<enclosure url='d1' length='1' sparkle:version='6.0' sparkle:deltaFrom='5.0' "
                              "pelnar:machine='aarch64'/>"
                              "<enclosure url='d2' length='1' sparkle:version='6.0' sparkle:deltaFrom='5.0'/>"
                              "</sparkle:deltas>";
    std::vector<FeedItem> items{ItemWith(BETA), ItemWith(deltas), ItemWith("<pelnar:withdrawn/>" + deltas)};
    Engine::LeaveOut(items, Client(), OrderOf);
    ASSERT_EQ(items.size(), 1u);
    ASSERT_EQ(items[0].deltas.size(), 1u);
    EXPECT_EQ(items[0].deltas[0].fileUrl.fileName().toStdString(), "d2");
}

TEST(ReleasePolicy, CriticalIsSettledForTheInstalledVersion)
{
    std::vector<FeedItem> items{ItemWith("<sparkle:criticalUpdate sparkle:version='5.1'/>"),
                                ItemWith("<sparkle:criticalUpdate sparkle:version='5.0'/>"),
                                ItemWith("<sparkle:criticalUpdate/><sparkle:criticalUpdate sparkle:version='1.0'/>"),
                                ItemWith("<sparkle:tags><sparkle:criticalUpdate/></sparkle:tags>"), ItemWith("")};
    Engine::LeaveOut(items, Client(), OrderOf);
    ASSERT_EQ(items.size(), 5u);
    EXPECT_TRUE(items[0].isCritical);
    EXPECT_FALSE(items[1].isCritical);
    EXPECT_TRUE(items[2].isCritical);
    EXPECT_TRUE(items[3].isCritical);
    EXPECT_FALSE(items[4].isCritical);
}

TEST(ReleasePolicy, FeedWithoutItIsTheSameAndAsksForNoOrder)
{
    std::vector<FeedItem> items{ItemWith("<sparkle:criticalUpdate/>"), ItemWith("")};
    Engine::LeaveOut(items, Client(),
                     [](QString const&, QString const&) -> int { throw std::logic_error("nobody compares"); });
    EXPECT_EQ(items.size(), 2u);
}

TEST(ReleasePolicy, LineOfAVersionIsItsFirstTwoNumbers)
{
    EXPECT_EQ(Engine::VersionLine(QStringLiteral("5.10.3")).toStdString(), "5.10");
    EXPECT_EQ(Engine::VersionLine(QStringLiteral("5.10")).toStdString(), "5.10");
    EXPECT_EQ(Engine::VersionLine(QStringLiteral("5")).toStdString(), "5");
}

namespace
{

QString const KEY_A = QStringLiteral("aaaaaaaaaaaaaaaa");
QString const KEY_B = QStringLiteral("bbbbbbbbbbbbbbbb");
QString const KEY_C = QStringLiteral("cccccccccccccccc");

/// An item signed by \a signer, whose bundle trusts \a trusted.
FeedItem Keyed(char const* version, QString const& signer, QStringList const& trusted)
{
    FeedItem item;
    item.versionString = QLatin1String(version);
    item.edSignature = QStringLiteral("plain");
    item.signerKey = signer;
    item.trustedKeys = trusted;
    return item;
}

Installation Trusting(QStringList const& keys, char const* version = "5.0")
{
    Installation installation = Client(version);
    installation.trustedKeys = keys;
    return installation;
}

/// What stays of \a items, with the signatures that are verified.
std::string Left(std::vector<FeedItem> items, Installation const& installation)
{
    Engine::LeaveOut(items, installation, OrderOf);
    std::string texts;
    for (FeedItem const& item : items)
    {
        texts += item.versionString.toStdString() + ':' + item.edSignature.toStdString() + ' ';
    }
    return texts;
}

/// The name of the verdict on the last of \a items.
std::string Verdict(std::vector<FeedItem> const& items, Installation installation)
{
    installation.stones = Engine::SteppingStonesOf(items, installation, OrderOf);
    PolicyVerdict const verdict = Engine::JudgePolicy(items.back(), installation, OrderOf);
    EXPECT_EQ(verdict == PolicyVerdict::Plain, Engine::ReasonOf(verdict, items.back(), installation).isEmpty());
    return Engine::NameOf(verdict);
}

} // namespace

TEST(KeyPaths, SignaturesOfAnEnclosureAreReadWithTheirKeys)
{
    FeedItem const item =
        ItemWith("<pelnar:keys signer='aaaaaaaaaaaaaaaa' trusted='aaaaaaaaaaaaaaaa'/>",
                 "sparkle:edSignature='plain' pelnar:signatures='aaaaaaaaaaaaaaaa:one bbbbbbbbbbbbbbbb:two= B:three "
                 "cccccccccccccccc: CCCCCCCCCCCCCCCC:four five'");
    ASSERT_EQ(item.signatures.size(), 2u);
    EXPECT_EQ(item.signatures[1].keyId, KEY_B);
    EXPECT_EQ(item.signatures[1].signature.toStdString(), "two=");
    EXPECT_EQ(Engine::SignersOf(item), (QStringList{KEY_A, KEY_B}));
    QByteArray many;
    for (int i = 0; i < 9; ++i)
    {
        many += "000000000000000" + QByteArray::number(i) + ":x ";
    }
    EXPECT_EQ(ItemWith("", "pelnar:signatures='" + many + "'").signatures.size(), 8u) << "bounded";
}

TEST(KeyPaths, ABundleVerifiesTheSignatureOfAKeyThatItTrusts)
{
    FeedItem item = Keyed("6.0", KEY_A, {});
    item.signatures = {{KEY_B, QStringLiteral("second")}};
    EXPECT_EQ(Left({item}, Trusting({})), "6.0:plain ") << "nothing is known of its keys";
    EXPECT_EQ(Left({item}, Trusting({KEY_A})), "6.0:plain ");
    EXPECT_EQ(Left({item}, Trusting({KEY_B})), "6.0:second ");
    EXPECT_EQ(Left({item}, Trusting({KEY_C, KEY_B})), "6.0:second ");
    EXPECT_EQ(Left({item}, Trusting({KEY_C})), "");
    item.signerKey.clear();
    EXPECT_EQ(Left({item}, Trusting({KEY_C})), "6.0:plain ") << "nobody says whose it is: the download will show it";
    item.signerKey = QStringLiteral("a key");
    EXPECT_EQ(Left({item}, Trusting({KEY_C})), "6.0:plain ") << "no id says nothing";
    item.edSignature.clear();
    item.signerKey = KEY_A;
    EXPECT_EQ(Left({item}, Trusting({KEY_A})), "") << "there is no signature of that key";
    item.signatures.clear();
    EXPECT_EQ(Left({item}, Trusting({KEY_A})), "6.0: ") << "without any signature it is refused by its own name";
}

TEST(KeyPaths, DeltaOfAnotherKeyIsLeftOutAlone)
{
    FeedItem item = Keyed("6.0", KEY_A, {});
    item.signatures = {{KEY_B, QStringLiteral("second")}};
    FeedItem delta = Keyed("6.0", KEY_A, {});
    delta.isDelta = true;
    item.deltas = {delta};
    std::vector<FeedItem> items{item};
    Engine::LeaveOut(items, Trusting({KEY_B}), OrderOf);
    ASSERT_EQ(items.size(), 1u);
    EXPECT_TRUE(items[0].deltas.empty());
    items = {item};
    Engine::LeaveOut(items, Trusting({KEY_A}), OrderOf);
    EXPECT_EQ(items[0].deltas.size(), 1u);
}

TEST(KeyPaths, AVersionThatBringsTheKeyComesFirst)
{
    FeedItem const bridge = Keyed("5.5", KEY_A, {KEY_A, KEY_B});
    FeedItem const next = Keyed("6.0", KEY_B, {KEY_B});
    EXPECT_EQ(Left({bridge, next}, Trusting({KEY_A})), "5.5:plain ");
    EXPECT_EQ(Verdict({bridge, next}, Trusting({KEY_A})), "needs-another-version-first");
    EXPECT_EQ(Left({bridge, next}, Trusting({KEY_A, KEY_B}, "5.5")), "5.5:plain 6.0:plain ");
    EXPECT_EQ(Verdict({next}, Trusting({KEY_A})), "key-not-trusted");
    EXPECT_EQ(Verdict({Keyed("7.0", KEY_A, {KEY_A, KEY_B}), next}, Trusting({KEY_A})), "key-not-trusted")
        << "the other one is newer";
    EXPECT_EQ(Verdict({Keyed("4.0", KEY_A, {KEY_A, KEY_B}), next}, Trusting({KEY_A})), "key-not-trusted")
        << "the other one is older than what runs";
    FeedItem withdrawn = bridge;
    withdrawn.policy.isWithdrawn = true;
    EXPECT_EQ(Verdict({withdrawn, next}, Trusting({KEY_A})), "key-not-trusted");
    FeedItem informational = next;
    informational.policy.isInformational = true;
    EXPECT_EQ(Verdict({informational}, Trusting({KEY_A})), "informational") << "nothing of it is verified";
}

TEST(KeyPaths, SeveralVersionsMayBringOneKeyAfterTheOther)
{
    std::vector<FeedItem> items{Keyed("7.0", KEY_C, {KEY_C}), Keyed("6.0", KEY_B, {KEY_B, KEY_C}),
                                Keyed("5.5", KEY_A, {KEY_A, KEY_B}), Keyed("8.0", KEY_C, {KEY_C})};
    EXPECT_EQ(Verdict(items, Trusting({KEY_A})), "needs-another-version-first");
    items.erase(items.begin() + 1);
    EXPECT_EQ(Verdict(items, Trusting({KEY_A})), "key-not-trusted");
}

TEST(KeyPaths, AVersionThatIsJumpedOverBringsNoKey)
{
    std::vector<FeedItem> const items{Keyed("5.5", KEY_A, {KEY_B}), Keyed("5.6", KEY_A, {KEY_A}),
                                      Keyed("6.0", KEY_B, {KEY_B})};
    EXPECT_EQ(Verdict(items, Trusting({KEY_A})), "key-not-trusted") << "the client takes 5.6";
}

TEST(KeyPaths, SearchIsBounded)
{
    auto const key = [](int i) { return QStringLiteral("%1").arg(i, 16, 16, QLatin1Char('0')); };
    std::vector<FeedItem> items;
    for (int i = 1; i < 40; ++i)
    {
        items.push_back(Keyed("", key(i), {key(i + 1)}));
        items.back().versionString = QString::number(5 + 0.01 * i);
    }
    std::vector<Engine::KeyedVersion> const stones = Engine::SteppingStonesOf(items, Trusting({key(1)}), OrderOf);
    ASSERT_EQ(stones.size(), Engine::MOST_STEPPING_STONES);
    EXPECT_EQ(stones.back().version.toStdString(), "5.16");
}

} // namespace Pelnar::Testing
