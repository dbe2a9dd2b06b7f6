// RotateTest.cpp: "keys state" and "keys rotate", and the statement in a signed feed.

#include "Engine/core/check/KeyStatement.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

std::string KeyOf(std::uint8_t seed)
{
    return MakeKeyPair(seed).publicKey;
}

QString Text(std::string const& text)
{
    return QString::fromStdString(text);
}

/// Feeds are read in an event loop.
class KeyChange : public ::testing::Test
{
protected:
    QString PathOf(std::string const& name) const { return Text(m_folder.Path() + '/' + name); }

    QString Put(std::string const& name, std::string const& bytes) const
    {
        WriteFile(m_folder.Path() + '/' + name, bytes);
        EXPECT_EQ(::chmod((m_folder.Path() + '/' + name).c_str(), 0600), 0);
        return PathOf(name);
    }

    QByteArray ContentOf(std::string const& name) const
    {
        QFile file(PathOf(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QString PutKey(std::string const& name, char seed) const { return Put(name, Base64(std::string(32, seed)) + '\n'); }

    ToolRun State(QStringList const& more, char const* serial = "4") const
    {
        return RunTool(QStringList{QStringLiteral("keys"), QStringLiteral("state"), QStringLiteral("--root-key"),
                                   PutKey("root", 42), QStringLiteral("--serial"), QLatin1String(serial),
                                   QStringLiteral("--bundle"), QStringLiteral("com.example.app")} +
                       more);
    }

    ToolRun SignFeed(char seed, std::string const& statement) const
    {
        return RunTool({QStringLiteral("sign-feed"), PathOf("appcast.xml"), QStringLiteral("--key"),
                        PutKey("key", seed), QStringLiteral("--key-statement"), Put("statement", statement),
                        QStringLiteral("--accept-changes")});
    }

    static std::string Item(std::string const& version, std::uint8_t signer, std::vector<std::uint8_t> const& trusted)
    {
        std::string ids;
        for (std::uint8_t const seed : trusted)
        {
            ids += (ids.empty() ? "" : " ") + Engine::KeyIdOf(KeyOf(seed));
        }
        return "<item><pelnar:keys signer='" + Engine::KeyIdOf(KeyOf(signer)) + "' trusted='" + ids +
               "'/><enclosure url='https://example.com/" + version + ".zip' length='1' sparkle:version='" + version +
               "' sparkle:edSignature='x'/></item>\n";
    }

    void PutFeed(std::string const& items) const
    {
        Put("appcast.xml", "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
                           "xmlns:pelnar='https://pelnar.example/xml-namespaces/appcast'><channel>\n" +
                               items + "</channel></rss>\n");
    }

    std::string Rotate() const
    {
        ToolRun const run = RunTool({QStringLiteral("keys"), QStringLiteral("rotate"), PathOf("appcast.xml"),
                                     QStringLiteral("--from"), Text(KeyOf(7)), QStringLiteral("--to"), Text(KeyOf(8)),
                                     QStringLiteral("--platform"), QStringLiteral("linux")});
        EXPECT_EQ(run.status, 0) << run.err;
        return run.out;
    }

private:
    int m_count = 1;
    char m_name[1] = {};
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication const m_application{m_count, m_arguments};
    Workspace m_folder;
};

int CauseOf(QByteArray const& feed)
{
    auto const believed =
        Engine::BelieveKeys(feed, {{KeyOf(7)}, KeyOf(42), "com.example.app", 0}, QDateTime::currentDateTimeUtc());
    return believed ? 0 : believed.error().UnderlyingCode();
}

} // namespace

TEST_F(KeyChange, StatementIsOneThatClientsBelieve)
{
    ToolRun const run = State({QStringLiteral("--valid"), Text(KeyOf(8)), QStringLiteral("--revoke"), Text(KeyOf(7))});
    EXPECT_EQ(run.status, 0) << run.err;
    QByteArray const feed = "<rss/>\n" + QByteArray::fromStdString(run.out);
    EXPECT_EQ(CauseOf(feed), 0);
    auto const found = Engine::FindKeyStatement(feed);
    ASSERT_TRUE(found);
    auto const statement = Engine::ParseKeyStatement(found->text);
    ASSERT_TRUE(statement);
    EXPECT_EQ(statement->serial, 4);
    EXPECT_EQ(statement->validKeys.Texts(), std::vector<std::string>{KeyOf(8)});
    EXPECT_EQ(statement->revoked, std::vector<std::string>{Engine::KeyIdOf(KeyOf(7))});
}

TEST_F(KeyChange, StatementThatClientsWouldNotTakeIsRefused)
{
    QStringList const valid{QStringLiteral("--valid"), Text(KeyOf(8))};
    EXPECT_EQ(State(valid, "0").status, 2);
    EXPECT_EQ(State({QStringLiteral("--valid"), QStringLiteral("garbage")}).status, 2);
    EXPECT_EQ(State(valid + valid).status, 2) << "twice";
    EXPECT_EQ(State(valid + QStringList{QStringLiteral("--revoke"), Text(KeyOf(8))}).status, 2);
    EXPECT_NE(State(valid + QStringList{QStringLiteral("--revoke"), QStringLiteral("x")}).err.find("neither a key nor"),
              std::string::npos);
    EXPECT_NE(State({QStringLiteral("--valid"), Text(KeyOf(42))}).err.find("names the root key itself"),
              std::string::npos);
}

TEST_F(KeyChange, StatementStandsInTheSignedFeedOnce)
{
    PutFeed(Item("5.9", 7, {7}));
    QByteArray const bare = ContentOf("appcast.xml");
    ToolRun run = SignFeed(7, State({QStringLiteral("--valid"), Text(KeyOf(7))}).out);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(CauseOf(ContentOf("appcast.xml")), 0);
    run = SignFeed(8, State({QStringLiteral("--valid"), Text(KeyOf(8))}, "5").out);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(CauseOf(ContentOf("appcast.xml")), 0);
    EXPECT_EQ(ContentOf("appcast.xml").count("pelnar-keys:"), 1);
    QByteArray const published = ContentOf("appcast.xml");
    EXPECT_NE(SignFeed(8, State({QStringLiteral("--valid"), Text(KeyOf(8))}, "3").out)
                  .err.find("has the serial 3, but the published one has "),
              std::string::npos);
    EXPECT_NE(
        SignFeed(7, State({QStringLiteral("--valid"), Text(KeyOf(8))}, "6").out).err.find("does not list the key"),
        std::string::npos);
    EXPECT_NE(SignFeed(8, "x\n").err.find("is not a key statement"), std::string::npos);
    EXPECT_EQ(ContentOf("appcast.xml"), published);
}

TEST_F(KeyChange, GuideSaysWhatComesNextAndWhoMustBeGone)
{
    PutFeed(Item("5.9", 7, {7}));
    EXPECT_NE(Rotate().find("1. now: publish a version that is signed with the old key"), std::string::npos)
        << Rotate();
    PutFeed(Item("5.10", 7, {7, 8}) + Item("5.9", 7, {7}));
    std::string text = Rotate();
    EXPECT_NE(text.find("1. done: "), std::string::npos) << text;
    EXPECT_NE(text.find("(5.10)\n"), std::string::npos) << text;
    EXPECT_NE(text.find("2. now: sign the next version with the new key"), std::string::npos) << text;
    EXPECT_NE(text.find("5.9 take 5.10 first, which stays in the feed"), std::string::npos) << text;
    PutFeed(Item("5.11", 8, {8}) + Item("5.10", 7, {7, 8}) + Item("5.9", 7, {7}));
    text = Rotate();
    EXPECT_NE(
        text.find("4. wait: destroy the old private key\n   these versions must be gone first, because they trust only "
                  "the old key: 5.9\n"),
        std::string::npos)
        << text;
    PutFeed(Item("5.11", 8, {8}) + Item("5.10", 7, {7, 8}));
    EXPECT_NE(Rotate().find("4. now: destroy the old private key"), std::string::npos) << Rotate();
}

TEST_F(KeyChange, SignedFeedChangesItsKeyWhenTheOldVersionsAreGone)
{
    PutFeed(Item("5.11", 8, {7, 8}) + Item("5.10", 7, {7, 8}) + Item("5.9", 7, {7}));
    EXPECT_EQ(SignFeed(7, State({QStringLiteral("--valid"), Text(KeyOf(7))}).out).status, 0);
    std::string const text = Rotate();
    EXPECT_NE(
        text.find(
            "3. wait: sign the feed with the new key\n   these versions must be gone first, because they trust only "
            "the old key: 5.9\n"),
        std::string::npos)
        << text;
    EXPECT_NE(text.find("4. later: "), std::string::npos) << text;
    PutFeed(Item("5.10", 7, {7, 8}) + Item("5.9", 7, {7}));
    EXPECT_EQ(SignFeed(7, State({QStringLiteral("--valid"), Text(KeyOf(7))}).out).status, 0);
    EXPECT_NE(Rotate().find("   5.9 take 5.10 first, which stays in the feed\n"
                            "   the old key still signs the feed: generate --key OLD --second-key NEW\n"),
              std::string::npos)
        << Rotate();
}

} // namespace Pelnar::Testing
