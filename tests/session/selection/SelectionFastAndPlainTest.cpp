// SelectionFastAndPlainTest.cpp: for random feeds and contexts, the session's fast implementation and the plain one
// give the same answer, write the same records and throw the same exceptions.

#include "Foundation/RaisedException.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"
#include "tests/session/selection/SelectionFixture.h"
#include "tests/session/selection/SelectionSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <random>
#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Pelnar::App::SparkleUpdateContext;
using Pelnar::Core::Version;

class RandomFeeds
{
public:
    explicit RandomFeeds(unsigned seed) : m_random(seed) {}

    bool OneIn(int count) { return Number(count) == 0; }

    ScriptedAppcast MakeFeed()
    {
        if (OneIn(50))
        {
            return std::nullopt;
        }
        std::vector<ScriptedItem> items;
        for (int count = Number(9); count > 0; --count)
        {
            items.push_back(MakeItem(true));
        }
        return items;
    }

    SelectionFixture::Item MakeItemOrNothing()
    {
        return OneIn(6) ? std::nullopt : SelectionFixture::Item(MakeItem(true));
    }

    /// Sometimes null; most are as an updater makes them.
    std::shared_ptr<SparkleUpdateContext> MakeRandomContext()
    {
        if (OneIn(30))
        {
            return nullptr;
        }
        auto context = MakeContext();
        context->localVersion = OneIn(20) ? Version() : OneIn(3) ? Version(4, 9) : Version(5, 0);
        auto const spoil = [this](auto& comparison)
        {
            if (OneIn(30))
            {
                comparison = nullptr;
            }
            else if (OneIn(20))
            {
                comparison = [inner = comparison](Version const& a, Version const& b)
                {
                    if (a.Major() == 6 || b.Major() == 6)
                    {
                        throw std::runtime_error("six is not compared");
                    }
                    return inner(a, b);
                };
            }
            else if (OneIn(20))
            {
                comparison = [answer = OneIn(2)](Version const&, Version const&) { return answer; };
            }
        };
        spoil(context->versionLess);
        spoil(context->versionEqual);
        return context;
    }

private:
    int Number(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

    /// Null for a property that is nil.
    QString OneOf(std::initializer_list<char const*> texts)
    {
        char const* const text = texts.begin()[Number(static_cast<int>(texts.size()))];
        return text ? QString::fromUtf8(text) : QString();
    }

    ScriptedItem MakeItem(bool mayHaveDeltas)
    {
        ItemProperties properties;
        properties.title = OneOf({nullptr, "", "Update"});
        properties.versionString = OneOf(
            {"4.9", "5.0", "5.0.0", "5.1", "5.1", "5.1.0", "5.2", "6.0", "6.0", "6.0.1", "7", "5.1b", "", nullptr});
        properties.minimumSystemVersion = OneOf({nullptr, nullptr, nullptr, "", "10.9", "12.3", "12.4", "x"});
        properties.maximumSystemVersion = OneOf({nullptr, nullptr, nullptr, "", "12", "12.3.0", "13", "x"});
        properties.fileUrl =
            OneOf({"https://a.example/App.zip", "https://a.example/App.zip", "HTTPS://A.example/App.zip",
                   "https://b.example/App%20B.zip", "https://a.example/App.sparkle_guided.pkg",
                   "https://c.example/x%2Esparkle_interactive.pkg", "file:///tmp/App.zip", "https://a-.example/x",
                   "https://a.example:port/x", nullptr});
        properties.dateString = OneOf({FEED_DATE, FEED_DATE, FEED_DATE, "Mon Jan 7 2019", "on Tue Jan 8 2019",
                                       "Mon Jan 32 2019", "2019-01-07", "", nullptr});
        properties.contentLength = OneIn(8)   ? 0
                                   : OneIn(8) ? 18446744073709551615u
                                              : 1u + static_cast<unsigned>(Number(3));
        properties.isDelta = mayHaveDeltas ? OneIn(8) : !OneIn(8);
        if (mayHaveDeltas && OneIn(2))
        {
            for (int count = Number(4); count > 0; --count)
            {
                properties.deltas.emplace_back(OneOf({"5.0", "5.0", "5.0.0", "4.9", "5", "x", ""}), MakeItem(false));
            }
        }
        if (OneIn(60))
        {
            properties.onRead[OneOf({"versionString", "fileURL", "dateString", "contentLength", "isDeltaUpdate",
                                     "deltaUpdates", "minimumSystemVersion"})
                                  .toStdString()] = [] { RaiseException(Latin1("no property")); };
        }
        return ScriptedItem(properties);
    }

    std::mt19937 m_random;
};

/// The result of a question: the text of an exception; empty if there was none.
std::string ExceptionOf(std::function<void()> const& question)
{
    try
    {
        Pelnar::Foundation::CallTranslatingRaised(question);
    }
    catch (std::exception const& exception)
    {
        return exception.what();
    }
    return {};
}

class FastAndPlainSelection : public ::testing::Test
{
protected:
    FastAndPlainSelection() { Pelnar::Util::SetOSVersion(Latin1("12.3")); }

    SelectionFixture fast;
    SelectionFixture plain;
};

TEST_F(FastAndPlainSelection, ChooseTheSameItemOfEveryFeedWithTheSameRecords)
{
    RandomFeeds random(1);
    int chosen = 0;
    int chosenDeltas = 0;
    int left = 0;
    for (int round = 0; round < 4000 && !HasFailure(); ++round)
    {
        ScriptedAppcast const feed = random.MakeFeed();
        auto const context = random.MakeRandomContext();
        fast.SetContext(context);
        plain.SetContext(context);
        fast.BestItemIsDelta() = plain.BestItemIsDelta() = random.OneIn(4);
        auto const verbosity = random.OneIn(10) ? LogCapture::Verbosity::Verbose : LogCapture::Verbosity::Normal;

        SelectionFixture::Item fastItem;
        SelectionFixture::Item plainItem;
        LogCapture fastLog(verbosity);
        std::string const fastException = ExceptionOf([&] { fastItem = fast.SelectBestOfAppcast(feed); });
        std::vector<LogRecord> const fastRecords = fastLog.Records();
        fastLog.Clear();
        std::string const plainException = ExceptionOf([&] { plainItem = plain.SelectBestOfAppcastPlainly(feed); });

        EXPECT_EQ(fastItem, plainItem) << "round " << round;
        EXPECT_EQ(fastException, plainException) << "round " << round;
        EXPECT_EQ(fast.BestItemIsDelta(), plain.BestItemIsDelta()) << "round " << round;
        EXPECT_EQ(fastRecords, fastLog.Records()) << "round " << round;
        chosen += fastItem.has_value();
        chosenDeltas += fastItem.has_value() && fast.BestItemIsDelta();
        left += !fastException.empty();
    }
    EXPECT_GT(chosen, 1000);
    EXPECT_GT(chosenDeltas, 200);
    EXPECT_GT(left, 100);
}

TEST_F(FastAndPlainSelection, ChooseTheSameOfTwoWithTheSameRecords)
{
    RandomFeeds random(2);
    LogCapture log(LogCapture::Verbosity::Normal);
    int chosen = 0;
    for (int round = 0; round < 6000 && !HasFailure(); ++round)
    {
        SelectionFixture::Item const a = random.MakeItemOrNothing();
        SelectionFixture::Item const b = random.MakeItemOrNothing();
        auto const context = random.MakeRandomContext();
        fast.SetContext(context);
        plain.SetContext(context);

        SelectionFixture::Item fastItem;
        SelectionFixture::Item plainItem;
        bool isFastValid = false;
        bool isPlainValid = false;
        log.Clear();
        std::string const fastException = ExceptionOf(
            [&]
            {
                isFastValid = fast.Validate(a);
                fastItem = fast.SelectBest(a, b);
            });
        std::vector<LogRecord> const fastRecords = log.Records();
        log.Clear();
        std::string const plainException = ExceptionOf(
            [&]
            {
                isPlainValid = plain.ValidatePlainly(a);
                plainItem = plain.SelectBestPlainly(a, b);
            });

        EXPECT_EQ(isFastValid, isPlainValid) << "round " << round;
        EXPECT_EQ(fastItem, plainItem) << "round " << round;
        EXPECT_EQ(fastException, plainException) << "round " << round;
        EXPECT_EQ(fastRecords, log.Records()) << "round " << round;
        chosen += fastItem.has_value();
    }
    EXPECT_GT(chosen, 1000);
}

} // namespace
