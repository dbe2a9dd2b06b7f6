// GenerateMachinesTest.cpp: the verb "generate" with programs for several machines.

#include "Engine/core/delta/DeltaContainer.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <elf.h>

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <set>

namespace Pelnar::Testing
{
namespace
{

using Engine::FeedPlatform;

std::string Text(QString const& text)
{
    return text.toStdString();
}

TEST(Generate, ItemSaysTheMachineOfItsProgramAndTwoMachinesShareAFeed)
{
    PublisherFolder const first;
    PublisherFolder const second;
    BundleText text;
    text.version = "2.0";
    text.program = ElfProgram(EM_X86_64);
    first.PutBundle(text);
    EXPECT_EQ(first.Generate({QStringLiteral("--machine"), QStringLiteral("x86_64")}).status, 0);
    text.program = ElfProgram(EM_AARCH64);
    second.Put("Test-2.0-aarch64.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    ToolRun const run = second.Generate({QStringLiteral("--machine"), QStringLiteral("aarch64"),
                                         QStringLiteral("--output"), first.PathOf("appcast.xml")});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    std::vector<Engine::FeedItem> const items = first.Items();
    ASSERT_EQ(items.size(), 2u) << first.ContentOf("appcast.xml");
    QStringList const machines = items[0].policy.machines + items[1].policy.machines;
    EXPECT_TRUE(machines.contains(QStringLiteral("x86_64"))) << machines.join(QLatin1Char(' ')).toStdString();
    EXPECT_TRUE(machines.contains(QStringLiteral("aarch64"))) << machines.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(machines.size(), 2);
    std::string const feed = first.ContentOf("appcast.xml");
    EXPECT_EQ(first.Generate({QStringLiteral("--machine"), QStringLiteral("x86_64")}).status, 0);
    EXPECT_EQ(first.ContentOf("appcast.xml"), feed) << "running it again changes nothing";
}

/// A bundle of that version with a program for \a machine, in an archive of its own.
void PutFor(PublisherFolder const& folder, std::string const& version, std::uint16_t machine)
{
    BundleText text;
    text.version = version;
    text.program = ElfProgram(machine);
    folder.Put("Test-" + version + (machine == EM_X86_64 ? "-x86_64.zip" : "-aarch64.zip"),
               MakeArchive(Container::Zip, MakePublishedBundle(text)));
}

TEST(Generate, TwoMachinesShareAFolder)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "2.0"})
    {
        PutFor(folder, version, EM_X86_64);
        PutFor(folder, version, EM_AARCH64);
    }
    std::string const feed = folder.GeneratedFeed();
    std::vector<Engine::FeedItem> items = folder.Items();
    ASSERT_EQ(items.size(), 4u) << feed;
    std::set<std::string> found;
    for (Engine::FeedItem const& item : items)
    {
        found.insert(Text(item.versionString) + ' ' + Text(item.policy.machines.join(QLatin1Char('+'))) + ' ' +
                     Text(item.fileUrl.fileName()));
        for (Engine::FeedItem const& delta : item.deltas)
        {
            found.insert("from " + Text(delta.deltaFrom) + ' ' + Text(delta.fileUrl.fileName()));
        }
    }
    EXPECT_EQ(found,
              (std::set<std::string>{"1.0 x86_64 Test-1.0-x86_64.zip", "1.0 aarch64 Test-1.0-aarch64.zip",
                                     "2.0 x86_64 Test-2.0-x86_64.zip", "2.0 aarch64 Test-2.0-aarch64.zip",
                                     "from 1.0 Test-1.0-2.0-x86_64.delta", "from 1.0 Test-1.0-2.0-aarch64.delta"}));
    EXPECT_EQ(folder.GeneratedFeed(), feed) << "running it again changes nothing";
    ToolRun const check = RunAppcastProgram({QStringLiteral("check-release"), QString::fromStdString(folder.Path())});
    EXPECT_EQ(check.status, 0) << check.err;
    EXPECT_NE(check.out.find("Test-2.0-aarch64.zip: version 2.0"), std::string::npos) << check.out;
    EXPECT_NE(check.out.find("Test-2.0-x86_64.zip: version 2.0"), std::string::npos) << check.out;
}

TEST(Generate, SecondMachineMayComeLaterAndTwiceOneMachineIsRefused)
{
    PublisherFolder const folder;
    bool const isThis = Engine::OwnMachineName() == QLatin1String("x86_64");
    PutFor(folder, "1.0", isThis ? EM_X86_64 : EM_AARCH64);
    folder.GeneratedFeed();
    PutFor(folder, "1.0", isThis ? EM_AARCH64 : EM_X86_64);
    folder.GeneratedFeed();
    EXPECT_EQ(folder.Items().size(), 2u);
    BundleText text;
    text.version = "1.0";
    text.program = ElfProgram(EM_AARCH64) + "another";
    folder.Put("again.zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("again.zip: has the version 1.0, which is already published as "), std::string::npos)
        << run.err;
}

TEST(Generate, ScriptIsForEveryMachine)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    EXPECT_EQ(folder.GeneratedFeed().find("machine"), std::string::npos);
}

TEST(Generate, GivenDeltaIsOfTheMachineThatItMakes)
{
    PublisherFolder const folder;
    for (char const* const version : {"1.0", "2.0"})
    {
        PutFor(folder, version, EM_X86_64);
        PutFor(folder, version, EM_AARCH64);
    }
    ASSERT_EQ(MakeGivenDelta(folder, "Test-1.0-x86_64.zip", "Test-2.0-x86_64.zip").status, 0);
    folder.GeneratedFeed({QStringLiteral("--deltas"), QStringLiteral("0")});
    for (Engine::FeedItem const& item : folder.Items())
    {
        bool const isOf =
            item.versionString == QLatin1String("2.0") && item.policy.machines.contains(QStringLiteral("x86_64"));
        EXPECT_EQ(item.deltas.size(), isOf ? 1u : 0u) << item.fileUrl.toString().toStdString();
    }
}

} // namespace
} // namespace Pelnar::Testing
