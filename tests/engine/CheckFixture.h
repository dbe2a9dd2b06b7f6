// CheckFixture.h: what the tests of a check share. Plain C++.
// Thread: main.
#pragma once

#include "tests/engine/FeedText.h"
#include "tests/engine/ScriptedDelegate.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

namespace Pelnar::Testing
{

using Events = std::vector<std::string>;

inline int CompareNumbers(QString const& a, QString const& b)
{
    double const difference = a.toDouble() - b.toDouble();
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

inline ScriptedChoice ChooseFirst(int, std::vector<QString> const&)
{
    return {ScriptedChoice::Kind::Item, 0, {}};
}

inline ScriptedChoice ChooseNone(int, std::vector<QString> const&)
{
    return {};
}

inline bool HasLog(LogCapture const& log, google::LogSeverity severity, std::string const& part)
{
    std::vector<LogRecord> const records = log.Of(severity);
    return std::any_of(records.begin(), records.end(),
                       [&part](LogRecord const& record) { return record.text.find(part) != std::string::npos; });
}

class CheckContract : public ::testing::Test
{
protected:
    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    std::unique_ptr<QCoreApplication> application = std::make_unique<QCoreApplication>(argc, argv);
};

} // namespace Pelnar::Testing
