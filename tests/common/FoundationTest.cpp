#include "Foundation/RaisedException.h"
#include "tests/common/FoundationFixture.h"

#include <gtest/gtest.h>

#include <boost/exception/diagnostic_information.hpp>

namespace
{

using namespace Pelnar::Foundation;
using Pelnar::Testing::Raise;
using Pelnar::Testing::ThroughFoundation;

TEST(FoundationText, TextSurvivesTheRoundTrip)
{
    for (QString const& text :
         {QStringLiteral(""), QStringLiteral("5.1"), QStringLiteral("\u00e9\u4e2d\U0001F600"), QStringLiteral("a\0b")})
    {
        EXPECT_EQ(ThroughFoundation(text), text);
    }
}

TEST(FoundationText, UnpairedSurrogateIsReplaced)
{
    EXPECT_EQ(ThroughFoundation(QStringLiteral("a") + QChar(0xD800)), QStringLiteral("a?"));
}

TEST(FoundationText, AddressesSurviveTheRoundTrip)
{
    for (char const* text :
         {"https://a.example/x%20y.zip?q=1#f", "http://127.0.0.1:8080/feed.xml", "file:///tmp/a%20b"})
    {
        QUrl const url(QString::fromLatin1(text));
        EXPECT_EQ(ThroughFoundation(url), url) << text;
    }
    EXPECT_TRUE(ThroughFoundation(QUrl()).isEmpty());
}

TEST(FoundationText, AddressThatGoesFromItsHostToItsQueryGetsAPath)
{
    struct Row
    {
        char const* address;
        char const* expected;
    };
    for (Row const& row :
         {Row{"https://a.example?product=1", "https://a.example/?product=1"},
          Row{"https://u:p@a.example:8443?q", "https://u:p@a.example:8443/?q"},
          Row{"https://a.example#f", "https://a.example/#f"}, Row{"https://a.example", "https://a.example"}})
    {
        QUrl const url(QString::fromLatin1(row.address));
        EXPECT_EQ(ThroughFoundation(url).toEncoded().toStdString(), row.expected) << row.address;
    }
}

TEST(RaisedException, ReasonIsReported)
{
    EXPECT_EQ(ReasonRaisedBy([] { Raise(QStringLiteral("no disk")); }), "no disk");
    EXPECT_EQ(ReasonRaisedBy([] { Raise(QStringLiteral("")); }), "");
    EXPECT_EQ(ReasonRaisedBy([] { Raise(QString()); }), "") << "not GNUstep's placeholder for nil";
    EXPECT_EQ(ReasonRaisedBy([] {}), std::nullopt);
}

TEST(RaisedException, CppExceptionPassesThrough)
{
    EXPECT_THROW((void)ReasonRaisedBy([] { throw std::bad_function_call(); }), std::bad_function_call);
    EXPECT_THROW(CallTranslatingRaised([] { throw std::bad_function_call(); }), std::bad_function_call);
}

TEST(RaisedException, TranslatedExceptionCanBeHeldAndDiagnosed)
{
    try
    {
        CallTranslatingRaised([] { Raise(QStringLiteral("no disk")); });
        FAIL() << "nothing was thrown";
    }
    catch (...)
    {
        EXPECT_NE(boost::current_exception_diagnostic_information(true).find("no disk"), std::string::npos);
    }
}

} // namespace
