// UpdateFlowTest.cpp: a check with its windows, from the feed to the update or to the final message.
#include "Engine/core/update/UpdateFlow.h"
#include "tests/engine/FeedText.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"
#include "tests/update/ScriptedUpdate.h"

#include <QFile>

#include <ostream>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

QByteArray Signed(QByteArray const& item)
{
    QByteArray result = item;
    return result.replace(" length=", QByteArray(" sparkle:edSignature=\"") + GOOD_SIGNATURE + "\" length=");
}

class UpdateFlowTest : public UpdateFixture
{
protected:
    void Publish(QByteArray const& feed)
    {
        QFile file(folder.filePath(QStringLiteral("feed.xml")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(feed);
        settings.check.feedUrl = QUrl::fromLocalFile(file.fileName());
    }

    void Begin(CheckKind kind)
    {
        notes.clear();
        hasEnded = false;
        host.onEnded = [this] { hasEnded = true; };
        flow = std::make_unique<UpdateFlow>(kind, settings, host, windows, parts);
        flow->Start();
    }

    Notes Run(CheckKind kind)
    {
        Begin(kind);
        EXPECT_TRUE(WaitFor([this] { return hasEnded; }));
        return notes;
    }

    Notes RunToWindow(CheckKind kind, std::string const& name)
    {
        Begin(kind);
        EXPECT_TRUE(WaitFor([this, &name] { return windows.open == name; })) << windows.open;
        return notes;
    }

    [[nodiscard]] bool WaitForDownload()
    {
        return WaitFor([this] { return !notes.empty() && notes.back().rfind("download", 0) == 0; });
    }

    bool hasEnded = false;
    std::unique_ptr<UpdateFlow> flow;
};

TEST_F(UpdateFlowTest, PersonIsShownThatTheyAreUpToDate)
{
    Publish(FeedWith(ItemOf("5.0")));
    EXPECT_EQ(Run(CheckKind::Interactive), (Notes{"window checking", "not found", "aborted 1001", "check ended",
                                                  "window up to date Five", "ended"}));
}

TEST_F(UpdateFlowTest, PersonIsShownWhatFailed)
{
    Publish("<rss>");
    EXPECT_EQ(Run(CheckKind::Interactive),
              (Notes{"window checking", "aborted 1000", "check ended", "window error", "ended"}));
}

TEST_F(UpdateFlowTest, NobodyIsShownAnythingOfAnEmptyBackgroundCheck)
{
    Publish(FeedWith(ItemOf("5.0")));
    EXPECT_EQ(Run(CheckKind::Background), (Notes{"not found", "aborted 1001", "check ended", "ended"}));
    EXPECT_EQ(Run(CheckKind::Probe), (Notes{"not found", "check ended", "ended"}));
}

TEST_F(UpdateFlowTest, ProbeThatFindsEndsWithItsReport)
{
    Publish(FeedWith(Signed(ItemOf("5.1"))));
    EXPECT_EQ(Run(CheckKind::Probe), (Notes{"found", "check ended", "ended"}));
}

TEST_F(UpdateFlowTest, FoundUpdateIsOfferedAndPutOff)
{
    Publish(FeedWith(Signed(ItemOf("5.1"))));
    EXPECT_EQ(RunToWindow(CheckKind::Interactive, "update"),
              (Notes{"window checking", "found", "check ended", "window update"}));
    windows.Choose(UpdateChoice::RemindMeLater);
    EXPECT_EQ(notes.back(), "ended");
    EXPECT_EQ(windows.open, "");
}

TEST_F(UpdateFlowTest, TheSmallerArchiveIsDownloadedAndTheOtherWhenThatFails)
{
    settings.automaticDownload = AutomaticDownload::On;
    Publish(FeedWith(Signed(ItemOf("5.1", "<p:recompressed xmlns:p=\"https://pelnar.example/xml-namespaces/appcast\" "
                                          "url=\"Pelnar-5.1.tar.zst\" length=\"600\"/>"))));
    Begin(CheckKind::Background);
    ASSERT_TRUE(WaitForDownload());
    ASSERT_EQ(parts.requests.size(), 1u);
    EXPECT_EQ(parts.requests[0].url.fileName(), QStringLiteral("Pelnar-5.1.tar.zst"));
    EXPECT_EQ(parts.requests[0].declaredBytes, 600u);
    parts.FailDownload(ErrorCause::HttpStatus);
    ASSERT_EQ(parts.requests.size(), 2u);
    EXPECT_EQ(parts.requests[1].url.fileName(), QStringLiteral("Pelnar-5.1.zip"));
    EXPECT_EQ(parts.requests[1].declaredBytes, 1000u);
}

TEST_F(UpdateFlowTest, UnaskedUpdateIsOfferedQuietly)
{
    Publish(FeedWith(Signed(ItemOf("5.1"))));
    RunToWindow(CheckKind::Background, "quiet update");
    windows.Choose(UpdateChoice::SkipThisVersion);
    EXPECT_EQ(notes, (Notes{"found", "check ended", "window quiet update", "skip 5.1", "ended"}));
}

TEST_F(UpdateFlowTest, InformationalUpdateIsAWindowWithItsPageAlsoWhenAutomatic)
{
    Publish(FeedWith(Signed(ItemOf("5.1", "<sparkle:informationalUpdate/><link>https://a.example/5.1</link>"))));
    settings.automaticDownload = AutomaticDownload::On;
    RunToWindow(CheckKind::Background, "quiet update");
    ASSERT_TRUE(windows.offer);
    EXPECT_EQ(windows.offer->form, UpdateForm::Page);
    EXPECT_EQ(windows.offer->page, QUrl(QStringLiteral("https://a.example/5.1")));
    EXPECT_EQ(windows.offer->sizeBytes, 0u);
    windows.Choose(UpdateChoice::RemindMeLater);
    EXPECT_EQ(notes, (Notes{"found", "check ended", "aborted 4007", "window quiet update", "ended"}))
        << "a person who waits for a silent download hears that there is no update";
    EXPECT_TRUE(parts.requests.empty());
}

TEST_F(UpdateFlowTest, InformationalUpdateForOthersIsAnOrdinaryOne)
{
    Publish(FeedWith(Signed(ItemOf("5.1", "<sparkle:informationalUpdate><sparkle:belowVersion>5.0"
                                          "</sparkle:belowVersion></sparkle:informationalUpdate>"))));
    RunToWindow(CheckKind::Interactive, "update");
    ASSERT_TRUE(windows.offer);
    EXPECT_EQ(windows.offer->form, UpdateForm::Download);
}

TEST_F(UpdateFlowTest, VersionThatIsTooOldForASilentUpdateIsAsked)
{
    settings.automaticDownload = AutomaticDownload::On;
    Publish(
        FeedWith(Signed(ItemOf("5.1", "<sparkle:minimumAutoupdateVersion>5.05</sparkle:minimumAutoupdateVersion>"))));
    RunToWindow(CheckKind::Background, "quiet update");
    EXPECT_EQ(notes, (Notes{"found", "check ended", "aborted 4007", "window quiet update"}));
    windows.Choose(UpdateChoice::InstallUpdate);
    EXPECT_EQ(parts.requests.size(), 1u);
    flow.reset();

    Publish(
        FeedWith(Signed(ItemOf("5.1", "<sparkle:minimumAutoupdateVersion>5.0</sparkle:minimumAutoupdateVersion>"))));
    Begin(CheckKind::Background);
    EXPECT_TRUE(WaitForDownload()) << "silent";
}

TEST_F(UpdateFlowTest, CriticalUpdateIsOfferedThoughItWasSkipped)
{
    settings.check.skippedVersion = QStringLiteral("5.1");
    Publish(FeedWith(Signed(ItemOf("5.1", "<sparkle:criticalUpdate sparkle:version='5.05'/>"))));
    RunToWindow(CheckKind::Background, "quiet update");
    ASSERT_TRUE(windows.offer);
    EXPECT_EQ(windows.offer->importance, UpdateImportance::Critical);
    windows.Choose(UpdateChoice::RemindMeLater);
    Publish(FeedWith(Signed(ItemOf("5.1", "<sparkle:criticalUpdate sparkle:version='5.0'/>"))));
    EXPECT_EQ(Run(CheckKind::Background), (Notes{"not found", "aborted 1001", "check ended", "ended"}));
}

TEST_F(UpdateFlowTest, StagedUpdateIsAPersonsAtOnce)
{
    settings.check.rolloutGroup = [](QString const&) { return 6; };
    parts.now = QDateTime(QDate(2019, 1, 8), QTime(0, 0), Qt::UTC);
    Publish(FeedWith(Signed(ItemOf("5.1", "<sparkle:phasedRolloutInterval>86400</sparkle:phasedRolloutInterval>"))));
    EXPECT_EQ(Run(CheckKind::Probe), (Notes{"not found", "check ended", "ended"}));
    EXPECT_EQ(Run(CheckKind::Background), (Notes{"not found", "aborted 1001", "check ended", "ended"}));
    EXPECT_EQ(host.itemCount, 0u) << "the application is not asked about it";
    RunToWindow(CheckKind::Interactive, "update");
    windows.Choose(UpdateChoice::RemindMeLater);
    parts.now = QDateTime(QDate(2019, 1, 13), QTime(10, 0), Qt::UTC);
    EXPECT_EQ(Run(CheckKind::Probe), (Notes{"found", "check ended", "ended"}));
}

TEST_F(UpdateFlowTest, ItemOfAnotherChannelHidesNoOtherOne)
{
    Publish(FeedWith(Signed(ItemOf("5.2", "<sparkle:channel>beta</sparkle:channel>")) + Signed(ItemOf("5.1"))));
    RunToWindow(CheckKind::Interactive, "update");
    EXPECT_EQ(host.itemCount, 1u);
    windows.Choose(UpdateChoice::RemindMeLater);
    settings.check.channels = QStringList{QStringLiteral("beta")};
    RunToWindow(CheckKind::Interactive, "update");
    EXPECT_EQ(host.itemCount, 2u);
}

/// A feed that was edited by hand.
TEST_F(UpdateFlowTest, NewerItemThatNoClientCanTakeIsLogged)
{
    QByteArray const item = Signed(ItemOf("5.1"));
    ASSERT_TRUE(item.contains("length=") && item.contains("url="));
    Publish(FeedWith(QByteArray(item).replace("length=", "size=") + QByteArray(item).replace("url=", "href=") +
                     Signed(ItemOf("1.0")).replace("length=", "size=")));
    LogCapture const log;
    Run(CheckKind::Probe);
    std::vector<std::string> warnings;
    for (LogRecord const& record : log.Of(google::GLOG_WARNING))
    {
        warnings.push_back(record.text);
    }
    EXPECT_EQ(warnings, (std::vector<std::string>{
                            "The feed's item 5.1 cannot be offered, because it has no valid length",
                            "The feed's item 5.1 cannot be offered, because it has no valid download address"}))
        << "nobody misses older items";
}

TEST_F(UpdateFlowTest, FeedCannotFillTheLog)
{
    QByteArray items;
    for (int i = 0; i < 300; ++i)
    {
        items += Signed(ItemOf("5.2", "<sparkle:channel>beta</sparkle:channel>")) +
                 Signed(ItemOf("5.1")).replace("length=", "size=");
    }
    Publish(FeedWith(items));
    LogCapture const log;
    Run(CheckKind::Probe);
    std::vector<std::string> more;
    int named = 0;
    for (std::string const& text : log.Texts())
    {
        named += text.rfind("The feed's item", 0) == 0 ? 1 : 0;
        more.insert(more.end(), text.rfind("The feed has", 0) == 0 ? 1 : 0, text);
    }
    EXPECT_EQ(named, 40);
    EXPECT_EQ(more, (std::vector<std::string>{"The feed has 280 more items that are left out",
                                              "The feed has 280 more items that cannot be offered"}));
}

TEST_F(UpdateFlowTest, ItemsWhoseVersionCannotBeReadAreComparedAFewTimes)
{
    QByteArray items;
    for (int i = 0; i < 300; ++i)
    {
        items += "<item><title>News</title></item>" + ItemOf("x" + QByteArray::number(i)).replace("length=", "size=");
    }
    Publish(FeedWith(Signed(ItemOf("5.1")) + items));
    Run(CheckKind::Probe);
    EXPECT_EQ(host.unreadableVersions, 20);
}

/// An application's comparator writes two lines to the log for each of these.
TEST_F(UpdateFlowTest, BoundsThatCannotBeReadAreComparedAFewTimes)
{
    QByteArray items;
    for (int i = 0; i < 300; ++i)
    {
        QByteArray const number = QByteArray::number(i);
        items +=
            Signed(ItemOf("5.1", "<sparkle:minimumUpdateVersion>a" + number +
                                     "</sparkle:minimumUpdateVersion><sparkle:minimumAutoupdateVersion>b" + number +
                                     "</sparkle:minimumAutoupdateVersion><sparkle:criticalUpdate sparkle:version='c" +
                                     number + "'/><sparkle:informationalUpdate><sparkle:version>d" + number +
                                     "</sparkle:version></sparkle:informationalUpdate>"));
    }
    items += Signed(ItemOf("5.3", "<sparkle:minimumUpdateVersion>5.2</sparkle:minimumUpdateVersion>"));
    Publish(FeedWith(items));
    LogCapture const log;
    Run(CheckKind::Probe);
    EXPECT_EQ(host.unreadableVersions, 20);
    EXPECT_EQ(log.Texts().back(), "The feed has 880 more versions that cannot be read");
    EXPECT_EQ(host.itemCount, 300u) << "a plain version counts, even after those";
}

TEST_F(UpdateFlowTest, CheckCanBeCancelledByThePersonWhoAsked)
{
    Publish(FeedWith(ItemOf("5.1")));
    Begin(CheckKind::Interactive);
    windows.Cancel();
    EXPECT_EQ(notes, (Notes{"window checking", "aborted 4007", "check ended", "ended"}));
    QCoreApplication::processEvents();
    EXPECT_EQ(notes.size(), 4u) << "the feed is not looked at";
}

TEST_F(UpdateFlowTest, FailedUpdateIsToldAndShownToWhomItConcerns)
{
    Publish(FeedWith(Signed(ItemOf("5.1"))));
    RunToWindow(CheckKind::Interactive, "update");
    windows.Choose(UpdateChoice::InstallUpdate);
    parts.FailDownload(ErrorCause::HostNotFound);
    EXPECT_EQ((Notes(notes.end() - 3, notes.end())), (Notes{"aborted 1002", "window error", "ended"}));

    RunToWindow(CheckKind::Background, "quiet update");
    windows.Choose(UpdateChoice::InstallUpdate);
    parts.FailDownload(ErrorCause::HostNotFound);
    EXPECT_EQ((Notes(notes.end() - 4, notes.end())), (Notes{"aborted 1002", "failures 1", "window error", "ended"}))
        << "anyone who agreed waits for it";

    windows.Close();
    settings.automaticDownload = AutomaticDownload::On;
    Begin(CheckKind::Background);
    ASSERT_TRUE(WaitForDownload());
    parts.FailDownload(ErrorCause::HostNotFound);
    EXPECT_EQ((Notes(notes.end() - 3, notes.end())), (Notes{"aborted 1002", "failures 1", "ended"}));
}

TEST_F(UpdateFlowTest, WindowLeftOpenByAnEarlierCheckSurvivesOneThatNobodyAskedFor)
{
    Publish("<rss>");
    Run(CheckKind::Interactive);
    ASSERT_EQ(windows.open, "error");
    Run(CheckKind::Probe);
    Run(CheckKind::Background);
    Publish(FeedWith(ItemOf("5.1")));
    Run(CheckKind::Background);
    EXPECT_EQ(host.error->cause, ErrorCause::Fault) << "not signed";
    EXPECT_EQ(windows.open, "error");
}

TEST_F(UpdateFlowTest, DeltaAndItsWholeItemBothReachTheUpdate)
{
    Publish(FeedWith(Signed(ItemOf("5.1", DeltaOf("5.1", "5.0")))));
    host.AnswerWith({{BestItemAnswer::Kind::Place, {0, 0}}, {BestItemAnswer::Kind::Place, {0, std::nullopt}}});
    settings.automaticDownload = AutomaticDownload::On;
    Begin(CheckKind::Background);
    ASSERT_TRUE(WaitForDownload());
    EXPECT_EQ(parts.requests[0].declaredBytes, 100u);
    EXPECT_EQ(parts.requests[0].purpose, DownloadFor::Nobody);
    parts.FailDownload(ErrorCause::HttpStatus);
    ASSERT_EQ(parts.requests.size(), 2u);
    EXPECT_EQ(parts.requests[1].declaredBytes, 1000u);
}

TEST_F(UpdateFlowTest, DownloadsAreClearedWhenNoneIsWantedAndNotWhenOneIsPutOff)
{
    QStringList const once(settings.downloadFolder);
    Publish(FeedWith(ItemOf("5.0")));
    Run(CheckKind::Background);
    EXPECT_EQ(parts.cleared, once) << "not newer";
    Publish(FeedWith(""));
    host.AnswerWith({{BestItemAnswer::Kind::None, {}}});
    Run(CheckKind::Probe);
    EXPECT_EQ(parts.cleared, once + once) << "nothing at all";
    Publish(FeedWith(Signed(ItemOf("5.1"))));
    settings.check.skippedVersion = QStringLiteral("5.1");
    Run(CheckKind::Probe);
    settings.check.skippedVersion.clear();
    settings.check.failedVersion = QStringLiteral("5.1");
    Run(CheckKind::Probe);
    settings.check.failedVersion.clear();
    Run(CheckKind::Probe);
    Publish("<rss>");
    Run(CheckKind::Probe);
    EXPECT_EQ(parts.cleared, once + once) << "skipped, failed, offered, unreadable";
}

struct Second
{
    char const* name;
    BestItemAnswer answer;
};

TEST_F(UpdateFlowTest, OnlyTheSameVersionCanTakeADeltasPlace)
{
    Publish(FeedWith(Signed(ItemOf("5.1", DeltaOf("5.1", "5.0"))) + Signed(ItemOf("5.2"))));
    settings.automaticDownload = AutomaticDownload::On;
    for (Second const& second :
         {Second{"another version", {BestItemAnswer::Kind::Place, {1, std::nullopt}}},
          Second{"the delta again", {BestItemAnswer::Kind::Place, {0, 0}}}, Second{"nothing", {}}})
    {
        host.AnswerWith({{BestItemAnswer::Kind::Place, {0, 0}}, second.answer});
        Begin(CheckKind::Background);
        ASSERT_TRUE(WaitForDownload()) << second.name;
        parts.FailDownload(ErrorCause::HttpStatus);
        EXPECT_TRUE(hasEnded) << second.name;
    }
}
TEST_F(UpdateFlowTest, FailuresInARowDelayOnlyBackgroundChecks)
{
    Publish(FeedWith(Signed(ItemOf("5.1"))));
    settings.backOff = {1, parts.now};
    parts.now = parts.now.addSecs(3599);
    EXPECT_EQ(Run(CheckKind::Background), (Notes{"aborted 1002", "check ended", "ended"}));
    EXPECT_EQ(host.error->cause, ErrorCause::HeldBack);
    EXPECT_EQ(Run(CheckKind::Probe).front(), "found") << "may be the first half of a check of the user";
    EXPECT_EQ(RunToWindow(CheckKind::Interactive, "update").front(), "window checking");
    flow.reset();
    parts.now = parts.now.addSecs(1);
    EXPECT_EQ(RunToWindow(CheckKind::Background, "quiet update").front(), "found");
}

TEST_F(UpdateFlowTest, FailuresAreCountedToldAndForgotten)
{
    Publish("<rss>");
    settings.backOff = {2, parts.now.addDays(-2)};
    LogCapture log;
    EXPECT_EQ(Run(CheckKind::Background), (Notes{"aborted 1000", "check ended", "failures 3", "ended"}));
    bool isTold = false;
    for (LogRecord const& record : log.Of(google::GLOG_WARNING))
    {
        isTold |= record.text.find("The last 3 checks for updates failed; the next one in the background waits for 4 "
                                   "hours") != std::string::npos;
    }
    EXPECT_TRUE(isTold);
    EXPECT_EQ(Run(CheckKind::Interactive).back(), "ended");
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "failures 3"), 0) << "a person's own check counts for nothing";
    EXPECT_EQ(Run(CheckKind::Probe), (Notes{"aborted 1000", "check ended", "ended"}));
    Publish(FeedWith(ItemOf("5.0")));
    EXPECT_EQ(Run(CheckKind::Background), (Notes{"not found", "aborted 1001", "check ended", "failures 0", "ended"}));
}

TEST_F(UpdateFlowTest, SwitchedOffNothingIsFetchedByAnyCheck)
{
    settings.updates = UpdateSwitch::Off;
    settings.check.feedUrl = QUrl(QStringLiteral("http://127.0.0.1:1/feed.xml"));
    EXPECT_EQ(Run(CheckKind::Probe), (Notes{"aborted 1002", "check ended", "ended"}));
    EXPECT_EQ(host.error->cause, ErrorCause::UpdatesDisabled);
    EXPECT_EQ(Run(CheckKind::Background), (Notes{"aborted 1002", "check ended", "ended"}));
    EXPECT_EQ(Run(CheckKind::Interactive), (Notes{"aborted 1002", "check ended", "window error", "ended"}));
}

TEST_F(UpdateFlowTest, DelegateThatFailsAtTheNewsEndsTheUpdate)
{
    Publish(FeedWith(Signed(ItemOf("5.1"))));
    host.throwsIn = "found";
    EXPECT_EQ(Run(CheckKind::Interactive),
              (Notes{"window checking", "found", "aborted 1002", "check ended", "window error", "ended"}));
}

} // namespace
