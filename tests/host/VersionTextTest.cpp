// VersionTextTest.cpp: versions from text and back, and the version value itself.

#include "HostFramework/VersionText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>

namespace Pelnar::Util
{
namespace
{

using Core::Version;

struct TextRow
{
    char const* name;
    QString text;
    QString separator;
    Version expected;
};

std::ostream& operator<<(std::ostream& out, TextRow const& row)
{
    return out << row.name;
}

std::string RowName(testing::TestParamInfo<TextRow> const& info)
{
    return info.param.name;
}

QString const DOT = QStringLiteral(".");

class WellFormedVersion : public testing::TestWithParam<TextRow>
{
};

TEST_P(WellFormedVersion, IsParsedAndPrintsAsItWas)
{
    TextRow const& row = GetParam();
    EXPECT_TRUE(VersionFromString(row.text, row.separator) == row.expected);
    EXPECT_TRUE(VersionFromString(VersionToString(row.expected, VersionToStringDetail::PresentComponents, DOT), DOT) ==
                row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WellFormedVersion,
    testing::Values(TextRow{"OneComponent", QStringLiteral("5"), DOT, Version(5)},
                    TextRow{"TwoComponents", QStringLiteral("5.10"), DOT, Version(5, 10)},
                    TextRow{"ThreeComponents", QStringLiteral("5.10.3"), DOT, Version(5, 10, 3)},
                    TextRow{"FourComponents", QStringLiteral("5.10.3.2048"), DOT, Version(5, 10, 3, 2048)},
                    TextRow{"Zero", QStringLiteral("0"), DOT, Version(0)},
                    TextRow{"LeadingZeros", QStringLiteral("007.010"), DOT, Version(7, 10)},
                    TextRow{"ManyLeadingZeros", QStringLiteral("000000000000000000000000000001"), DOT, Version(1)},
                    TextRow{"LargestComponents", QStringLiteral("2147483647.2147483647.2147483647.2147483647"), DOT,
                            Version(2147483647, 2147483647, 2147483647, 2147483647)},
                    TextRow{"Underscore", QStringLiteral("1_2_3"), QStringLiteral("_"), Version(1, 2, 3)},
                    TextRow{"LongSeparator", QStringLiteral("1::2"), QStringLiteral("::"), Version(1, 2)}),
    RowName);

class MalformedVersion : public testing::TestWithParam<TextRow>
{
};

TEST_P(MalformedVersion, IsNamedByTheException)
{
    TextRow const& row = GetParam();
    try
    {
        VersionFromString(row.text, row.separator);
        FAIL() << "nothing was thrown";
    }
    catch (std::invalid_argument const& failure)
    {
        EXPECT_NE(std::string(failure.what()).find('"' + row.text.toStdString() + '"'), std::string::npos)
            << failure.what();
    }
}

INSTANTIATE_TEST_SUITE_P(Table, MalformedVersion,
                         testing::Values(TextRow{"Empty", QString(), DOT, {}},
                                         TextRow{"Blank", QStringLiteral(" "), DOT, {}},
                                         TextRow{"LeadingBlank", QStringLiteral(" 1.2"), DOT, {}},
                                         TextRow{"TrailingBlank", QStringLiteral("1.2 "), DOT, {}},
                                         TextRow{"BlankBetween", QStringLiteral("1. 2"), DOT, {}},
                                         TextRow{"TrailingLineBreak", QStringLiteral("1.2\n"), DOT, {}},
                                         TextRow{"Plus", QStringLiteral("+1.2"), DOT, {}},
                                         TextRow{"Minus", QStringLiteral("-1"), DOT, {}},
                                         TextRow{"MinusInside", QStringLiteral("1.-2"), DOT, {}},
                                         TextRow{"Letters", QStringLiteral("1.2b3"), DOT, {}},
                                         TextRow{"Prefix", QStringLiteral("v1.2"), DOT, {}},
                                         TextRow{"Hexadecimal", QStringLiteral("0x10"), DOT, {}},
                                         TextRow{"OneTooLarge", QStringLiteral("2147483648"), DOT, {}},
                                         TextRow{"LastTooLarge", QStringLiteral("1.2.3.2147483648"), DOT, {}},
                                         TextRow{"Beyond64Bits", QStringLiteral("99999999999999999999999999"), DOT, {}},
                                         TextRow{"FiveComponents", QStringLiteral("1.2.3.4.5"), DOT, {}},
                                         TextRow{"FourAndASeparator", QStringLiteral("1.2.3.4."), DOT, {}},
                                         TextRow{"LeadingSeparator", QStringLiteral(".1"), DOT, {}},
                                         TextRow{"TrailingSeparator", QStringLiteral("1."), DOT, {}},
                                         TextRow{"DoubledSeparator", QStringLiteral("1..2"), DOT, {}},
                                         TextRow{"ArabicIndicDigits", QString::fromUtf8("\u0661.\u0662"), DOT, {}},
                                         TextRow{"FullWidthDigits", QString::fromUtf8("\uFF11"), DOT, {}},
                                         TextRow{"SuperscriptDigit", QString::fromUtf8("1.\u00B2"), DOT, {}},
                                         TextRow{"AnotherSeparator", QStringLiteral("1,2"), DOT, {}},
                                         TextRow{"DotWhereUnderscore", QStringLiteral("1.2"), QStringLiteral("_"), {}},
                                         TextRow{"HalfASeparator", QStringLiteral("1:2"), QStringLiteral("::"), {}},
                                         TextRow{"EmptySeparator", QStringLiteral("1.2"), QString(), {}}),
                         RowName);

TEST(VersionToString, PrintsTheComponentsBeforeTheFirstAbsentOne)
{
    auto const print = [](Version const& version, QString const& separator)
    { return VersionToString(version, VersionToStringDetail::PresentComponents, separator).toStdString(); };
    EXPECT_EQ(print(Version(), DOT), "");
    EXPECT_EQ(print(Version(6), DOT), "6");
    EXPECT_EQ(print(Version(6, 0), DOT), "6.0");
    EXPECT_EQ(print(Version(6, 0, 0, 0), DOT), "6.0.0.0");
    EXPECT_EQ(print(Version(6, Version::ABSENT, 4), DOT), "6");
    EXPECT_EQ(print(Version(6, 1, 2), QStringLiteral("_")), "6_1_2");
    EXPECT_EQ(print(Version(6, 1, 2), QString()), "612");
}

TEST(Version, DefaultIsInvalidAndAbsentComponentsAfterTheFirstAreNot)
{
    EXPECT_FALSE(Version().IsValid());
    EXPECT_FALSE(Version(Version::ABSENT, 1).IsValid());
    EXPECT_FALSE(Version(1, -2).IsValid());
    EXPECT_FALSE(Version(1, 1, -2).IsValid());
    EXPECT_FALSE(Version(1, 1, 1, -2).IsValid());
    EXPECT_TRUE(Version(0).IsValid());
    EXPECT_TRUE(Version(1, Version::ABSENT, 3).IsValid());
    EXPECT_TRUE(Version(-2).IsValid());
}

TEST(Version, ComparesRawComponentsFirstToLast)
{
    EXPECT_TRUE(Version(5, 1) < Version(5, 1, 0));
    EXPECT_FALSE(Version(5, 1) == Version(5, 1, 0));
    EXPECT_TRUE(Version(5, 9) < Version(5, 10));
    EXPECT_TRUE(Version(5, 10, 9, 9) < Version(6));
    EXPECT_TRUE(Version(6) > Version(5, 10));
    EXPECT_TRUE(Version(6) >= Version(6));
    EXPECT_TRUE(Version(6) <= Version(6));
    EXPECT_TRUE(Version(6) != Version(6, 0));
    EXPECT_FALSE(Version(6) < Version(6));
}

TEST(ShrinkVersion, ReadsAbsentComponentsAsZeroAndKeepsTheInvalidVersion)
{
    EXPECT_TRUE(Core::Util::ShrinkVersion(Version(5, 1), 4) == Version(5, 1, 0, 0));
    EXPECT_TRUE(Core::Util::ShrinkVersion(Version(5, 1, 0), 4) == Core::Util::ShrinkVersion(Version(5, 1), 4));
    EXPECT_TRUE(Core::Util::ShrinkVersion(Version(5, 1, 2, 3), 2) == Version(5, 1));
    EXPECT_TRUE(Core::Util::ShrinkVersion(Version(5, Version::ABSENT, 2), 3) == Version(5, 0, 2));
    EXPECT_TRUE(Core::Util::ShrinkVersion(Version(5, 1, 2, 3), 9) == Version(5, 1, 2, 3));
    EXPECT_TRUE(Core::Util::ShrinkVersion(Version(), 4) == Version());
    EXPECT_TRUE(Core::Util::ShrinkVersion(Version(1, -2), 4) == Version(1, -2));
}

} // namespace
} // namespace Pelnar::Util
