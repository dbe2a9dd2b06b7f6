// ReleaseRulesTest.cpp: for which installations an item is meant: the text of the feed, the verdict, and its name.

#include "tests/engine_core/PolicyFixture.h"

#include <gtest/gtest.h>

namespace Pelnar::Testing
{
namespace
{

using Engine::FeedItem;
using Engine::Installation;
using Engine::PolicyVerdict;

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

TEST(ReleaseRules, OfSeveralEnclosuresTheFirstForTheMachineIsTaken)
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

TEST(ReleaseRules, GroupIsAskedForTheVersionOfTheItem)
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

TEST(ReleaseRules, ItemWithoutADateIsNotStaged)
{
    FeedItem item = ItemWith(DAILY);
    item.dateString = QStringLiteral("soon");
    EXPECT_EQ(Engine::JudgePolicy(item, InGroup(6, "2030-01-07T10:00:00Z"), OrderOf), PolicyVerdict::Plain);
}

TEST(ReleaseRules, WhatIsLeftOutGoesWithItsDeltas)
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

TEST(ReleaseRules, CriticalIsSettledForTheInstalledVersion)
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

TEST(ReleaseRules, FeedWithoutItIsTheSameAndAsksForNoOrder)
{
    std::vector<FeedItem> items{ItemWith("<sparkle:criticalUpdate/>"), ItemWith("")};
    Engine::LeaveOut(items, Client(),
                     [](QString const&, QString const&) -> int { throw std::logic_error("nobody compares"); });
    EXPECT_EQ(items.size(), 2u);
}

TEST(ReleaseRules, LineOfAVersionIsItsFirstTwoNumbers)
{
    EXPECT_EQ(Engine::VersionLine(QStringLiteral("5.10.3")).toStdString(), "5.10");
    EXPECT_EQ(Engine::VersionLine(QStringLiteral("5.10")).toStdString(), "5.10");
    EXPECT_EQ(Engine::VersionLine(QStringLiteral("5")).toStdString(), "5");
}

TEST(ReleaseRules, ReasonSaysWhatTheItemAsksForAndWhatIsThere)
{
    struct
    {
        char const* elements;
        char const* attributes;
        char const* reason;
    } const ROWS[] = {
        {"<pelnar:withdrawn/>", "", "the publisher has withdrawn it"},
        {"", "pelnar:machine='aarch64 riscv64'", "it is for aarch64, riscv64, this is x86_64"},
        {"<sparkle:hardwareRequirements>arm64</sparkle:hardwareRequirements>", "pelnar:machine='x86_64'",
         "it is for arm64, this is x86_64"},
        {BETA, "", "channel beta, listed: none"},
        {"<pelnar:keys signer='bbbbbbbbbbbbbbbb' trusted=''/>", "sparkle:edSignature='plain'",
         "signed by the key bbbbbbbbbbbbbbbb, trusted: aaaaaaaaaaaaaaaa"},
        {"<sparkle:minimumUpdateVersion>5.1</sparkle:minimumUpdateVersion>", "",
         "installed 5.0 < 5.1, from which it can be updated"},
        {"<sparkle:informationalUpdate/>", "", "a link is shown, and nothing is downloaded"},
        {"", "", ""},
    };
    Installation here = Client();
    here.trustedKeys = QStringList(QStringLiteral("aaaaaaaaaaaaaaaa"));
    for (auto const& row : ROWS)
    {
        FeedItem const item = ItemWith(row.elements, row.attributes);
        EXPECT_EQ(Engine::ReasonOf(Engine::JudgePolicy(item, here, OrderOf), item, here).toStdString(), row.reason);
    }
    FeedItem const beta = ItemWith(BETA);
    EXPECT_EQ(Engine::ReasonOf(PolicyVerdict::OtherChannel, beta,
                               Client("5.0", "x86_64", {QStringLiteral("alpha"), QStringLiteral("nightly")}))
                  .toStdString(),
              "channel beta, listed: alpha, nightly");
}

TEST(ReleaseRules, WhatIsToBeAskedIsSettledForTheInstalledVersion)
{
    auto const settled = [](char const* elements, char const* version = "5.0")
    {
        std::vector<FeedItem> items{ItemWith(elements)};
        Engine::LeaveOut(items, Client(version), OrderOf);
        Engine::ItemPolicy const policy = items.empty() ? Engine::ItemPolicy() : items.front().policy;
        return std::string(policy.isInformational ? "page " : "") + (policy.isToBeAsked ? "ask" : "");
    };
    EXPECT_EQ(settled(""), "");
    EXPECT_EQ(settled("<sparkle:informationalUpdate/>"), "page ask");
    char const* const below = "<sparkle:informationalUpdate><sparkle:belowVersion>5.0</sparkle:belowVersion>"
                              "</sparkle:informationalUpdate>";
    EXPECT_EQ(settled(below), "");
    EXPECT_EQ(settled(below, "4.9"), "page ask");
    EXPECT_EQ(settled(below, ""), "") << "the installed version is not known";
    char const* const automatic = "<sparkle:minimumAutoupdateVersion>5.1</sparkle:minimumAutoupdateVersion>";
    EXPECT_EQ(settled(automatic), "ask");
    EXPECT_EQ(settled(automatic, "5.1"), "");
    EXPECT_EQ(settled(automatic, ""), "");
}

TEST(ReleaseRules, ChannelHasANameThatAListCanHold)
{
    for (char const* const name : {"beta", "b", "release-candidate_2", "\xC3\xA9t\xC3\xA9"})
    {
        EXPECT_TRUE(Engine::IsChannelName(QString::fromUtf8(name))) << name;
    }
    for (char const* const name : {"", " ", "two words", "a,b", "tab\t", "line\n", "bell\a"})
    {
        EXPECT_FALSE(Engine::IsChannelName(QString::fromUtf8(name))) << name;
    }
}

} // namespace Pelnar::Testing
