// SafeTextTest.cpp: which characters are made visible, in every place that shows text from outside.
#include "Engine/core/base/SafeText.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "Engine/ui/ServerText.h"
#include "Publisher/Console.h"
#include "tests/engine_core/FeedFixture.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::Engine;

QString TextOf(uint codePoint)
{
    // fromUcs4() would interpret a byte order mark.
    return codePoint < 0x10000 ? QString(QChar(codePoint)) : QString::fromUcs4(&codePoint, 1);
}

struct Hidden
{
    char const* name;
    std::vector<uint> codePoints;
};

void PrintTo(Hidden const& row, std::ostream* out)
{
    *out << row.name;
}

std::vector<Hidden> HiddenRows()
{
    return {
        {"Controls", {0x01, 0x07, 0x1B, 0x1F, 0x7F, 0x80, 0x9B, 0x9F}},
        {"DirectionMarks", {0x61C, 0x200E, 0x200F}},
        {"Embeddings", {0x202A, 0x202B, 0x202C, 0x202D, 0x202E}},
        {"Isolates", {0x2066, 0x2067, 0x2068, 0x2069}},
        {"WithoutWidth", {0xAD, 0x34F, 0x200B, 0x200C, 0x200D, 0x2060, 0xFEFF, 0x180E}},
        {"UnseenOperators", {0x2061, 0x2062, 0x2063, 0x2064, 0x2065, 0x206A, 0x206F}},
        {"Fillers", {0x115F, 0x1160, 0x3164, 0xFFA0, 0x17B4, 0x17B5}},
        {"Variants", {0x180B, 0x180D, 0xFE00, 0xFE0F, 0xE0100, 0xE01EF}},
        {"Annotations", {0xFFF9, 0xFFFA, 0xFFFB, 0xFFFC, 0xFFF0}},
        {"Tags", {0xE0000, 0xE0001, 0xE0020, 0xE0041, 0xE007F, 0xE0FFF}},
        {"ControlsOfScripts", {0x13430, 0x1BCA0, 0x1BCA3, 0x1D173, 0x1D17A}},
        {"PrivateUse", {0xE000, 0xF8FF, 0xF0000, 0x10FFFD}},
        {"NoCharacters", {0xFDD0, 0xFDEF, 0xFFFE, 0xFFFF, 0x1FFFE, 0x10FFFF}},
    };
}

class HiddenCharacters : public ::testing::TestWithParam<Hidden>
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, HiddenCharacters, ::testing::ValuesIn(HiddenRows()),
                         [](auto const& row) { return std::string(row.param.name); });

TEST_P(HiddenCharacters, AreHidden)
{
    for (uint const codePoint : GetParam().codePoints)
    {
        EXPECT_TRUE(IsHidden(codePoint)) << std::hex << codePoint;
    }
}

TEST_P(HiddenCharacters, AreShownInNoPlace)
{
    for (uint const codePoint : GetParam().codePoints)
    {
        QString const text = QLatin1Char('a') + TextOf(codePoint) + QLatin1Char('b');
        EXPECT_EQ(EscapedRemoteText(text), QStringLiteral("a?b")) << std::hex << codePoint;
        EXPECT_EQ(Pelnar::Publisher::Printable(text), QStringLiteral("a?b")) << std::hex << codePoint;
        EXPECT_EQ(OneLine(text, 20).remove(QLatin1Char(' ')), QStringLiteral("ab")) << std::hex << codePoint;
        EXPECT_EQ(FilterReleaseNotes(text.toUtf8().toStdString(), ReleaseNotesFormat::PlainText).html, "<p>ab</p>")
            << std::hex << codePoint;
        std::string const byNumber = "a&#" + std::to_string(codePoint) + ";b";
        EXPECT_EQ(FilterReleaseNotes(byNumber, ReleaseNotesFormat::Html).html, "ab") << std::hex << codePoint;
        bool const isXml = codePoint >= 0x20 && (codePoint & 0xFFFE) != 0xFFFE;
        if (isXml)
        {
            FeedItem const item = Tests::OnlyItem("<title>" + text.toUtf8() + "</title><x y='" + text.toUtf8() + "'/>");
            EXPECT_EQ(item.title, QStringLiteral("a b")) << std::hex << codePoint;
            EXPECT_EQ(item.properties.value(QStringLiteral("x")).toMap().value(QStringLiteral("y")).toString(),
                      QStringLiteral("a b"))
                << std::hex << codePoint;
        }
    }
}

TEST(SafeText, OrdinaryTextIsSeen)
{
    for (uint const codePoint :
         {0x20U,   0x7EU,   0xA0U,   0xACU,   0xAEU,    0x301U,   0x5D0U,   0x605U,   0x627U,   0x6DDU,  0x1161U,
          0x200AU, 0x2010U, 0x2027U, 0x202FU, 0x205FU,  0x2070U,  0x3042U,  0x4E2DU,  0xAC00U,  0xD7FFU, 0xF900U,
          0xFB1DU, 0xFE10U, 0xFF21U, 0xFFFDU, 0x10000U, 0x110BDU, 0x1F600U, 0x20000U, 0x2FFFDU, 0xDFFFFU})
    {
        // The last one is just before the tag characters and is not assigned.
        EXPECT_EQ(IsHidden(codePoint), codePoint == 0xDFFFFU) << std::hex << codePoint;
    }
}

TEST(SafeText, HalvesOfCharactersAreHiddenAndPairsAreOne)
{
    QString const text =
        QString(QChar(0xD83D)) + QLatin1Char('x') + QChar(0xDE00) + QStringLiteral("\U0001F600") + QChar(0xD83D);
    EXPECT_EQ(WithoutHidden(text, QLatin1Char('?')), QStringLiteral("?x?\U0001F600?"));
    EXPECT_EQ(WithoutHidden(QString(), QLatin1Char('?')), QString());
}

TEST(SafeText, LongRunsTakeNoLongTime)
{
    QString text;
    for (int count = 0; count < 500000; ++count)
    {
        text += QStringLiteral("\U000E0041x");
    }
    QByteArray const title = "<title>" + text.left(999999).toUtf8() + "</title>";
    EXPECT_EQ(WithoutHidden(text, QLatin1Char(' ')).size(), 1000000);
    EXPECT_EQ(Tests::OnlyItem(title).title.size(), 666666);
}

} // namespace
