// The records that a log handler gets, and what it may do during a call. The process has initialized glog, like a host
// that uses glog.
#include <Pelnar/LogHandler.h>

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace
{

using namespace Pelnar;
using Texts = std::vector<std::string>;

class LogHandlerTest : public ::testing::Test
{
protected:
    ~LogHandlerTest() override { SetLogHandler({}); }

    LogHandler Collect()
    {
        return [this](LogRecord const& record) { texts.emplace_back(record.text); };
    }

    Texts texts;
};

TEST_F(LogHandlerTest, RecordSaysWhatWasLoggedWhereAndWhen)
{
    struct Kept
    {
        LogSeverity severity;
        std::string file;
        int line;
        std::string text;
    };
    std::vector<Kept> kept;
    auto const before = std::chrono::system_clock::now() - std::chrono::milliseconds(1);
    SetLogHandler(
        [&](LogRecord const& record)
        {
            kept.push_back({record.severity, std::string(record.file), record.line, std::string(record.text)});
            EXPECT_GE(record.time, before);
            EXPECT_LE(record.time, std::chrono::system_clock::now());
        });
    int const line = __LINE__ + 1;
    LOG(INFO) << "caf\xc3\xa9";
    LOG(WARNING) << "two\nlines";
    LOG(ERROR);
    google::LogMessage("App/Some File", 42, google::GLOG_ERROR).stream() << std::string(5000, 'x');
    ASSERT_EQ(kept.size(), 4u);
    EXPECT_EQ(kept[0].severity, LogSeverity::Info);
    EXPECT_EQ(kept[0].file, __FILE__);
    EXPECT_EQ(kept[0].line, line);
    EXPECT_EQ(kept[0].text, "caf\xc3\xa9");
    EXPECT_EQ(kept[1].severity, LogSeverity::Warning);
    EXPECT_EQ(kept[1].text, "two\nlines");
    EXPECT_EQ(kept[2].severity, LogSeverity::Error);
    EXPECT_EQ(kept[2].text, "");
    EXPECT_EQ(kept[3].file, "App/Some File");
    EXPECT_EQ(kept[3].line, 42);
    EXPECT_EQ(kept[3].text, std::string(5000, 'x'));
}

TEST_F(LogHandlerTest, ThatThrowsIsStillCalledForTheNextRecord)
{
    int calls = 0;
    SetLogHandler(
        [&calls](LogRecord const&)
        {
            ++calls;
            throw std::runtime_error("no log");
        });
    LOG(INFO) << "one";
    LOG(INFO) << "two";
    EXPECT_EQ(calls, 2);
    SetLogHandler([&calls](LogRecord const&) { throw ++calls; });
    LOG(INFO) << "three";
    EXPECT_EQ(calls, 3);
    SetLogHandler(Collect());
    LOG(INFO) << "four";
    EXPECT_EQ(texts, Texts{"four"});
}

TEST_F(LogHandlerTest, ThatLogsItselfDoesNotHearItself)
{
    SetLogHandler(
        [this](LogRecord const& record)
        {
            texts.emplace_back(record.text);
            LOG(INFO) << "of the handler";
        });
    LOG(INFO) << "one";
    LOG(INFO) << "two";
    EXPECT_EQ(texts, (Texts{"one", "two"}));
}

TEST_F(LogHandlerTest, ThatReplacesItselfIsNotDestroyedInItsOwnCall)
{
    SetLogHandler(
        [this, data = std::string(100, 'd'), alive = std::make_shared<int>(7)](LogRecord const& record)
        {
            SetLogHandler(Collect());
            texts.push_back(data + std::string(record.text) + std::to_string(*alive));
        });
    LOG(INFO) << "one";
    LOG(INFO) << "two";
    EXPECT_EQ(texts, (Texts{std::string(100, 'd') + "one7", "two"}));
}

TEST_F(LogHandlerTest, ThatRemovesItselfGetsNothingMore)
{
    SetLogHandler(
        [this](LogRecord const& record)
        {
            texts.emplace_back(record.text);
            SetLogHandler({});
        });
    LOG(INFO) << "one";
    LOG(INFO) << "two";
    EXPECT_EQ(texts, Texts{"one"});
}

TEST_F(LogHandlerTest, ThatLogsInItsDestructionDoesNotHoldTheCallUp)
{
    struct Talker
    {
        ~Talker() { LOG(INFO) << "last words"; }
    };
    SetLogHandler([talker = std::make_shared<Talker>()](LogRecord const&) {});
    SetLogHandler(Collect());
    EXPECT_EQ(texts, Texts{"last words"});
}

TEST_F(LogHandlerTest, ThatIsReplacedWhileRecordsAreSentIsLeftByEveryThreadWhenTheCallReturns)
{
    constexpr int ROUNDS = 200;
    constexpr int WRITERS = 4;
    std::atomic<bool> isOver = false;
    std::atomic<int> inside = 0;
    std::vector<std::thread> writers;
    for (int i = 0; i < WRITERS; ++i)
    {
        writers.emplace_back(
            [&isOver]
            {
                while (!isOver)
                {
                    LOG(INFO) << "a record";
                }
            });
    }
    std::atomic<int> calls = 0;
    for (int round = 0; round < ROUNDS; ++round)
    {
        auto alive = std::make_unique<std::atomic<bool>>(true);
        SetLogHandler(
            [&inside, &calls, flag = alive.get()](LogRecord const&)
            {
                EXPECT_EQ(++inside, 1);
                EXPECT_TRUE(*flag);
                ++calls;
                --inside;
            });
        int const before = calls;
        while (calls == before) // the writers log all the time
        {
            std::this_thread::yield();
        }
        SetLogHandler({});
        alive.reset(); // a running handler would use freed memory
    }
    isOver = true;
    for (std::thread& writer : writers)
    {
        writer.join();
    }
    EXPECT_GE(calls, ROUNDS);
}

TEST_F(LogHandlerTest, RecordsOfAThreadComeInTheirOrderOnThatThread)
{
    constexpr int WRITERS = 4;
    constexpr int RECORDS = 200;
    std::vector<std::vector<int>> heard(WRITERS);
    std::vector<std::thread::id> owners(WRITERS);
    SetLogHandler(
        [&](LogRecord const& record)
        {
            std::string const text(record.text);
            std::size_t const writer = std::stoul(text);
            heard[writer].push_back(std::stoi(text.substr(text.find(' '))));
            EXPECT_EQ(std::this_thread::get_id(), owners[writer]);
        });
    std::vector<std::thread> writers;
    for (int i = 0; i < WRITERS; ++i)
    {
        writers.emplace_back(
            [i, &owners]
            {
                owners[static_cast<std::size_t>(i)] = std::this_thread::get_id();
                for (int record = 0; record < RECORDS; ++record)
                {
                    LOG(INFO) << i << ' ' << record;
                }
            });
    }
    for (std::thread& writer : writers)
    {
        writer.join();
    }
    for (std::vector<int> const& records : heard)
    {
        ASSERT_EQ(records.size(), static_cast<std::size_t>(RECORDS));
        for (int record = 0; record < RECORDS; ++record)
        {
            EXPECT_EQ(records[static_cast<std::size_t>(record)], record);
        }
    }
}

} // namespace
