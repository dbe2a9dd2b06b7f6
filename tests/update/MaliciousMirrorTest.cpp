// MaliciousMirrorTest.cpp: an application checks every hour for ten days. The server never gives it a usable update.
#include "Engine/core/update/UpdateFlow.h"
#include "tests/engine/FeedText.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LoopbackServer.h"
#include "tests/update/ScriptedUpdate.h"

#include <algorithm>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

constexpr int HOURS = 240;
/// After 1, 2, 4, 8, 16, and then always 24 hours.
std::vector<int> const HOURS_OF_REQUESTS = {0, 1, 3, 7, 15, 31, 55, 79, 103, 127, 151, 175, 199, 223};

class MaliciousMirror : public UpdateFixture
{
protected:
    MaliciousMirror()
    {
        settings.automaticDownload = AutomaticDownload::On;
        settings.check.feedUrl = server.Url();
    }

    /// A background check every hour. Returns the hours at which the server was asked for the feed.
    std::vector<int> CheckEveryHour()
    {
        std::vector<int> hours;
        for (int hour = 0; hour < HOURS; ++hour)
        {
            std::size_t const before = server.Requests().size();
            host.error.reset();
            Check();
            std::size_t const asked = server.Requests().size() - before;
            EXPECT_LE(asked, 1u) << "at hour " << hour;
            EXPECT_EQ(aborts, 1) << "the application is told once, at hour " << hour;
            EXPECT_EQ(host.error && host.error->cause == ErrorCause::HeldBack, asked == 0) << "at hour " << hour;
            if (asked > 0)
            {
                hours.push_back(hour);
                causes.push_back(host.error ? host.error->UnderlyingCode() : 0);
            }
            settings.backOff = host.backOff.value_or(BackOffState());
            parts.now = parts.now.addSecs(3600);
        }
        return hours;
    }

    void Check()
    {
        notes.clear();
        bool hasEnded = false;
        host.onEnded = [&hasEnded] { hasEnded = true; };
        UpdateFlow flow(CheckKind::Background, settings, host, windows, parts);
        flow.Start();
        bool isAnswered = false;
        EXPECT_TRUE(WaitFor(
            [&]
            {
                bool const isDownloading = !notes.empty() && notes.back().rfind("download", 0) == 0;
                if (isDownloading && !std::exchange(isAnswered, true))
                {
                    end();
                }
                return hasEnded;
            }));
        aborts = std::count_if(notes.begin(), notes.end(),
                               [](std::string const& note) { return note.rfind("aborted", 0) == 0; });
    }

    QByteArray answer;
    std::function<void()> beforeAnswer = [] {};
    /// Of the download that a check leads to.
    std::function<void()> end = [this]
    {
        parts.FinishDownload();
        parts.RefusePreparation(UpdateFault::SignatureMismatch);
    };
    LoopbackServer server{[this](QSslSocket& socket, QByteArray const& request, int number)
                          {
                              beforeAnswer();
                              Answering(answer)(socket, request, number);
                          }};
    std::vector<int> causes; ///< of the reported failures, without checks that were held back
    std::ptrdiff_t aborts = 0;
};

/// The number of log records about repeated failures.
std::ptrdiff_t Warnings(LogCapture const& log)
{
    std::vector<LogRecord> const records = log.Of(google::GLOG_WARNING);
    return std::count_if(records.begin(), records.end(),
                         [](LogRecord const& record)
                         { return record.text.find(" checks for updates failed; the next") != std::string::npos; });
}

TEST_F(MaliciousMirror, ThatAlwaysFailsIsAskedOnceADayInTheEnd)
{
    answer = "HTTP/1.1 500 No\r\nContent-Length: 0\r\n\r\n";
    LogCapture log;
    EXPECT_EQ(CheckEveryHour(), HOURS_OF_REQUESTS);
    EXPECT_EQ(causes, std::vector<int>(HOURS_OF_REQUESTS.size(), 500));
    EXPECT_EQ(Warnings(log), static_cast<std::ptrdiff_t>(HOURS_OF_REQUESTS.size()) - 2) << "from the third on";
}

TEST_F(MaliciousMirror, ThatAlwaysSendsAWrongArchiveIsAskedOnceADayInTheEnd)
{
    QByteArray item = ItemOf("5.1");
    item.replace(" length=", QByteArray(" sparkle:edSignature=\"") + GOOD_SIGNATURE + "\" length=");
    answer = OkAnswer(FeedWith(item));
    LogCapture log;
    EXPECT_EQ(CheckEveryHour(), HOURS_OF_REQUESTS);
    EXPECT_EQ(causes,
              std::vector<int>(HOURS_OF_REQUESTS.size(), 1000 + static_cast<int>(UpdateFault::SignatureMismatch)));
    EXPECT_EQ(parts.requests.size(), HOURS_OF_REQUESTS.size()) << "one archive a check";
    EXPECT_EQ(Warnings(log), static_cast<std::ptrdiff_t>(HOURS_OF_REQUESTS.size()) - 2) << "from the third on";
}

TEST_F(MaliciousMirror, ThatNamesAnotherArchiveAtEachCheckAndNeverEndsItIsAskedOnceADayInTheEnd)
{
    end = [this] { parts.FailDownload(ErrorCause::DownloadPaused); };
    QByteArray item = ItemOf("5.1");
    item.replace(" length=", QByteArray(" sparkle:edSignature=\"") + GOOD_SIGNATURE + "\" length=");
    int archives = 0;
    beforeAnswer = [&]
    {
        QByteArray other = item;
        other.replace("url=\"", "url=\"" + QByteArray::number(++archives));
        answer = OkAnswer(FeedWith(other));
    };
    EXPECT_EQ(CheckEveryHour(), HOURS_OF_REQUESTS);
    ASSERT_EQ(parts.requests.size(), HOURS_OF_REQUESTS.size());
    EXPECT_NE(parts.requests[0].url, parts.requests[1].url);
}

TEST_F(MaliciousMirror, ThatBecomesHonestIsForgiven)
{
    answer = "HTTP/1.1 500 No\r\nContent-Length: 0\r\n\r\n";
    for (int hour = 0; hour < 4; ++hour)
    {
        Check();
        settings.backOff = host.backOff.value_or(BackOffState());
        parts.now = parts.now.addSecs(3600);
    }
    EXPECT_EQ(settings.backOff.failures, 3);
    answer = OkAnswer(FeedWith(ItemOf("5.0")));
    parts.now = parts.now.addSecs(4 * 3600);
    Check();
    EXPECT_EQ(host.backOff->failures, 0);
}

} // namespace
