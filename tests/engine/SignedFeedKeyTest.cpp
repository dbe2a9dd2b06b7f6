// SignedFeedKeyTest.cpp: the entries of a bundle's information file that require a signed feed. A real host application
// runs in bundles of its own with an unsigned feed.
#include "tests/engine/FeedText.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <filesystem>
#include <ostream>

namespace
{

using namespace Pelnar::Testing;

struct Entry
{
    char const* name;
    char const* text;
    bool requiresSignature;
};

std::ostream& operator<<(std::ostream& out, Entry const& row)
{
    return out << row.name;
}

class SignedFeedKey : public testing::TestWithParam<Entry>
{
protected:
    /// What a background check says in a bundle with \a entry.
    std::string EventsWith(std::string const& entry)
    {
        std::string const bundle = folder.Path() + "/Host.app";
        std::filesystem::create_directories(bundle + "/Resources");
        std::filesystem::copy_file(PELNAR_START_HOST, bundle + "/Host");
        WriteFile(bundle + "/Resources/Info-gnustep.plist",
                  "{ CFBundleVersion = \"1.0\"; NSExecutable = Host; " + entry + " }");
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QString::fromStdString(bundle + "/Host"),
                      {server.Url().toString(), QStringLiteral("background")});
        EXPECT_TRUE(WaitFor([&process] { return process.state() == QProcess::NotRunning; }));
        return process.readAllStandardOutput().toStdString();
    }

    TestApplication<> application;
    Workspace folder;
    LoopbackServer server{Answering(OkAnswer(FeedWith(ItemOf("2.0"))))};
};

INSTANTIATE_TEST_SUITE_P(Entries, SignedFeedKey,
                         testing::Values(Entry{"Absent", "", false},
                                         Entry{"No", "PelnarRequiresSignedFeed = NO;", false},
                                         Entry{"False", "PelnarRequiresSignedFeed = false;", false},
                                         Entry{"Zero", "PelnarRequiresSignedFeed = \"0\";", false},
                                         Entry{"BooleanNo", "PelnarRequiresSignedFeed = <*BN>;", false},
                                         Entry{"Yes", "PelnarRequiresSignedFeed = YES;", true},
                                         Entry{"True", "PelnarRequiresSignedFeed = true;", true},
                                         Entry{"BooleanYes", "PelnarRequiresSignedFeed = <*BY>;", true},
                                         Entry{"Misspelt", "PelnarRequiresSignedFeed = JES;", true},
                                         Entry{"Empty", "PelnarRequiresSignedFeed = \"\";", true},
                                         Entry{"List", "PelnarRequiresSignedFeed = (NO);", true},
                                         Entry{"Dictionary", "PelnarRequiresSignedFeed = { a = NO; };", true}),
                         [](auto const& row) { return std::string(row.param.name); });

TEST_P(SignedFeedKey, AsksForASignatureUnlessItIsAPlainNo)
{
    // Without a signing key a found update ends with the code of signatures as well.
    EXPECT_EQ(EventsWith(GetParam().text),
              GetParam().requiresSignature ? "aborted 3001;" : "asked;found 2.0;aborted 3001;");
}

class UnusableRootKey : public SignedFeedKey
{
};

INSTANTIATE_TEST_SUITE_P(Entries, UnusableRootKey,
                         testing::Values(Entry{"Empty", "PelnarRootPublicEDKey = \"\";", true},
                                         Entry{"List", "PelnarRootPublicEDKey = (a);", true},
                                         Entry{"NoKey", "PelnarRootPublicEDKey = a;", true}),
                         [](auto const& row) { return std::string(row.param.name); });

TEST_P(UnusableRootKey, IsNotTreatedAsAbsent)
{
    EXPECT_EQ(EventsWith(GetParam().text), "aborted 3002;");
}

} // namespace
