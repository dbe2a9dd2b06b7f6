// ParserCallsTest.cpp: stands in for the host's parser, so that its calls can be counted.

#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionText_p.h"
#include "HostFramework/VersionText.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace
{

std::vector<std::pair<QString, QString>> parserCalls;

} // namespace

namespace Pelnar::Util
{

// The program's own definition comes before the shared library's.
std::optional<Core::Version> TryVersionFromString(QString const& text, QString const& separator) noexcept
{
    parserCalls.emplace_back(text, separator);
    return std::nullopt;
}

} // namespace Pelnar::Util

namespace
{

using Pelnar::App::Session::VersionFromStringNoexcept;
using Pelnar::Core::Version;

TEST(VersionFromStringNoexceptAndTheParser, EmptyTextIsAnsweredWithoutAParserCall)
{
    EXPECT_EQ(VersionFromStringNoexcept(QString()), Version());
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral("")), Version());
    EXPECT_TRUE(parserCalls.empty());
}

TEST(VersionFromStringNoexceptAndTheParser, OtherTextIsPassedOnAsItIsWithADotAsSeparator)
{
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral(" 5.1 ")), Version());
    ASSERT_EQ(parserCalls.size(), 1u);
    EXPECT_EQ(parserCalls[0], std::make_pair(QStringLiteral(" 5.1 "), QStringLiteral(".")));
}

} // namespace
