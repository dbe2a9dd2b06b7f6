// LintFetchTest.cpp: the files on the server compared with the feed: size, reachability, signature.

#include "tests/publisher/generate/PublisherFolder.h"
#include "tests/support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sodium.h>

namespace Pelnar::Testing
{
namespace
{

QByteArray const ARCHIVE = "the bytes of an archive";

struct SigningKey
{
    SigningKey()
    {
        EXPECT_GE(sodium_init(), 0);
        crypto_sign_keypair(publicBytes, secretBytes);
    }
    QString PublicKey() const
    {
        return QString::fromLatin1(
            QByteArray(reinterpret_cast<char const*>(publicBytes), sizeof publicBytes).toBase64());
    }
    QByteArray Sign(QByteArray const& bytes) const
    {
        unsigned char signature[crypto_sign_BYTES];
        crypto_sign_detached(signature, nullptr, reinterpret_cast<unsigned char const*>(bytes.constData()),
                             static_cast<unsigned long long>(bytes.size()), secretBytes);
        return QByteArray(reinterpret_cast<char const*>(signature), sizeof signature).toBase64();
    }

    unsigned char publicBytes[crypto_sign_PUBLICKEYBYTES];
    unsigned char secretBytes[crypto_sign_SECRETKEYBYTES];
};

class LintFetch : public ::testing::Test
{
protected:
    QByteArray Feed(QByteArray const& url, int length, QByteArray const& signature)
    {
        return "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel>\n<item><enclosure "
               "url='" +
               url + "' length='" + QByteArray::number(length) + "' sparkle:version='5.1' sparkle:edSignature='" +
               signature + "'/></item></channel></rss>";
    }
    ToolRun Lint(QByteArray const& feed)
    {
        return RunTool({QStringLiteral("lint"), QStringLiteral("-"), QStringLiteral("--fetch"),
                        QStringLiteral("--published-at"), QStringLiteral("http://127.0.0.1/appcast.xml"),
                        QStringLiteral("--public-key"), m_key.PublicKey()},
                       feed);
    }

    SigningKey const m_key;

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
};

} // namespace

TEST_F(LintFetch, AnArchiveAsTheFeedSaysIsClean)
{
    LoopbackServer server(Answering(OkAnswer(ARCHIVE)));
    ToolRun const run = Lint(Feed(server.Url().toEncoded(), ARCHIVE.size(), m_key.Sign(ARCHIVE)));
    EXPECT_EQ(run.out, "<stdin>: clean\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(server.Requests().size(), 1u); // for both platforms together
}

TEST_F(LintFetch, AnotherSizeIsAFinding)
{
    LoopbackServer server(Answering(OkAnswer(ARCHIVE + "!")));
    ToolRun const run = Lint(Feed(server.Url().toEncoded(), ARCHIVE.size(), m_key.Sign(ARCHIVE)));
    EXPECT_EQ(run.out.find("<stdin>:2:7: error: archive-length: "), 0u) << run.out;
    EXPECT_EQ(run.status, 1);
}

TEST_F(LintFetch, AMissingFileIsAFinding)
{
    LoopbackServer server(Answering("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"));
    ToolRun const run = Lint(Feed(server.Url().toEncoded(), ARCHIVE.size(), m_key.Sign(ARCHIVE)));
    EXPECT_EQ(run.out.find("<stdin>:2:7: error: archive-unreachable: "), 0u) << run.out;
    EXPECT_EQ(run.status, 1);
}

TEST_F(LintFetch, TheSignatureOfOtherBytesIsAFinding)
{
    LoopbackServer server(Answering(OkAnswer(ARCHIVE)));
    ToolRun const run = Lint(Feed(server.Url().toEncoded(), ARCHIVE.size(), m_key.Sign("other bytes")));
    EXPECT_EQ(run.out.find("<stdin>:2:7: error: archive-signature: "), 0u) << run.out;
    EXPECT_EQ(run.status, 1);
}

TEST_F(LintFetch, NotesThatAreGoneAreAFinding)
{
    LoopbackServer gone(Answering("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"));
    LoopbackServer there(Answering(OkAnswer("<html>notes</html>")));
    LoopbackServer server(Answering(OkAnswer(ARCHIVE)));
    QByteArray const feed = Feed(server.Url().toEncoded(), ARCHIVE.size(), m_key.Sign(ARCHIVE));
    auto const withNotes = [&](QUrl const& address)
    {
        return QByteArray(feed).replace("<item>", "<item><sparkle:releaseNotesLink>" + address.toEncoded() +
                                                      "</sparkle:releaseNotesLink>");
    };
    EXPECT_NE(Lint(withNotes(gone.Url())).out.find("notes-unreachable: http://127.0.0.1:"), std::string::npos);
    EXPECT_EQ(Lint(withNotes(there.Url())).out.find("notes-unreachable"), std::string::npos);
}

TEST_F(LintFetch, AnotherVersionInsideIsAFinding)
{
    BundleText text;
    text.version = "5.0";
    QByteArray const archive = QByteArray::fromStdString(MakeArchive(Container::Zip, MakePublishedBundle(text)));
    LoopbackServer server(Answering(OkAnswer(archive)));
    ToolRun const run = Lint(Feed(server.Url().toEncoded(), archive.size(), m_key.Sign(archive)));
    EXPECT_NE(run.out.find("archive-version: "), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("contains version 5.0, but the feed says 5.1"), std::string::npos) << run.out;
}

TEST_F(LintFetch, AFeedBesideItsFilesIsCheckedBeforeItIsPublished)
{
    QTemporaryDir folder;
    QFile archive(folder.filePath(QStringLiteral("a.zip")));
    ASSERT_TRUE(archive.open(QIODevice::WriteOnly));
    archive.write(ARCHIVE);
    archive.close();
    QFile feed(folder.filePath(QStringLiteral("appcast.xml")));
    auto const lint = [&](QByteArray const& text)
    {
        EXPECT_TRUE(feed.open(QIODevice::WriteOnly | QIODevice::Truncate));
        feed.write(text);
        feed.close();
        return RunTool({QStringLiteral("lint"), feed.fileName(), QStringLiteral("--fetch"),
                        QStringLiteral("--public-key"), m_key.PublicKey()});
    };
    EXPECT_EQ(lint(Feed("a.zip", ARCHIVE.size(), m_key.Sign(ARCHIVE))).status, 0);
    EXPECT_NE(lint(Feed("a.zip", ARCHIVE.size() + 1, m_key.Sign(ARCHIVE))).out.find(" archive-length: "),
              std::string::npos);
    EXPECT_NE(lint(Feed("b.zip", ARCHIVE.size(), m_key.Sign(ARCHIVE))).out.find(" archive-unreachable: "),
              std::string::npos);
    EXPECT_NE(lint(Feed("a.zip", ARCHIVE.size(), m_key.Sign("x"))).out.find(" archive-signature: "), std::string::npos);
}

} // namespace Pelnar::Testing
