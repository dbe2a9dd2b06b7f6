// ParserCallsTest.cpp: replaces the host's parser to count its calls.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "HostFramework/VersionText.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>
#include <vector>

namespace
{

std::vector<std::pair<QString, QString>> parserCalls;

} // namespace

namespace Pelnar::Util
{

// The program's own definition has priority over the shared library's.
Core::Version VersionFromString(QString const& text, QString const& separator)
{
    parserCalls.emplace_back(text, separator);
    if (text.startsWith(QLatin1Char('v')))
    {
        return Core::Version(42);
    }
    if (text == QLatin1String("odd"))
    {
        throw 7;
    }
    throw std::runtime_error("malformed");
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

TEST(VersionFromStringNoexceptAndTheParser, AnswerIsTheHostsOwn)
{
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral("v six")), Version(42));
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral("odd")), Version()) << "no matter what is thrown";
}

} // namespace
