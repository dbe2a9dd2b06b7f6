// SignFeedTest.cpp: the verb "sign-feed": the parts of a feed that it writes, those that it keeps, and the feeds that
// it refuses.

#include "Engine/core/check/FeedTrust.h"
#include "Publisher/Refusal.h"
#include "Publisher/signfeed/SigningClock.h"
#include "tests/engine/SignedFeedText.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

#include <limits>
#include <ostream>
#include <sstream>

#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

constexpr char PLAIN[] = "<?xml version=\"1.0\"?>\n<rss>\n  <channel>\n    <title>T\xC3\xA4st</title>\n    <item/>\n"
                         "  </channel>\n</rss>\n";

QString Regular(char const* text)
{
    return QString::fromLatin1(text);
}

/// A feed that clients accept.
struct BelievedFeed
{
    QByteArray content;
    Engine::FeedValidity terms;
};

class SignFeedTest : public ::testing::Test
{
protected:
    SignFeedTest()
    {
        WriteFile(Path("key"), Base64(std::string(32, '\7')));
        WriteFile(Path("other-key"), Base64(std::string(32, '\11')));
        EXPECT_EQ(::chmod(Path("key").c_str(), 0600) + ::chmod(Path("other-key").c_str(), 0600), 0);
    }

    std::string Path(std::string const& name) const { return m_folder.Path() + '/' + name; }
    void Put(QByteArray const& feed) const { WriteFile(Path("feed.xml"), feed.toStdString()); }
    QByteArray Content(std::string const& name = "feed.xml") const
    {
        QFile file(QString::fromStdString(Path(name)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    ToolRun Run(QStringList const& more = {}, std::string const& key = "key") const
    {
        return RunTool(QStringList{QStringLiteral("sign-feed"), QString::fromStdString(Path("feed.xml")),
                                   QStringLiteral("--key"), QString::fromStdString(Path(key))} +
                       more);
    }

    /// Signs the feed and returns it.
    QByteArray SignedContent(QStringList const& more = {}) const
    {
        ToolRun const run = Run(more);
        EXPECT_EQ(run.status, 0) << run.err;
        return Content();
    }

    static BelievedFeed Believe(QByteArray const& feed, std::uint8_t seedByte = 7)
    {
        BelievedFeed believed;
        auto const verified = Engine::VerifyFeed(feed, {MakeKeyPair(seedByte).publicKey});
        if (!verified)
        {
            ADD_FAILURE() << verified.error().sentence.English().toStdString() << '\n' << feed.toStdString();
            return believed;
        }
        believed.content = *verified;
        Engine::FeedParseResult const parsed = Engine::ParseFeed(believed.content, QUrl(), Engine::FeedPlatform::Linux);
        EXPECT_TRUE(parsed.has_value());
        auto const said = Engine::ReadFeedValidity(parsed.value().channel);
        EXPECT_TRUE(said) << feed.toStdString();
        believed.terms = said.value_or(Engine::FeedValidity());
        return believed;
    }

    void ExpectRefused(ToolRun const& run, char const* said, QByteArray const& feed) const
    {
        EXPECT_EQ(run.status, 2) << run.out;
        EXPECT_NE(run.err.find(said), std::string::npos) << run.err;
        EXPECT_EQ(Content(), feed) << "untouched";
    }

private:
    Workspace m_folder;
};

TEST_F(SignFeedTest, WritesTermsAndABlockAndNothingElse)
{
    Put(PLAIN);
    QByteArray const feed = SignedContent({QStringLiteral("--serial"), QStringLiteral("12")});
    BelievedFeed const believed = Believe(feed);
    EXPECT_EQ(believed.terms.serial, 12);
    QByteArray const moment = believed.terms.expires.toString(Qt::ISODate).toLatin1();
    QByteArray expected = PLAIN;
    expected.replace(
        "<channel>",
        "<channel>\n"
        "    <pelnar:serial xmlns:pelnar=\"https://pelnar.example/xml-namespaces/appcast\">12</pelnar:serial>\n"
        "    <pelnar:expires xmlns:pelnar=\"https://pelnar.example/xml-namespaces/appcast\">" +
            moment + "</pelnar:expires>");
    EXPECT_EQ(feed, Signed(expected));
}

TEST_F(SignFeedTest, SaysWhatItWrote)
{
    Put(PLAIN);
    ToolRun const run = Run({QStringLiteral("--serial"), QStringLiteral("12")});
    QByteArray const moment = Believe(Content()).terms.expires.toString(Qt::ISODate).toLatin1();
    EXPECT_EQ(run.out, Path("feed.xml") + ": signed with serial 12, expires " + moment.toStdString() + "\n");
}

TEST_F(SignFeedTest, ExpiryIsSoManyDaysAhead)
{
    for (int const days : {1, 30, 365})
    {
        Put(PLAIN);
        qint64 const before = QDateTime::currentSecsSinceEpoch();
        QByteArray const feed = SignedContent(
            days == 30 ? QStringList() : QStringList{QStringLiteral("--valid-for"), QString::number(days)});
        qint64 const after = QDateTime::currentSecsSinceEpoch();
        qint64 const expires = Believe(feed).terms.expires.toSecsSinceEpoch() - qint64(days) * 86400;
        EXPECT_GE(expires, before);
        EXPECT_LE(expires, after);
    }
}

TEST_F(SignFeedTest, SerialIsTheTimeOrTheNextOne)
{
    Put(PLAIN);
    qint64 const before = QDateTime::currentSecsSinceEpoch();
    qint64 const first = Believe(SignedContent()).terms.serial;
    EXPECT_GE(first, before);
    EXPECT_LE(first, QDateTime::currentSecsSinceEpoch());
    qint64 const second = Believe(SignedContent()).terms.serial;
    EXPECT_GT(second, first) << "within a second as well";
    EXPECT_EQ(Believe(SignedContent({QStringLiteral("--serial"), QStringLiteral("9000000000000000000")})).terms.serial,
              9000000000000000000);
    EXPECT_EQ(Believe(SignedContent()).terms.serial, 9000000000000000001);
}

TEST_F(SignFeedTest, ClockThatWasSetBackIsTold)
{
    Put(PLAIN);
    QByteArray const feed =
        SignedContent({Regular("--serial"), QString::number(QDateTime::currentSecsSinceEpoch() + 100000)});
    ExpectRefused(Run(), "according to its serial, but this computer's clock says ", feed);
    EXPECT_EQ(Run({Regular("--serial"), QString::number(QDateTime::currentSecsSinceEpoch() + 200000)}).status, 0);
}

TEST_F(SignFeedTest, ClockThatIsFarAheadIsTold)
{
    Put(PLAIN);
    qint64 const now = QDateTime::currentSecsSinceEpoch();
    QByteArray const feed = SignedContent({Regular("--serial"), QString::number(now - 400 * 86400)});
    ToolRun const run = Run();
    ExpectRefused(run, "was last signed at ", feed);
    // The error says how to go on, and the next run needs nothing more.
    QRegularExpressionMatch const serial =
        QRegularExpression(Regular("set the clock; if it is right, add (--serial) ([0-9]+) this time\n"))
            .match(QString::fromStdString(run.err));
    ASSERT_TRUE(serial.hasMatch()) << run.err;
    EXPECT_EQ(Run({serial.captured(1), serial.captured(2)}).status, 0);
    EXPECT_GE(Believe(Content()).terms.serial, now);
    EXPECT_EQ(Run().status, 0);
}

TEST_F(SignFeedTest, FirstSignatureLongAfterTheNewestItemIsDoubted)
{
    for (int const days : {300, 400})
    {
        QByteArray const date = QDateTime::currentDateTimeUtc().addDays(-days).toString(Qt::RFC2822Date).toLatin1();
        Put(QByteArray(PLAIN).replace("<item/>", "<item><pubDate>" + date + "</pubDate></item>"));
        ToolRun const run = Run();
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err.find("feed.xml: has no item between ") != std::string::npos, days == 400) << run.err;
        EXPECT_EQ(run.err.find("; check the clock before you upload the feed: ") != std::string::npos, days == 400)
            << run.err;
        EXPECT_EQ(Run().err, "") << "the signature has a date now";
    }
}

TEST_F(SignFeedTest, ClockThatIsBehindTheFeedsItemsOrItsFileIsTold)
{
    QByteArray const item = "<item><pubDate>" +
                            QDateTime::currentDateTimeUtc().addDays(400).toString(Qt::RFC2822Date).toLatin1() +
                            "</pubDate></item>";
    QByteArray const feed = QByteArray(PLAIN).replace("<item/>", item);
    Put(feed);
    ExpectRefused(Run(), "has an item of ", feed);
    Put(PLAIN);
    timespec times[2] = {};
    times[0].tv_sec = times[1].tv_sec = ::time(nullptr) + 100000;
    ASSERT_EQ(::utimensat(AT_FDCWD, Path("feed.xml").c_str(), times, 0), 0);
    ExpectRefused(Run(), "was changed at ", PLAIN);
}

/// The message of the check at \a now; empty if it finds nothing.
std::string ToldOfClock(qint64 now, qint64 publishedSerial, bool isNextGiven)
{
    std::istringstream in;
    std::ostringstream out;
    Publisher::Console const console{in, {out}, {out}};
    try
    {
        Publisher::CheckClock(Regular("/absent/feed.xml"), {}, {publishedSerial, isNextGiven},
                              QDateTime::fromSecsSinceEpoch(now, Qt::UTC), console);
    }
    catch (Publisher::Refusal const& refusal)
    {
        return refusal.what();
    }
    return {};
}

TEST(SigningClock, IsComparedWithTheTimesOfTheFeed)
{
    constexpr qint64 NOW = 1800000000;
    constexpr qint64 A_DAY = 86400;
    for (qint64 const unusable : {qint64(0), qint64(1577836799), qint64(4102444800), qint64(253402300799)})
    {
        std::string const said = ToldOfClock(unusable, 0, false);
        EXPECT_NE(said.find("cannot be signed, because this computer's clock says "), std::string::npos) << unusable;
        EXPECT_EQ(ToldOfClock(unusable, 0, true), said) << "its expiry would be wrong too";
    }
    EXPECT_EQ(ToldOfClock(NOW, 0, false), "") << "the first signature";
    EXPECT_EQ(ToldOfClock(NOW, 12, false), "") << "this serial is not a time";
    EXPECT_EQ(ToldOfClock(NOW, std::numeric_limits<qint64>::max() - 1, false), "");
    EXPECT_EQ(ToldOfClock(NOW, NOW + A_DAY, false), "");
    EXPECT_EQ(ToldOfClock(NOW, NOW - 366 * A_DAY, false), "");
    std::string const behind = ToldOfClock(NOW, NOW + A_DAY + 1, false);
    EXPECT_NE(behind.find("nobody has got this feed yet, put the previous one back; otherwise add --serial 1800086402, "
                          "and a greater one each time until then"),
              std::string::npos)
        << behind;
    std::string const ahead = ToldOfClock(NOW, NOW - 366 * A_DAY - 1, false);
    EXPECT_NE(ahead.find("; if it is right, add --serial 1800000000 this time"), std::string::npos) << ahead;
    EXPECT_EQ(ToldOfClock(NOW, NOW + A_DAY + 1, true) + ToldOfClock(NOW, NOW - 366 * A_DAY - 1, true), "");
}

TEST_F(SignFeedTest, SerialThatWouldNotGrowIsRefused)
{
    Put(PLAIN);
    QByteArray const feed = SignedContent({QStringLiteral("--serial"), QStringLiteral("12")});
    for (char const* const serial : {"12", "11"})
    {
        ExpectRefused(Run({QStringLiteral("--serial"), Regular(serial)}), "already has the serial 12", feed);
    }
    for (char const* const serial : {"0", "-1", "x", "9223372036854775808"})
    {
        ExpectRefused(Run({QStringLiteral("--serial"), Regular(serial)}), "--serial", feed);
    }
    QByteArray const last = SignedContent({QStringLiteral("--serial"), QStringLiteral("9223372036854775807")});
    ExpectRefused(Run(), "has the greatest possible serial", last);
}

/// A feed as a person writes it.
struct WrittenFeed
{
    char const* name;
    QByteArray feed;
};

std::ostream& operator<<(std::ostream& out, WrittenFeed const& row)
{
    return out << row.name;
}

class EveryWrittenFeed : public SignFeedTest, public ::testing::WithParamInterface<WrittenFeed>
{
};

INSTANTIATE_TEST_SUITE_P(
    Forms, EveryWrittenFeed,
    ::testing::Values(
        WrittenFeed{"Plain", PLAIN}, WrittenFeed{"LineEndsOfTwoBytes", QByteArray(PLAIN).replace("\n", "\r\n")},
        WrittenFeed{"ByteOrderMark", QByteArray("\xEF\xBB\xBF") + PLAIN},
        WrittenFeed{"OneLine", QByteArray(PLAIN).replace("\n", "").replace("  ", "")},
        WrittenFeed{"EmptyChannel", "<rss><channel></channel></rss>\n"},
        WrittenFeed{"ChannelWithAttributes", "<rss><channel a='>' b=\"1\"\n>\n\n\t<item/></channel></rss>\n"},
        WrittenFeed{"TermsBehindTheItems", FeedWith(ItemOf("5.1") + TermsOf("7", "1999-12-31T23:59:59Z"))},
        WrittenFeed{"TermsTheOtherWayRound", FeedWith(TermsOf("", "soon") + ItemOf("5.1") + TermsOf("7", ""))},
        WrittenFeed{"SerialOnly", FeedWith(TermsOf("7", "") + ItemOf("5.1"))},
        WrittenFeed{"ExpiryOnly", FeedWith(ItemOf("5.1") + TermsOf("", "soon"))},
        WrittenFeed{"SerialInAComment", FeedWith("<!-- " + TermsOf("7", "soon") + "-->" + ItemOf("5.1"))},
        WrittenFeed{"PrefixIsAnothers", "<rss xmlns:pelnar='urn:other'><channel><pelnar:serial>x</pelnar:serial>"
                                        "</channel></rss>\n"},
        WrittenFeed{"EscapedSerial", FeedWith(TermsOf("&#55;<![CDATA[1]]>", ""))},
        WrittenFeed{"BeyondTheFirstPlane", "<rss><channel><title>\xF0\x9F\x98\x80</title></channel></rss>\n"},
        WrittenFeed{"BlankLinesAtTheEnd", QByteArray(PLAIN) + "\n\n"}),
    [](auto const& row) { return std::string(row.param.name); });

/// \a feed without the elements of the signature; these elements' texts.
QByteArray WithoutTerms(QByteArray const& feed)
{
    QString text = QString::fromUtf8(feed);
    text.remove(QRegularExpression(Regular("\\s*<pelnar:(serial|expires) xmlns:pelnar=\"[^\"]*\">[^<]*</[^>]*>")));
    text.replace(QRegularExpression(Regular("(<p:serial[^>]*>|<expires [^>]*>).*?(</p:serial>|</expires>)")),
                 QStringLiteral("\\1\\2"));
    return text.trimmed().toUtf8();
}

TEST_P(EveryWrittenFeed, IsSignedAndStaysWhatItWas)
{
    Put(GetParam().feed);
    BelievedFeed const first = Believe(SignedContent());
    EXPECT_EQ(WithoutTerms(first.content), WithoutTerms(GetParam().feed));
    EXPECT_GT(first.terms.expires, QDateTime::currentDateTimeUtc());
    EXPECT_EQ(first.content.startsWith("\xEF\xBB\xBF"), GetParam().feed.startsWith("\xEF\xBB\xBF"));
    EXPECT_EQ(first.content.count('\r') > 0, GetParam().feed.count('\r') > 0);
}

TEST_P(EveryWrittenFeed, SignedAgainDiffersInTheTermsOnly)
{
    Put(GetParam().feed);
    BelievedFeed const first = Believe(SignedContent());
    QByteArray const again = SignedContent({QStringLiteral("--valid-for"), QStringLiteral("60")});
    BelievedFeed const second = Believe(again);
    EXPECT_GT(second.terms.serial, first.terms.serial);
    QByteArray expected = first.content;
    expected.replace(QByteArray::number(first.terms.serial), QByteArray::number(second.terms.serial));
    expected.replace(first.terms.expires.toString(Qt::ISODate).toLatin1(),
                     second.terms.expires.toString(Qt::ISODate).toLatin1());
    EXPECT_EQ(again, Signed(expected));
}

TEST_F(SignFeedTest, FeedThatWasChangedSinceIsNotSignedAgainUnasked)
{
    Put(PLAIN);
    QByteArray changed = SignedContent();
    changed.replace("<item/>", "<item><title>Mine</title></item>");
    Put(changed);
    ExpectRefused(Run(), "was changed after it was signed, or was signed by another key", changed);
    QByteArray const accepted = SignedContent({QStringLiteral("--accept-changes")});
    EXPECT_TRUE(Believe(accepted).content.contains("<title>Mine</title>"));
}

TEST_F(SignFeedTest, AnotherKeyTakesOverWhenAsked)
{
    Put(PLAIN);
    QByteArray const feed = SignedContent();
    ExpectRefused(Run({}, "other-key"), "was signed by another key", feed);
    ToolRun const run = Run({QStringLiteral("--accept-changes")}, "other-key");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_GT(Believe(Content(), 9).terms.serial, Believe(feed).terms.serial);
}

TEST_F(SignFeedTest, SignatureThatIsNotAloneAtTheEndIsAPersonsMatter)
{
    for (SpoiltFeed const& spoilt : SpoiltFeeds())
    {
        if (spoilt.cause < 751 || spoilt.cause > 756)
        {
            continue;
        }
        Put(spoilt.feed);
        for (QStringList const& more : {QStringList(), QStringList(QStringLiteral("--accept-changes"))})
        {
            ExpectRefused(Run(more), "not alone on the last line, or is damaged", spoilt.feed);
        }
    }
}

TEST_F(SignFeedTest, WhatClientsCouldNotReadIsNotSigned)
{
    struct Row
    {
        QByteArray feed;
        char const* said;
    };
    QByteArray const own = "xmlns='https://pelnar.example/xml-namespaces/appcast'";
    for (Row const& row :
         {Row{"<rss><channel></rss>\n", "is not well-formed XML"}, Row{"", "is not well-formed XML"},
          Row{"<rss></rss>\n", "has no channel"}, Row{"<rss><channel/></rss>\n", "has no channel"},
          Row{"<rss><channel xmlns='urn:x'></channel></rss>\n", "has no channel"},
          Row{"<?xml version='1.0' encoding='iso-8859-1'?><rss><channel>\xE4</channel></rss>\n", "is not UTF-8"},
          Row{FeedWith(TermsOf("7", "") + TermsOf("8", "")), "appears twice"},
          Row{FeedWith("<serial " + own + "/>"), "or is empty"},
          Row{FeedWith("<serial " + own + "><b>7</b></serial>"), "contains elements"},
          Row{"<rss><channel></channel><channel>" + TermsOf("7", "") + TermsOf("7", "") + "</channel></rss>",
              "appears twice"}})
    {
        Put(row.feed);
        ExpectRefused(Run(), row.said, row.feed);
    }
}

TEST_F(SignFeedTest, OutputMayBeAnotherFile)
{
    Put(PLAIN);
    ToolRun const run = Run({QStringLiteral("-o"), QString::fromStdString(Path("signed.xml"))});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(Content(), QByteArray(PLAIN));
    Believe(Content("signed.xml"));
}

TEST_F(SignFeedTest, KeyComesFromAFileOrStandardInputAndNeverFromAnArgument)
{
    Put(PLAIN);
    QString const feed = QString::fromStdString(Path("feed.xml"));
    QString const key = QString::fromStdString(Base64(std::string(32, '\7')));
    ExpectRefused(RunTool({QStringLiteral("sign-feed"), feed, QStringLiteral("--key"), key}), "must not be an argument",
                  PLAIN);
    ExpectRefused(RunTool({QStringLiteral("sign-feed"), feed}), "--key", PLAIN);
    ToolRun const run = RunAppcastProgram(
        {QStringLiteral("sign-feed"), feed, QStringLiteral("--key"), QStringLiteral("-")}, key.toLatin1());
    EXPECT_EQ(run.status, 0) << run.err;
    Believe(Content());
}

TEST_F(SignFeedTest, MissingFileIsReported)
{
    ToolRun const run = Run();
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("feed.xml"), std::string::npos) << run.err;
}

} // namespace
} // namespace Pelnar::Testing
