// KeptFeedFlowTest.cpp: repeated checks of one feed on a server that knows versions: their cost. A feed that is not
// sent again is judged as if it had been.
#include "Engine/core/update/FeedStore.h"
#include "Engine/core/update/UpdateFlow.h"
#include "tests/engine/SignedFeedText.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TaggedFeed.h"
#include "tests/update/ScriptedUpdate.h"

#include <QDir>
#include <QFile>
#include <QPointer>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

class KeptFeedFlow : public UpdateFixture
{
protected:
    KeptFeedFlow()
    {
        settings.check.publicKeys = {MakeKeyPair(7).publicKey};
        settings.check.feedUrl = server.Url();
        NewProcess();
    }

    /// Like the next process of the application: the state comes from the disk.
    void NewProcess()
    {
        store.reset();
        store.emplace(FeedFolder{cache, QStringLiteral("example.app")});
        settings.check.feedStore = &*store;
    }

    Notes Check(CheckKind kind = CheckKind::Probe)
    {
        settings.check.feedRecord = host.feedRecord.value_or(settings.check.feedRecord);
        notes.clear();
        host.error.reset();
        host.feedRecord.reset();
        bool hasEnded = false;
        host.onEnded = [&hasEnded] { hasEnded = true; };
        UpdateFlow flow(kind, settings, host, windows, parts);
        flow.Start();
        EXPECT_TRUE(WaitFor([&hasEnded] { return hasEnded; }));
        QCoreApplication::processEvents();
        return notes;
    }

    void RequireSigned(QByteArray const& expires)
    {
        settings.check.feedSigning = FeedSigning::Required;
        feed.body = SignedFeedOf("5.1", "7", expires);
    }

    int CauseOfEnd() const { return host.error ? host.error->UnderlyingCode() : 0; }

    QByteArray const body = FeedWith(ItemOf("5.1") + "<!--" + QByteArray(100000, 'x') + "-->");
    TaggedFeed feed{body};
    LoopbackServer server{feed.Script()};
    QString const cache = folder.filePath(QStringLiteral("cache"));
    std::optional<FeedStore> store;
    Notes const found{"found", "check ended", "ended"};
};

TEST_F(KeptFeedFlow, SecondFetchOfACheckAsksWhetherSomethingHasChanged)
{
    settings.check.skippedVersion = QStringLiteral("5.1");
    (void)Check();
    (void)Check(CheckKind::Background);
    EXPECT_EQ(feed.wholes, 1);
    EXPECT_EQ(feed.unchanged, 1);
    EXPECT_EQ(server.Connections(), 1);
}

TEST_F(KeptFeedFlow, UnchangedFeedMovesNoBodyInAnyProcess)
{
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.bodyBytes, body.size());
    feed.bodyBytes = 0;
    for (int process = 0; process < 3; ++process)
    {
        NewProcess();
        EXPECT_EQ(Check(), found);
        EXPECT_EQ(host.itemCount, 1u);
        EXPECT_EQ(Check(), found);
    }
    EXPECT_LE(feed.bodyBytes, 1024);
    EXPECT_EQ(feed.wholes, 1);
    EXPECT_EQ(feed.unchanged, 6);
}

TEST_F(KeptFeedFlow, ChangedFeedTakesItsPlace)
{
    EXPECT_EQ(Check(), found);
    feed = TaggedFeed{FeedWith(ItemOf("4.9")), "ETag: \"two\"\r\n", "If-None-Match: \"two\"\r\n"};
    for (int process = 0; process < 2; ++process)
    {
        NewProcess();
        EXPECT_EQ(Check(), (Notes{"not found", "check ended", "ended"}));
    }
    EXPECT_EQ(feed.wholes, 1);
    EXPECT_EQ(feed.unchanged, 1);
}

TEST_F(KeptFeedFlow, WithoutAFolderTheProcessRemembersItself)
{
    QFile inTheWay(cache);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.wholes, 1) << "the second fetch of a check needs no disk";
    NewProcess();
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.wholes, 2);
}

TEST_F(KeptFeedFlow, DamagedFileIsFetchedAgain)
{
    EXPECT_EQ(Check(), found);
    NewProcess();
    QFile file(cache + QStringLiteral("/kept.feed"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(5000));
    ASSERT_EQ(file.write("y"), 1);
    file.close();
    EXPECT_EQ(Check(), found);
    EXPECT_FALSE(server.Requests().back().contains("\r\nIf-"));
    NewProcess();
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.wholes, 2) << "it was kept again";
}

TEST_F(KeptFeedFlow, FeedThatNeverChangesGrowsOld)
{
    QDateTime const begin = parts.now;
    for (int const days : {0, 10, 29, 40, 190})
    {
        parts.now = begin.addDays(days);
        EXPECT_EQ(Check(), found);
        ASSERT_TRUE(host.feedRecord);
        EXPECT_EQ(UnchangedDays(*host.feedRecord), days);
    }
    EXPECT_EQ(feed.unchanged, 2);
    EXPECT_EQ(feed.wholes, 3) << "after thirty days the whole is asked for";
}

TEST_F(KeptFeedFlow, SignedFeedExpiresHoweverOftenItIsCalledUnchanged)
{
    RequireSigned("2026-12-20T08:00:00Z");
    parts.now = QDateTime(QDate(2026, 12, 20), QTime(7, 0), Qt::UTC);
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.unchanged, 1);
    parts.now = parts.now.addSecs(3600);
    EXPECT_EQ(Check(), (Notes{"aborted 3002", "check ended", "ended"}));
    EXPECT_EQ(CauseOfEnd(), 763);
    EXPECT_EQ(feed.wholes, 2) << "the server may have had another one, and was asked";
    // Signed again, on a server that gives new content an old version.
    feed.body = SignedFeedOf("5.1", "8", "2027-01-20T08:00:00Z");
    EXPECT_EQ(Check(), found);
}

TEST_F(KeptFeedFlow, ServerThatKeepsItsTagForAFeedSignedAgainIsAskedForIt)
{
    RequireSigned("2026-12-20T08:00:00Z");
    parts.now = QDateTime(QDate(2026, 12, 19), QTime(8, 0), Qt::UTC);
    EXPECT_EQ(Check(), found);
    feed.body = SignedFeedOf("5.1", "8", "2027-01-20T08:00:00Z");
    parts.now = parts.now.addDays(2);
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.unchanged, 1);
    EXPECT_EQ(feed.wholes, 2);
}

TEST_F(KeptFeedFlow, KeptFeedIsVerifiedAgain)
{
    RequireSigned(FAR_AHEAD);
    EXPECT_EQ(Check(), found);
    settings.check.publicKeys = {MakeKeyPair(8).publicKey};
    EXPECT_EQ(Check(), (Notes{"aborted 3001", "check ended", "ended"}));
    EXPECT_EQ(feed.unchanged, 1);
    EXPECT_EQ(feed.wholes, 2);
}

TEST_F(KeptFeedFlow, KeptFeedWithAnOlderSerialThanAnotherProcessSawIsRefused)
{
    RequireSigned(FAR_AHEAD);
    EXPECT_EQ(Check(), found);
    host.feedRecord->serial = 90;
    EXPECT_EQ(Check(), (Notes{"aborted 3002", "check ended", "ended"}));
    EXPECT_EQ(CauseOfEnd(), 762);
    EXPECT_EQ(feed.wholes, 2);
}

TEST_F(KeptFeedFlow, FeedThatANewerEngineRefusesIsFetchedAgain)
{
    EXPECT_EQ(Check(), found);
    settings.check.feedLimits.maxItems = 0;
    LogCapture log;
    EXPECT_EQ(Check().front(), "aborted 1000");
    ASSERT_EQ(log.Of(google::GLOG_WARNING).size(), 1u);
    EXPECT_NE(log.Of(google::GLOG_WARNING).front().text.find("was refused and removed"), std::string::npos);
    EXPECT_EQ(feed.unchanged, 1);
    EXPECT_EQ(feed.wholes, 2);
    NewProcess();
    settings.check.feedLimits = {};
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.wholes, 3) << "nothing was kept of it";
}

TEST_F(KeptFeedFlow, FeedThatIsRefusedIsNotKept)
{
    feed.body = "<html>log in</html>";
    EXPECT_EQ(Check().front(), "aborted 1000");
    feed.body = body;
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.unchanged, 0);
}

class AnswerToACondition : public KeptFeedFlow, public testing::WithParamInterface<char const*>
{
protected:
    LoopbackServer failing{[this](QSslSocket& socket, QByteArray const& request, int number)
                           {
                               if (request.contains("If-None-Match"))
                               {
                                   ++conditions;
                                   socket.write("HTTP/1.1 " + QByteArray(GetParam()) + "\r\nContent-Length: 0\r\n\r\n");
                                   return;
                               }
                               feed.Script()(socket, request, number);
                           }};
    int conditions = 0;
};

TEST_P(AnswerToACondition, CostsOneCheck)
{
    settings.check.feedUrl = failing.Url();
    EXPECT_EQ(Check(), found);
    NewProcess();
    EXPECT_EQ(Check().back(), "ended");
    EXPECT_TRUE(host.error);
    for (int process = 0; process < 2; ++process)
    {
        NewProcess();
        EXPECT_EQ(Check(), found) << process;
        store->Keep(std::nullopt);
    }
    EXPECT_EQ(conditions, 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, AnswerToACondition,
                         testing::Values("500 Error", "403 Forbidden", "206 Partial Content", "200 OK"),
                         [](testing::TestParamInfo<char const*> const& info)
                         { return "Status" + std::string(info.param, 3); });

TEST_F(KeptFeedFlow, NothingIsLeftWhenTheServerWantsNothingKept)
{
    EXPECT_EQ(Check(), found);
    NewProcess();
    EXPECT_TRUE(QFile::exists(cache + QStringLiteral("/kept.feed")));
    feed.fields = "ETag: \"one\"\r\nCache-Control: no-store\r\n";
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.unchanged, 1);
    NewProcess();
    EXPECT_FALSE(QFile::exists(cache + QStringLiteral("/kept.feed")));
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.wholes, 3) << "nor is it kept in memory";
    NewProcess();
    EXPECT_FALSE(QFile::exists(cache + QStringLiteral("/kept.feed")));
}

TEST_F(KeptFeedFlow, OtherFeedGetsNothingOfIt)
{
    EXPECT_EQ(Check(), found);
    TaggedFeed otherFeed{FeedWith(ItemOf("5.2"))};
    LoopbackServer other(otherFeed.Script());
    settings.check.feedUrl = other.Url();
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(otherFeed.wholes, 1) << "though its version has the same name";
    settings.check.feedUrl = server.Url();
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(feed.wholes, 2) << "one feed is kept";
}

TEST_F(KeptFeedFlow, SmallerLimitThanTheKeptFeedHoldsAtOnce)
{
    EXPECT_EQ(Check(), found);
    settings.check.fetchLimits.maxBodyBytes = body.size() - 1;
    EXPECT_EQ(Check().front(), "aborted 1002");
    EXPECT_EQ(feed.unchanged, 0);
}

/// A slow disk: it answers when the test says so, or never.
class HangingStore : public IFeedStore
{
public:
    void Ask(qint64, QObject* receiver, std::function<void(std::optional<KeptFeed> const&)> answer) override
    {
        m_receiver = receiver;
        m_answer = std::move(answer);
    }
    void Keep(std::optional<KeptFeed> feed) override { kept = std::move(feed); }
    void Answer(KeptFeed const& feed)
    {
        if (m_receiver)
        {
            m_answer(feed);
        }
    }

    std::optional<KeptFeed> kept;

private:
    QPointer<QObject> m_receiver;
    std::function<void(std::optional<KeptFeed> const&)> m_answer;
};

TEST_F(KeptFeedFlow, DiskThatHangsHoldsTheCheckUpForAMomentOnly)
{
    HangingStore hanging;
    settings.check.feedStore = &hanging;
    EXPECT_EQ(Check(), found);
    ASSERT_TRUE(hanging.kept);
    EXPECT_EQ(feed.wholes, 1);
    // Its answer arrives while the feed is being fetched.
    KeptFeed const kept = *hanging.kept;
    LoopbackServer late(
        [&](QSslSocket& socket, QByteArray const& request, int)
        {
            hanging.Answer(kept);
            feed.Answer(socket, request);
        });
    settings.check.feedUrl = late.Url();
    EXPECT_EQ(Check(), found);
    EXPECT_EQ(late.Requests().size(), 1u) << "one feed is fetched for one check";
}

TEST_F(KeptFeedFlow, CheckThatIsGivenUpHearsNoMore)
{
    EXPECT_EQ(Check(), found);
    NewProcess();
    notes.clear();
    {
        UpdateFlow flow(CheckKind::Probe, settings, host, windows, parts);
        flow.Start();
    }
    NewProcess();
    EXPECT_FALSE(WaitFor([this] { return !notes.empty(); }, 100));
    EXPECT_EQ(server.Requests().size(), 1u);
}

} // namespace
