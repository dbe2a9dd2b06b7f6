// SignedGenerateTest.cpp: the verb "generate" for signed feeds.

#include "Engine/core/check/FeedTrust.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>

namespace Pelnar::Testing
{
namespace
{

QStringList const SIGNING{QStringLiteral("--sign-feed")};

bool IsBelieved(std::string const& feed)
{
    return Engine::VerifyFeed(QByteArray::fromStdString(feed), {MakeKeyPair(7).publicKey}).has_value();
}

qint64 SerialOf(std::string const& feed)
{
    Engine::FeedParseResult const parsed =
        Engine::ParseFeed(QByteArray::fromStdString(feed), QUrl(), Engine::FeedPlatform::Linux);
    auto const said = Engine::ReadFeedValidity(parsed.value().channel);
    EXPECT_TRUE(said) << feed;
    return said ? said->serial : 0;
}

TEST(SignedGenerate, FeedIsSignedWhenAsked)
{
    PublisherFolder const folder;
    folder.PutVersion("5.0");
    EXPECT_FALSE(IsBelieved(folder.GeneratedFeed()));
    ToolRun const run = folder.Generate(SIGNING);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("appcast.xml: signed with serial "), std::string::npos) << run.out;
    std::string const feed = folder.ContentOf("appcast.xml");
    EXPECT_TRUE(IsBelieved(feed));
    EXPECT_GT(SerialOf(feed), 0);
    EXPECT_EQ(folder.Items().size(), 1u);
}

TEST(SignedGenerate, RunAgainChangesNothing)
{
    PublisherFolder const folder;
    folder.PutVersion("5.0");
    std::string const feed = folder.GeneratedFeed(SIGNING);
    EXPECT_TRUE(IsBelieved(feed));
    EXPECT_EQ(folder.GeneratedFeed(SIGNING), feed);
    EXPECT_EQ(folder.GeneratedFeed(), feed);
}

TEST(SignedGenerate, SignedFeedStaysSignedWhenItGrows)
{
    PublisherFolder const folder;
    folder.PutVersion("5.0");
    std::string const before = folder.GeneratedFeed(SIGNING);
    folder.PutVersion("5.1", 2);
    std::string const after = folder.GeneratedFeed();
    EXPECT_TRUE(IsBelieved(after)) << after;
    EXPECT_GT(SerialOf(after), SerialOf(before));
    EXPECT_EQ(folder.Items().size(), 2u);
}

TEST(SignedGenerate, FirstSignatureIsComparedWithTheItemsBeforeThisRun)
{
    for (int const days : {300, 400})
    {
        PublisherFolder const folder;
        qint64 const now = QDateTime::currentSecsSinceEpoch();
        qputenv("SOURCE_DATE_EPOCH", QByteArray::number(now - qint64(days) * 86400));
        folder.PutVersion("5.0");
        folder.GeneratedFeed();
        qputenv("SOURCE_DATE_EPOCH", QByteArray::number(now));
        folder.PutVersion("5.1", 2);
        ToolRun const run = folder.Generate(SIGNING);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.err.find("appcast.xml: has no item between ") != std::string::npos, days == 400) << run.err;
    }
}

TEST(SignedGenerate, FeedThatWasChangedSinceIsNotAddedTo)
{
    PublisherFolder const folder;
    folder.PutVersion("5.0");
    std::string feed = folder.GeneratedFeed(SIGNING);
    feed.replace(feed.find("<title>"), 7, "<title>Evil ");
    folder.Put("appcast.xml", feed);
    folder.PutVersion("5.1", 2);
    ToolRun const run = folder.Generate(SIGNING);
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("sign-feed --accept-changes"), std::string::npos) << run.err;
    EXPECT_EQ(folder.ContentOf("appcast.xml"), feed);
}

} // namespace
} // namespace Pelnar::Testing
