// FetchHarness.h: runs one fetch to its end. Plain C++.
// Thread: main, with an application object.
#pragma once

#include "Engine/core/fetch/FeedFetcher.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <ostream>

namespace Pelnar::Engine
{

inline void PrintTo(ErrorCause cause, std::ostream* out)
{
    *out << "cause " << static_cast<int>(cause);
}

} // namespace Pelnar::Engine

namespace Pelnar::Testing
{

/// Limits with short deadlines; sizes are those that ship.
inline Engine::FetchLimits ShortLimits()
{
    Engine::FetchLimits limits;
    limits.connectTimeout = std::chrono::milliseconds(5000);
    limits.totalTimeout = std::chrono::milliseconds(20000);
    return limits;
}

inline Engine::FetchOutcome Fetch(QUrl const& url, Engine::FetchLimits const& limits = ShortLimits(),
                                  Engine::InsecureHttp insecureHttp = Engine::InsecureHttp::LoopbackOnly,
                                  std::optional<Engine::KeptFeed> const& kept = std::nullopt)
{
    Engine::FeedFetcher fetcher(limits, insecureHttp, kept);
    std::optional<Engine::FetchOutcome> outcome;
    int calls = 0;
    fetcher.Start(url,
                  [&outcome, &calls](Engine::FetchOutcome const& told)
                  {
                      outcome = told;
                      ++calls;
                  });
    EXPECT_FALSE(outcome) << "an outcome arrives later, never at once";
    EXPECT_TRUE(WaitFor([&outcome] { return outcome.has_value(); }, 30000)) << url.toString().toStdString();
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 1);
    return outcome.value_or(Engine::FetchOutcome());
}

/// The cause of the failure; NoUpdate if there was none.
inline Engine::ErrorCause CauseOf(Engine::FetchOutcome const& outcome)
{
    EXPECT_TRUE(outcome.bytes.isEmpty() || !outcome.error) << "no bytes come with an error";
    return outcome.error ? outcome.error->cause : Engine::ErrorCause::NoUpdate;
}

class FetchTest : public ::testing::Test
{
protected:
    TestApplication<> application;
};

} // namespace Pelnar::Testing
