// EditTest.cpp: the verbs that change one item of a published feed. Every other byte stays.

#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

namespace Pelnar::Testing
{
namespace
{

QByteArray Item(QByteArray const& version, QByteArray const& inside = {})
{
    return "    <item>\n      <title>App " + version + " &amp; more</title>\n" + inside + "      <enclosure url='App-" +
           version + ".zip' sparkle:version='" + version +
           "' length='9'\n                 type='application/octet-stream'/>\n    </item>\n";
}

QByteArray FeedWith(QByteArray const& items)
{
    return "<?xml version='1.0'?>\n<!-- ours, 100 % -->\n<rss version='2.0' "
           "xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'>\n  <channel>\n    "
           "<title>App</title>\n" +
           items + "  </channel>\n</rss>\n";
}

QByteArray const BETA = "      <sparkle:channel>beta</sparkle:channel>\n";
QByteArray const WITHDRAWN =
    "      <pelnar:withdrawn xmlns:pelnar=\"https://pelnar.example/xml-namespaces/appcast\"/>\n";

class EditTest : public ::testing::Test
{
protected:
    QString Path(char const* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    void Write(char const* name, QByteArray const& bytes) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    std::string Feed() const
    {
        QFile file(Path("appcast.xml"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }

    ToolRun Run(char const* verb, QStringList const& more) const
    {
        return RunTool(QStringList{QString::fromLatin1(verb), Path("appcast.xml")} + more);
    }

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(EditTest, FeedOfAnotherEncodingIsToldAndStays)
{
    // Without a mark, each byte of this encoding could be UTF-8 too.
    QByteArray feed;
    for (char const each : FeedWith(Item("5.2", BETA) + Item("5.1")))
    {
        feed += '\0';
        feed += each;
    }
    Write("appcast.xml", feed);
    for (ToolRun const& run :
         {Run("promote", {QStringLiteral("5.2")}), Run("prune", {QStringLiteral("--keep"), QStringLiteral("1")})})
    {
        EXPECT_NE(run.status, 0);
        EXPECT_NE(run.err.find("is not UTF-8"), std::string::npos) << run.out << run.err;
    }
    EXPECT_EQ(Feed(), feed.toStdString());
}

TEST_F(EditTest, PromotionTakesTheChannelOut)
{
    Write("appcast.xml", FeedWith(Item("5.2", BETA) + Item("5.1")));
    ToolRun const run = Run("promote", {QStringLiteral("5.2.0")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "- <sparkle:channel>beta</sparkle:channel>\n");
    EXPECT_EQ(Feed(), FeedWith(Item("5.2") + Item("5.1")).toStdString());
}

TEST_F(EditTest, PromotionIntoAChannelWritesIt)
{
    Write("appcast.xml", FeedWith(Item("5.2", BETA) + Item("5.1")));
    EXPECT_EQ(Run("promote", {QStringLiteral("5.2"), QStringLiteral("--to"), QStringLiteral("rc")}).status, 0);
    EXPECT_EQ(Run("promote", {QStringLiteral("5.1"), QStringLiteral("--to"), QStringLiteral("rc")}).status, 0);
    QByteArray const channel = "<sparkle:channel xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">"
                               "rc</sparkle:channel>\n";
    QByteArray expected = FeedWith(Item("5.2", "      " + channel) + Item("5.1"));
    expected.replace("      <title>App 5.1", "      " + channel + "      <title>App 5.1");
    EXPECT_EQ(Feed(), expected.toStdString());
    EXPECT_EQ(Run("promote", {QStringLiteral("5.1"), QStringLiteral("--to"), QStringLiteral("a b")}).status, 2);
    EXPECT_EQ(Feed(), expected.toStdString());
}

TEST_F(EditTest, WithdrawnItemIsMarkedOnce)
{
    QByteArray const feed = FeedWith(Item("5.2") + Item("5.1"));
    Write("appcast.xml", feed);
    EXPECT_EQ(Run("withdraw", {QStringLiteral("5.2")}).status, 0);
    QByteArray expected = feed;
    expected.replace("      <title>App 5.2", WITHDRAWN + "      <title>App 5.2");
    EXPECT_EQ(Feed(), expected.toStdString());
    ToolRun const again = Run("withdraw", {QStringLiteral("5.2")});
    EXPECT_EQ(again.status, 0);
    EXPECT_NE(again.out.find("nothing to change"), std::string::npos);
    EXPECT_EQ(Feed(), expected.toStdString());
    ToolRun const explained =
        RunTool({QStringLiteral("explain"), Path("appcast.xml"), QStringLiteral("--local-version"),
                 QStringLiteral("5.0"), QStringLiteral("--system-version"), QStringLiteral("12")});
    EXPECT_NE(explained.out.find("withdrawn: the publisher has withdrawn it"), std::string::npos) << explained.out;
    EXPECT_NE(explained.out.find("is offered: 5.1"), std::string::npos) << explained.out;
}

TEST_F(EditTest, DryRunWritesNothing)
{
    QByteArray const feed = FeedWith(Item("5.2", BETA) + Item("5.1"));
    Write("appcast.xml", feed);
    ToolRun const run = Run("promote", {QStringLiteral("5.2"), QStringLiteral("--dry-run")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out.find("- <sparkle:channel>beta</sparkle:channel>\n"), 0u) << run.out;
    EXPECT_NE(run.out.find("dry run"), std::string::npos);
    EXPECT_EQ(Feed(), feed.toStdString());
}

TEST_F(EditTest, VersionThatIsNotThereIsRefused)
{
    QByteArray const feed = FeedWith(Item("5.2") + Item("5.1"));
    Write("appcast.xml", feed);
    for (char const* const verb : {"promote", "withdraw"})
    {
        ToolRun const run = Run(verb, {QStringLiteral("5.3")});
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find("has no item with the version \"5.3\"; give a version that it has, such as 5.2, 5.1\n"),
                  std::string::npos)
            << run.err;
    }
    EXPECT_EQ(Feed(), feed.toStdString());
}

TEST_F(EditTest, EmptyVersionChangesNoItemWithoutOne)
{
    Write("notes.md", "New");
    QByteArray const feed = FeedWith("    <item/>\n    <item><title>News</title></item>\n" + Item("5.2"));
    Write("appcast.xml", feed);
    for (QByteArray const& arguments : {"withdraw", "promote --to beta", "edit-notes notes.md"})
    {
        QList<QByteArray> words = arguments.split(' ');
        QByteArray const verb = words.takeFirst();
        QStringList more{QString()};
        for (QByteArray const& word : words)
        {
            more.append(word == "notes.md" ? Path("notes.md") : QString::fromLatin1(word));
        }
        ToolRun const run = Run(verb.constData(), more);
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find("VERSION: no value is given"), std::string::npos) << run.err;
        EXPECT_EQ(Feed(), feed.toStdString());
    }
}

TEST_F(EditTest, NotesTakeThePlaceOfTheOnesBefore)
{
    Write("appcast.xml", FeedWith(Item("5.2", "      <description>old</description>\n"
                                              "      <description xml:lang='de'>alt</description>\n") +
                                  Item("5.1")));
    Write("App-5.2.html", "<p>new]]></p>");
    EXPECT_EQ(Run("edit-notes", {QStringLiteral("5.2"), Path("App-5.2.html")}).status, 0);
    QByteArray const fresh = "      <description><![CDATA[<p>new]]]]><![CDATA[></p>]]></description>\n";
    EXPECT_EQ(Feed(), FeedWith(Item("5.2", fresh) + Item("5.1")).toStdString());
    EXPECT_EQ(Run("edit-notes", {QStringLiteral("5.1"), Path("App-5.2.html")}).status, 0);
    QByteArray expected = FeedWith(Item("5.2", fresh) + Item("5.1"));
    expected.replace("      <title>App 5.1", fresh + "      <title>App 5.1");
    EXPECT_EQ(Feed(), expected.toStdString());
    EXPECT_EQ(Run("edit-notes", {QStringLiteral("5.1"), Path("none.html")}).status, 2);
}

TEST_F(EditTest, NotesAreReadFromTheFileThatIsNamed)
{
    QByteArray const feed = FeedWith(Item("5.2"));
    Write("appcast.xml", feed);
    Write("notes.md", "New");
    Write("notes.pdf", "%PDF");
    for (auto const& [name, reason] :
         {std::pair("notes.html", "notes.html: does not exist; check the name of the file of release notes"),
          std::pair("notes.pdf",
                    "notes.pdf: is not a file of release notes; give a file that ends in .html, .md or .txt"),
          std::pair("notes", "notes: does not exist")})
    {
        ToolRun const run = Run("edit-notes", {QStringLiteral("5.2"), Path(name)});
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find(reason), std::string::npos) << run.err;
    }
    EXPECT_EQ(Feed(), feed.toStdString());
}

TEST_F(EditTest, PruningKeepsTheNewestAndWhatIsWithdrawn)
{
    QByteArray const withdrawn = Item("4.8").replace("      <title", WITHDRAWN + "      <title");
    Write("appcast.xml", FeedWith(Item("5.2") + Item("5.1") + Item("5.0") + withdrawn + Item("4.7")));
    ToolRun const run = Run("prune", {QStringLiteral("--keep"), QStringLiteral("2")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(Feed(), FeedWith(Item("5.2") + Item("5.1") + withdrawn).toStdString());
    EXPECT_NE(Run("prune", {QStringLiteral("--keep"), QStringLiteral("2")}).out.find("nothing to change"),
              std::string::npos);
}

TEST_F(EditTest, PruningThatTakesAnUpdateAwayIsRefused)
{
    QByteArray const feed =
        FeedWith(Item("5.2", "      <sparkle:minimumSystemVersion>12</sparkle:minimumSystemVersion>\n") + Item("5.1") +
                 Item("5.0"));
    Write("appcast.xml", feed);
    ToolRun const run = Run("prune", {QStringLiteral("--keep"), QStringLiteral("1")});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("a client would get another update: 0, 5.0 on systems below 12: 5.1 BUNDLE -> none"),
              std::string::npos)
        << run.err;
    EXPECT_EQ(Feed(), feed.toStdString());
    EXPECT_EQ(Run("prune", {QStringLiteral("--keep"), QStringLiteral("2")}).status, 0);
}

namespace
{

struct LostUpdate
{
    char const* name;
    QByteArray items; ///< of which "prune --keep 1" would take an update from somebody
    char const* told;
};

std::ostream& operator<<(std::ostream& stream, LostUpdate const& row)
{
    return stream << row.name;
}

QByteArray For(QByteArray const& machine, QByteArray item)
{
    return item.replace("<enclosure ",
                        "<enclosure xmlns:p='https://pelnar.example/xml-namespaces/appcast' p:machine='" + machine +
                            "' ");
}

QByteArray Element(QByteArray const& name, QByteArray const& text)
{
    return "      <sparkle:" + name + '>' + text + "</sparkle:" + name + ">\n";
}

QByteArray StagedNow()
{
    return "      <pubDate>" + QDateTime::currentDateTimeUtc().toString(Qt::RFC2822Date).toLatin1() + "</pubDate>\n" +
           Element("phasedRolloutInterval", "86400");
}

class LostUpdates : public EditTest, public ::testing::WithParamInterface<LostUpdate>
{
};

} // namespace

TEST_P(LostUpdates, AreRefused)
{
    QByteArray const feed = FeedWith(GetParam().items);
    Write("appcast.xml", feed);
    ToolRun const run = Run("prune", {QStringLiteral("--keep"), QStringLiteral("1")});
    EXPECT_EQ(run.status, 2) << run.out;
    EXPECT_NE(run.err.find(GetParam().told), std::string::npos) << run.err;
    EXPECT_EQ(Feed(), feed.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Prune, LostUpdates,
    ::testing::Values(LostUpdate{"MachineOfAnOlderItem", For("x86_64", Item("5.2")) + For("aarch64", Item("5.1")),
                                 "5.1 BUNDLE -> none"},
                      LostUpdate{"MachineThatNoItemNames", For("x86_64", Item("5.2")) + Item("5.1"),
                                 "5.1 BUNDLE -> none"},
                      LostUpdate{"Hardware", Item("5.2", Element("hardwareRequirements", "arm64")) + Item("5.1"),
                                 "5.1 BUNDLE -> none"},
                      LostUpdate{"OneChannelAlone", Item("5.2", Element("channel", "nightly")) + Item("5.1", BETA),
                                 "5.1 BUNDLE -> none"},
                      LostUpdate{"StageThatIsNotReached", Item("5.2", StagedNow()) + Item("5.1"), "5.1 BUNDLE -> none"},
                      LostUpdate{"VersionBetweenThoseOfTheFeed",
                                 Item("5.2", Element("minimumUpdateVersion", "4.5")) +
                                     Item("5.1", Element("minimumUpdateVersion", "4.0")),
                                 "5.1 BUNDLE -> none"}),
    [](::testing::TestParamInfo<LostUpdate> const& info) { return std::string(info.param.name); });

TEST_F(EditTest, PruningKnowsTheKeysOfWhatItTakesOut)
{
    auto const keyed = [](QByteArray const& version, QByteArray const& signer, QByteArray const& trusted)
    {
        return Item(version, "      <p:keys xmlns:p='https://pelnar.example/xml-namespaces/appcast' signer='" + signer +
                                 "' trusted='" + trusted + "'/>\n");
    };
    QByteArray const oldKey = "0123456789abcdef";
    QByteArray const newKey = "fedcba9876543210";
    QByteArray const kept = keyed("5.2", newKey, newKey) + keyed("5.1", oldKey, oldKey + ' ' + newKey);
    Write("appcast.xml", FeedWith(kept + keyed("5.0", oldKey, oldKey)));
    // Clients of 5.0 take 5.1 before and after.
    ToolRun const run = Run("prune", {QStringLiteral("--keep"), QStringLiteral("2")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(Feed(), FeedWith(kept).toStdString());
}

TEST_F(EditTest, SignedFeedIsSignedAgainOrReportedToNeedIt)
{
    Write("appcast.xml", FeedWith(Item("5.2") + Item("5.1")));
    ASSERT_EQ(RunTool({QStringLiteral("keys"), QStringLiteral("generate"), Path("key")}).status, 0);
    ASSERT_EQ(Run("sign-feed", {QStringLiteral("--key"), Path("key")}).status, 0);
    ToolRun const run = Run("withdraw", {QStringLiteral("5.2"), QStringLiteral("--key"), Path("key")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("signed with serial"), std::string::npos) << run.out;
    EXPECT_EQ(Run("sign-feed", {QStringLiteral("--key"), Path("key")}).status, 0) << "the signature fits";
    ToolRun const bare = Run("withdraw", {QStringLiteral("5.1")});
    EXPECT_EQ(bare.status, 0);
    EXPECT_NE(bare.out.find("sign it again"), std::string::npos) << bare.out;
    EXPECT_NE(Run("sign-feed", {QStringLiteral("--key"), Path("key")}).status, 0);
    EXPECT_EQ(Run("sign-feed", {QStringLiteral("--key"), Path("key"), QStringLiteral("--accept-changes")}).status, 0);
}

} // namespace Pelnar::Testing
