// FeedSourceTest.cpp: a feed from a path, an address and standard input.

#include "Publisher/FeedSource.h"
#include "Publisher/Refusal.h"
#include "tests/support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

class FeedSource : public ::testing::Test
{
protected:
    FeedBytes Read(QString const& name, QString const& publishedAt = {})
    {
        return ReadFeed(name, publishedAt, Console{m_in, {m_out}, {m_out}});
    }
    std::string ReadBad(QString const& name, QString const& publishedAt = {})
    {
        try
        {
            static_cast<void>(Read(name, publishedAt));
        }
        catch (Refusal const& refusal)
        {
            return refusal.what();
        }
        return "no problem";
    }
    QString Write(QByteArray const& bytes)
    {
        QFile file(m_folder.filePath(QStringLiteral("appcast.xml")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    std::istringstream m_in;

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    QTemporaryDir m_folder;
    std::ostringstream m_out;
};

} // namespace

TEST_F(FeedSource, APathIsItsOwnAddress)
{
    QString const path = Write("<rss/>");
    FeedBytes const feed = Read(path);
    EXPECT_EQ(feed.bytes.toStdString(), "<rss/>");
    EXPECT_EQ(feed.name.toStdString(), path.toStdString());
    EXPECT_EQ(feed.address.toString().toStdString(), "file://" + path.toStdString());
}

TEST_F(FeedSource, ADashIsStandardInput)
{
    m_in.str("<rss/>");
    FeedBytes const feed = Read(QStringLiteral("-"));
    EXPECT_EQ(feed.bytes.toStdString(), "<rss/>");
    EXPECT_EQ(feed.name.toStdString(), "<stdin>");
    EXPECT_EQ(feed.address.toString().toStdString(), "file://" + QDir::currentPath().toStdString() + "/");
}

TEST_F(FeedSource, AnAddressIsFetched)
{
    Testing::LoopbackServer server(Testing::Answering(Testing::OkAnswer("<rss/>")));
    FeedBytes const feed = Read(server.Url().toString());
    EXPECT_EQ(feed.bytes.toStdString(), "<rss/>");
    EXPECT_EQ(feed.address, server.Url());
}

TEST_F(FeedSource, AFeedMayBeReadBeforeItIsPublished)
{
    FeedBytes const feed = Read(Write("<rss/>"), QStringLiteral("https://updates.example.com/app/appcast.xml"));
    EXPECT_EQ(feed.address.toString().toStdString(), "https://updates.example.com/app/appcast.xml");
}

TEST_F(FeedSource, WhatAClientWouldNotFetchIsRefused)
{
    m_in.str(std::string(4 * 1024 * 1024 + 1, ' '));
    EXPECT_NE(ReadBad(QStringLiteral("-")).find("<stdin>: the feed is larger"), std::string::npos);
    EXPECT_EQ(ReadBad(QStringLiteral("/nowhere/appcast.xml")).find("/nowhere/appcast.xml: "), 0u);
    EXPECT_EQ(ReadBad(Write("<rss/>"), QStringLiteral("appcast.xml")).find("--published-at: \"appcast.xml\""), 0u);
}

TEST_F(FeedSource, FolderThatMayNotBeEnteredDoesNotMakeTheFeedMissing)
{
    constexpr unsigned NOBODY = 65534;
    QString const path = Write("<rss/>");
    QByteArray const folder = QFile::encodeName(QFileInfo(path).path());
    ASSERT_EQ(::chmod(folder.constData(), 0), 0);
    // The administrator may enter every folder, so the run uses another user.
    bool const isAdministrator = ::geteuid() == 0;
    ASSERT_TRUE(!isAdministrator || ::seteuid(NOBODY) == 0);
    std::string const told = ReadBad(path);
    ASSERT_TRUE(!isAdministrator || ::seteuid(0) == 0);
    ASSERT_EQ(::chmod(folder.constData(), 0700), 0);
    EXPECT_EQ(told,
              path.toStdString() + ": cannot be read: Permission denied; check the name and the file's permissions");
}

TEST_F(FeedSource, MissingFeedSaysWhatToDo)
{
    Testing::LoopbackServer gone(Testing::Answering("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"));
    EXPECT_NE(ReadBad(gone.Url().toString())
                  .find(": the server answered with status 404; check the address, and upload the feed there"),
              std::string::npos);
    Testing::LoopbackServer closed(Testing::Answering("HTTP/1.1 403 Forbidden\r\nContent-Length: 0\r\n\r\n"));
    EXPECT_NE(ReadBad(closed.Url().toString()).find("status 403; let everybody read the feed"), std::string::npos);
}

} // namespace Pelnar::Publisher
