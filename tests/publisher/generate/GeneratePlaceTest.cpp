// GeneratePlaceTest.cpp: where and when "generate" runs: the place of the feed, and the date.

#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <QDateTime>

#include <filesystem>

#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

TEST(Generate, FeedMayBeALink)
{
    PublisherFolder const folder;
    Workspace const site;
    std::string const target = site.Path() + "/feed.xml";
    folder.PutVersion("1.0");
    ASSERT_EQ(::symlink(target.c_str(), (folder.Path() + "/appcast.xml").c_str()), 0);
    ToolRun const run = folder.Generate();
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("appcast.xml: is a link that leads nowhere; remove the link"), std::string::npos) << run.err;
    folder.Remove("appcast.xml");
    WriteFile(target, folder.GeneratedFeed());
    folder.Remove("appcast.xml");
    ASSERT_EQ(::symlink(target.c_str(), (folder.Path() + "/appcast.xml").c_str()), 0);
    folder.PutVersion("2.0");
    folder.GeneratedFeed();
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() + "/appcast.xml"));
    EXPECT_EQ(folder.Items().size(), 2u);
    ASSERT_EQ(RunTool({QStringLiteral("withdraw"), folder.PathOf("appcast.xml"), QStringLiteral("2.0")}).status, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() + "/appcast.xml"));
}

TEST(Generate, DateInTheFutureIsRefused)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    QByteArray const before = qgetenv("SOURCE_DATE_EPOCH");
    for (qint64 const seconds : {QDateTime::currentSecsSinceEpoch() + 90000, qint64(253402300799)})
    {
        qputenv("SOURCE_DATE_EPOCH", QByteArray::number(seconds));
        ToolRun const run = folder.Generate();
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find("SOURCE_DATE_EPOCH is "), std::string::npos) << run.err;
        EXPECT_NE(run.err.find(", which is in the future; "), std::string::npos) << run.err;
    }
    qputenv("SOURCE_DATE_EPOCH", before);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"Test-1.0.zip"});
}

} // namespace
} // namespace Pelnar::Testing
