// SignedFeedTest.cpp: checks by a bundle that requires signed feeds, with a local server and the process's own user
// defaults.
#include "Engine/core/check/FeedRecordFile.h"
#include "tests/engine/CheckFixture.h"
#include "tests/engine/SignedFeedText.h"
#include "tests/engine/StoredDefaults.h"
#include "tests/support/ProcessFootprint.h"

#include <Pelnar/HostRequests_p.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <functional>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using Start = void (UpdaterDriver::*)();

class SignedFeedCheck : public CheckContract
{
protected:
    /// One check of any \a feed on the server.
    Events Check(QByteArray const& feed, Start start = &UpdaterDriver::Probe)
    {
        answer = OkAnswer(feed);
        driver.emplace(DelegateScript{&ChooseFirst, &CompareNumbers, {}, {}});
        driver->SetFeed(server.Url());
        ((*driver).*start)();
        EXPECT_TRUE(driver->WaitForEnd());
        return driver->Events();
    }

    static QString RecordPath() { return StateFolder() + QStringLiteral("/updates/feed"); }

    /// The stored record of the feed. It may not have reached the disk yet.
    static std::optional<FeedRecord> KeptRecord() { return ReadFeedRecordFile(RecordPath()); }

    /// Waits also for the end of the thread that writes it.
    void WaitForSerial(qint64 serial) const
    {
        EXPECT_TRUE(WaitFor([serial] { return KeptRecord() && KeptRecord()->serial == serial; })) << serial;
        EXPECT_TRUE(WaitFor([this] { return MeasureFootprint().threads <= threadsBefore; }));
    }

    static void WriteFile(QByteArray const& bytes)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(RecordPath()).path()));
        QFile file(RecordPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// As another process of the application would do it.
    void RaiseSerial(qint64 serial) const
    {
        FeedRecord record;
        record.address = server.Url().toString();
        record.serial = serial;
        EXPECT_TRUE(KeepFeedRecordFile(RecordPath(), {}, record));
    }

    void ExpectRefused(int code, int cause)
    {
        ASSERT_EQ(driver->Errors().size(), 1u);
        ToldError const& error = driver->Errors().front();
        EXPECT_EQ(error.domain, "SUSparkleErrorDomain");
        EXPECT_EQ(error.code, code);
        EXPECT_EQ(error.underlyingDomain, "PelnarUpdateCheckErrorDomain");
        EXPECT_EQ(error.underlyingCode, cause);
        EXPECT_EQ(error.sentence.back(), '.');
    }

    /// User defaults with a record of the server's feed that has these entries.
    QByteArray RecordOf(QByteArray const& entries)
    {
        return "{ PelnarFeedRecord = { address = \"" + server.Url().toEncoded() + "\"; " + entries + " }; }";
    }

    void WriteRecord(QByteArray const& entries) { WriteEarlierDefaults(RecordOf(entries)); }

    int const threadsBefore = MeasureFootprint().threads;
    QByteArray answer;
    std::function<void()> beforeAnswer;
    LoopbackServer server{[this](QSslSocket& socket, QByteArray const&, int)
                          {
                              if (beforeAnswer)
                              {
                                  beforeAnswer();
                              }
                              socket.write(answer);
                              socket.disconnectFromHost();
                          }};
    std::optional<UpdaterDriver> driver;
};

class SignedFeedOfEveryCheck : public SignedFeedCheck, public ::testing::WithParamInterface<Start>
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, SignedFeedOfEveryCheck,
                         ::testing::Values(&UpdaterDriver::Probe, &UpdaterDriver::CheckInBackground,
                                           &UpdaterDriver::CheckInteractively));

TEST_P(SignedFeedOfEveryCheck, IsBelieved)
{
    Events const events = Check(SignedFeedOf("5.1"), GetParam());
    ASSERT_GE(events.size(), 2u);
    EXPECT_EQ(events[0], "asked");
    EXPECT_EQ(events[1], "found 5.1");
}

TEST_P(SignedFeedOfEveryCheck, WithoutItsSignatureEndsTheCheck)
{
    EXPECT_EQ(Check(FeedWith(TermsOf("7", FAR_AHEAD) + ItemOf("5.1")), GetParam()), Events{"aborted 3001"});
    ExpectRefused(3001, 750);
}

class SpoiltFeedCheck : public SignedFeedCheck, public ::testing::WithParamInterface<SpoiltFeed>
{
};

INSTANTIATE_TEST_SUITE_P(Table, SpoiltFeedCheck, ::testing::ValuesIn(SpoiltFeeds()),
                         [](auto const& row) { return row.param.name; });

TEST_P(SpoiltFeedCheck, IsRefusedAndNothingIsAskedOrRemembered)
{
    int const code = GetParam().cause == 707 ? 1000 : 3001;
    EXPECT_EQ(Check(GetParam().feed), Events{"aborted " + std::to_string(code)});
    ExpectRefused(code, GetParam().cause);
    EXPECT_EQ(Check(SignedFeedOf("5.1", "1")), (Events{"asked", "found 5.1"})) << "no floor was left";
}

TEST_F(SignedFeedCheck, SignatureIsJudgedBeforeTheMarkup)
{
    EXPECT_EQ(Check("<!DOCTYPE rss><rss>"), Events{"aborted 3001"});
    ExpectRefused(3001, 750);
    EXPECT_EQ(Check(Signed("<rss>\n", 9)), Events{"aborted 3001"});
    ExpectRefused(3001, 757);
    EXPECT_EQ(Check(Signed("<rss>\n")), Events{"aborted 1000"}) << "the publisher's own mistake";
}

TEST_F(SignedFeedCheck, TermsAreRequired)
{
    EXPECT_EQ(Check(SignedFeedOf("5.1", "", FAR_AHEAD)), Events{"aborted 3002"});
    ExpectRefused(3002, 760);
    EXPECT_EQ(Check(SignedFeedOf("5.1", "1", "")), Events{"aborted 3002"});
    ExpectRefused(3002, 761);
    EXPECT_EQ(Check(SignedFeedOf("5.1", "1", "2026-01-01T00:00:00Z")), Events{"aborted 3002"});
    ExpectRefused(3002, 763);
}

TEST_F(SignedFeedCheck, OlderFeedThanTheLastIsRefusedByTheNextProcessAsWell)
{
    EXPECT_EQ(Check(SignedFeedOf("5.2", "9007199254740993")), (Events{"asked", "found 5.2"}));
    WaitForSerial(9007199254740993);
    EXPECT_EQ(Check(SignedFeedOf("5.1", "9007199254740992")), Events{"aborted 3002"});
    ExpectRefused(3002, 762);
    EXPECT_EQ(Check(SignedFeedOf("5.2", "9007199254740993")), (Events{"asked", "found 5.2"})) << "the same again";
    EXPECT_EQ(Check(SignedFeedOf("5.3", "9007199254740994")), (Events{"asked", "found 5.3"}));
    EXPECT_EQ(Check(SignedFeedOf("5.2", "9007199254740993")), Events{"aborted 3002"});
}

TEST_F(SignedFeedCheck, LowestSerialThatAnotherProcessRaisedMeanwhileIsNotLowered)
{
    answer = OkAnswer(SignedFeedOf("5.1", "5"));
    driver.emplace(DelegateScript{&ChooseFirst, &CompareNumbers, {}, {}});
    driver->SetFeed(server.Url());
    beforeAnswer = [this] { RaiseSerial(9); };
    driver->Probe();
    EXPECT_TRUE(driver->WaitForEnd());
    EXPECT_EQ(driver->Events(), (Events{"asked", "found 5.1"})) << "it was believed when it came";
    beforeAnswer = nullptr;
    EXPECT_EQ(Check(SignedFeedOf("5.2", "8")), Events{"aborted 3002"});
    ExpectRefused(3002, 762);
    EXPECT_EQ(Check(SignedFeedOf("5.2", "9")), (Events{"asked", "found 5.2"}));
}

TEST_F(SignedFeedCheck, LowestSerialThatAnotherProcessRaisedBetweenChecksHolds)
{
    EXPECT_EQ(Check(SignedFeedOf("5.1", "5")), (Events{"asked", "found 5.1"}));
    WaitForSerial(5);
    RaiseSerial(9);
    EXPECT_EQ(Check(SignedFeedOf("5.2", "8")), Events{"aborted 3002"});
    ExpectRefused(3002, 762);
}

TEST_F(SignedFeedCheck, RefusedFeedsDoNotRaiseTheLowestSerial)
{
    EXPECT_EQ(Check(SignedFeedOf("5.1", "2")), (Events{"asked", "found 5.1"}));
    QByteArray forward = SignedFeedOf("5.9", "9000");
    forward.replace("5.9", "6.9");
    EXPECT_EQ(Check(forward), Events{"aborted 3001"});
    EXPECT_EQ(Check(SignedFeedOf("5.9", "9000", "2026-01-01T00:00:00Z")), Events{"aborted 3002"});
    EXPECT_EQ(Check(SignedFeedOf("5.1", "3")), (Events{"asked", "found 5.1"}));
}

TEST_F(SignedFeedCheck, NeitherAnotherAddressNorAFragmentLowersTheSerial)
{
    EXPECT_EQ(Check(SignedFeedOf("5.1", "9")), (Events{"asked", "found 5.1"}));
    QUrl withFragment = server.Url();
    withFragment.setFragment(QStringLiteral("x"));
    for (QUrl const& address : {server.Url(QStringLiteral("/beta.xml")), withFragment, server.Url()})
    {
        answer = OkAnswer(SignedFeedOf("5.2", "8"));
        driver.emplace(DelegateScript{&ChooseFirst, &CompareNumbers, {}, {}});
        driver->SetFeed(address);
        driver->Probe();
        EXPECT_TRUE(driver->WaitForEnd());
        ExpectRefused(3002, 762);
    }
}

TEST_F(SignedFeedCheck, LowestSerialOfTheDefaultsIsCopiedOnceForEveryAddress)
{
    WriteEarlierDefaults("{ PelnarFeedRecord = { address = \"https://a.example/\"; serial = <*I8>; }; }");
    EXPECT_EQ(Check(SignedFeedOf("5.1", "7")), Events{"aborted 3002"});
    EXPECT_FALSE(KeptRecord()) << "nothing is remembered of a feed that was refused";
    EXPECT_EQ(Check(SignedFeedOf("5.1", "9")), (Events{"asked", "found 5.1"}));
    WaitForSerial(9);
    WriteEarlierDefaults("{ PelnarFeedRecord = { serial = <*I20>; }; }");
    EXPECT_EQ(Check(SignedFeedOf("5.1", "10")), (Events{"asked", "found 5.1"})) << "once";
}

TEST_F(SignedFeedCheck, LowestSerialOfTheEarlierFileIsCopiedOnce)
{
    QString const earlier = FeedRecordPath(EarlierDefaultsFolder(), {});
    FeedRecord record;
    record.serial = 8;
    EXPECT_TRUE(KeepFeedRecordFile(earlier, {}, record));
    EXPECT_EQ(Check(SignedFeedOf("5.1", "7")), Events{"aborted 3002"});
    EXPECT_EQ(Check(SignedFeedOf("5.1", "9")), (Events{"asked", "found 5.1"}));
    WaitForSerial(9);
    EXPECT_EQ(ReadFeedRecordFile(earlier)->serial, 8) << "it is left as it is";
    record.serial = 20;
    EXPECT_TRUE(KeepFeedRecordFile(earlier, {}, record));
    EXPECT_EQ(Check(SignedFeedOf("5.1", "10")), (Events{"asked", "found 5.1"})) << "once";
}

TEST_F(SignedFeedCheck, LowestSerialIsNotReadThroughALink)
{
    QTemporaryDir const elsewhere;
    ASSERT_TRUE(QDir().mkpath(QFileInfo(StateFolder()).path()));
    ASSERT_TRUE(QFile::link(elsewhere.path(), StateFolder()));
    FeedRecord record;
    record.serial = 8;
    EXPECT_TRUE(KeepFeedRecordFile(elsewhere.filePath(QStringLiteral("updates/feed")), {}, record));
    LogCapture log;
    EXPECT_EQ(Check(SignedFeedOf("5.1", "7")), (Events{"asked", "found 5.1"}));
    EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "neither read nor saved: the folder "));
    EXPECT_EQ(Check(SignedFeedOf("5.1", "6")), Events{"aborted 3002"}) << "the process remembers its own";
    EXPECT_EQ(ReadFeedRecordFile(elsewhere.filePath(QStringLiteral("updates/feed")))->serial, 8);
}

TEST_F(SignedFeedCheck, UnreadableLowestSerialIsIgnored)
{
    for (QByteArray const& record :
         {QByteArray("serial = eight;"), QByteArray("serial = \"8\";"), QByteArray("serial = (<*I8>);"),
          QByteArray("serial = <*I-8>;"), QByteArray("serial = <*D2027-01-01 00:00:00 +0000>;"), QByteArray()})
    {
        WriteRecord(record + " digest = (); firstSeen = today; lastSeen = <*I3>;");
        LogCapture log;
        EXPECT_EQ(Check(SignedFeedOf("5.1", "7")), (Events{"asked", "found 5.1"})) << record.toStdString();
        EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "The entry firstSeen of PelnarFeedRecord is of the wrong type"));
        WaitForSerial(7);
        QFile::remove(RecordPath());
    }
    for (QByteArray const& defaults :
         {QByteArray("{ PelnarFeedRecord = 8; }"), QByteArray("{ PelnarFeedRecord = (8); }"),
          QByteArray("no property list"), QByteArray()})
    {
        WriteEarlierDefaults(defaults);
        EXPECT_EQ(Check(SignedFeedOf("5.1", "7")), (Events{"asked", "found 5.1"})) << defaults.toStdString();
        WaitForSerial(7);
        WriteFile(defaults);
        EXPECT_EQ(Check(SignedFeedOf("5.1", "6")), (Events{"asked", "found 5.1"})) << defaults.toStdString();
        WaitForSerial(6);
        QFile::remove(RecordPath());
    }
}

TEST_F(SignedFeedCheck, StoringItDoesNotBlockTheEventLoop)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(RecordPath()).path()));
    // Every writer waits for this lock.
    QLockFile lock(RecordPath() + QStringLiteral(".lock"));
    ASSERT_TRUE(lock.lock());
    EXPECT_EQ(Check(SignedFeedOf("5.1", "7")), (Events{"asked", "found 5.1"}));
    EXPECT_FALSE(KeptRecord()) << "the check has ended, and nothing is stored yet";
    EXPECT_EQ(Check(SignedFeedOf("5.1", "6")), Events{"aborted 3002"}) << "it is still stored";
    lock.unlock();
    WaitForSerial(7);
}

TEST_F(SignedFeedCheck, LowestSerialThatCannotBeSavedHoldsUntilTheProcessEnds)
{
    ASSERT_TRUE(QDir().mkpath(StateFolder()));
    QFile inTheWay(QFileInfo(RecordPath()).path());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    LogCapture log;
    EXPECT_EQ(Check(SignedFeedOf("5.1", "7")), (Events{"asked", "found 5.1"}));
    EXPECT_TRUE(WaitFor([&log] { return HasLog(log, google::GLOG_WARNING, "could not be saved in"); }));
    EXPECT_EQ(Check(SignedFeedOf("5.1", "6")), Events{"aborted 3002"});
    ExpectRefused(3002, 762);
}

TEST_F(SignedFeedCheck, HostCanAskForHowLongTheFeedHasNotChanged)
{
    EXPECT_EQ(Pelnar::Engine::DaysOfUnchangedFeed(), 0) << "no feed yet";
    QByteArray const feed = SignedFeedOf("5.1");
    QByteArray const firstSeen =
        QDateTime::currentDateTimeUtc().addDays(-400).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toLatin1();
    WriteRecord("digest = \"" + QCryptographicHash::hash(feed, QCryptographicHash::Sha256).toHex() +
                "\"; firstSeen = <*D" + firstSeen + " +0000>;");
    LogCapture log;
    EXPECT_EQ(Check(feed), (Events{"asked", "found 5.1"}));
    EXPECT_EQ(Pelnar::Engine::DaysOfUnchangedFeed(), 400);
    EXPECT_TRUE(HasLog(log, google::GLOG_WARNING, "The update feed has not changed for 400 days"));
    EXPECT_EQ(Check(SignedFeedOf("5.2")), (Events{"asked", "found 5.2"}));
    EXPECT_EQ(Pelnar::Engine::DaysOfUnchangedFeed(), 0);
}

} // namespace
