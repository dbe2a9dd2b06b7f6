// ConsoleTest.cpp: the output for people, and the form of a reported problem.

#include "Publisher/Console.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Pelnar::Publisher
{
namespace
{

std::string Said(Problem const& problem)
{
    return TextOf(problem).toStdString();
}

} // namespace

TEST(ProblemText, NamesThePlaceTheFaultAndTheMend)
{
    EXPECT_EQ(Said({QStringLiteral("a.xml"), 3, 7, QStringLiteral("bad"), QStringLiteral("mend it")}),
              "a.xml:3:7: bad; mend it");
    EXPECT_EQ(Said({QStringLiteral("a.xml"), 3, 0, QStringLiteral("bad"), {}}), "a.xml:3: bad");
    EXPECT_EQ(Said({QStringLiteral("a.xml"), 0, 7, QStringLiteral("bad"), {}}), "a.xml: bad");
    EXPECT_EQ(Said({{}, 0, 0, QStringLiteral("bad"), QStringLiteral("mend it")}), "bad; mend it");
}

TEST(ProblemText, SentenceLosesItsFullStopBeforeTheAdvice)
{
    QString const sentence = QStringLiteral("The feed ends early.");
    EXPECT_EQ(Said({QStringLiteral("a.xml"), sentence, QStringLiteral("mend it")}),
              "a.xml: The feed ends early; mend it");
    EXPECT_EQ(Said({QStringLiteral("a.xml"), sentence, {}}), "a.xml: The feed ends early.");
}

TEST(ProblemText, IsOneLineThatDrivesNoTerminal)
{
    EXPECT_EQ(Said({QStringLiteral("a\033[2J.xml"), 0, 0, QString::fromUtf8("x\ny\u202Ez\u2028"), {}}),
              "a?[2J.xml: x?y?z?");
}

TEST(Output, IsStyledOnlyWhereColoursAreShown)
{
    std::ostringstream stream;
    QString const text = QStringLiteral("x");
    EXPECT_EQ((Output{stream, true, false}.Styled(Emphasis::Bad, text)), "x");
    EXPECT_EQ((Output{stream, true, true}.Styled(Emphasis::None, text)), "x");
    EXPECT_EQ((Output{stream, true, true}.Styled(Emphasis::Bad, text)), "\033[31mx\033[0m");
}

TEST(Console, ARefusalGoesToTheErrorStream)
{
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    Console const console{in, {out}, {err}};
    EXPECT_EQ(console.Refuse({{}, 0, 0, QStringLiteral("bad"), {}}), ExitStatus::Unusable);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(err.str(), "error: bad\n");
}

TEST(ReadWhole, EndsAtTheLimit)
{
    std::istringstream fits("12345");
    EXPECT_EQ(ReadWhole(fits, 5).value_or(QByteArray()).toStdString(), "12345");
    std::istringstream tooLong("123456");
    EXPECT_FALSE(ReadWhole(tooLong, 5).has_value());
}

} // namespace Pelnar::Publisher
