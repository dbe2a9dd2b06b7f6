// ItemDateTest.cpp: the shortcut for QDate gives the same answers as QDate, for random texts.

#include "tests/session/selection/PlainItem.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{

using namespace Pelnar::App::Session;

constexpr int ROUNDS = Pelnar::Testing::IS_SANITIZED ? 20000 : 300000;

/// Joins up to \a greatestCount random parts. Many texts are close to the limits of the shortcut.
class TextMaker
{
public:
    TextMaker(std::vector<char const*> parts, int greatestCount) : m_greatestCount(greatestCount)
    {
        for (char const* part : parts)
        {
            m_parts.push_back(QString::fromUtf8(part));
        }
    }

    QString operator()()
    {
        QString text;
        for (int count = Number(m_greatestCount); count > 0; --count)
        {
            text += m_parts[static_cast<std::size_t>(Number(static_cast<int>(m_parts.size()) - 1))];
        }
        return text;
    }

    int Number(int greatest) { return std::uniform_int_distribution<int>(0, greatest)(m_random); }

private:
    std::mt19937 m_random{20190107};
    std::vector<QString> m_parts;
    int m_greatestCount;
};

struct Agreement
{
    int yes = 0;
    int no = 0;
};

QDate DateOf(QString const& text)
{
    Pelnar::Testing::PlainItem item;
    item.date = text;
    return ItemRecord(item).Date();
}

void ExpectSameAnswer(QString const& text, Agreement& agreement)
{
    QDate const date = DateOf(text);
    ASSERT_EQ(date, QDate::fromString(text, Qt::TextDate)) << text.toStdString();
    ++(date.isValid() ? agreement.yes : agreement.no);
}

TEST(ItemDate, RandomTextsAreDatesAsQtSays)
{
    TextMaker text({"Mon",   "Jan", "Feb", "7",      "07",     "31",     "2019", "-1",   "+7",
                    "99999", " ",   " ",   " ",      " ",      "  ",     "\t",   ",",    "10:00:00",
                    "+0000", "GMT", "x",   "\u0667", "\u00a0", "\u2003", ".",    "\x7f", "\x01"},
                   12);
    Agreement agreement;
    for (int i = 0; i < ROUNDS && !HasFatalFailure(); ++i)
    {
        ExpectSameAnswer(text(), agreement);
    }
    EXPECT_GT(agreement.no, ROUNDS / 3);
}

TEST(ItemDate, RandomTextsThatEndLikeADateAreDatesAsQtSays)
{
    TextMaker start({"Mon", "x", " ", " ", "Jan", "7", "\t", "\u00e9"}, 5);
    TextMaker day({"7", "1", "31", "+", "-", "0", "\t", "\u00a0", "\x01", "x", "\u0667"}, 2);
    TextMaker year({"2019", "20", "0", "-", "+", " ", "\t", "x"}, 2);
    Agreement agreement;
    for (int i = 0; i < ROUNDS && !HasFatalFailure(); ++i)
    {
        QString const blank = QString(1 + start.Number(1), QLatin1Char(' '));
        ExpectSameAnswer(start() + blank + QLatin1String(start.Number(4) ? "Jan" : "jan") + blank + day() + blank +
                             year(),
                         agreement);
    }
    EXPECT_GT(agreement.yes, ROUNDS / 30);
    EXPECT_GT(agreement.no, ROUNDS / 30);
}

TEST(ItemDate, RandomTextsThatEndLikeATimeAreDatesAsQtSays)
{
    TextMaker text({"Mon Jan", "7", " ", ":", ":0", ":00", "0", "2019", "+0000", "\t", "\u00a0"}, 8);
    Agreement agreement;
    for (int i = 0; i < ROUNDS && !HasFatalFailure(); ++i)
    {
        ExpectSameAnswer(QStringLiteral("x Mon Jan ") + text(), agreement);
    }
    EXPECT_GT(agreement.yes, ROUNDS / 3000);
    EXPECT_GT(agreement.no, ROUNDS / 3);
}

TEST(ItemDate, DatesOfFeedsAreNoTextDates)
{
    for (char const* text : {"Mon, 07 Jan 2019 10:00:00 +0000", "2019-01-07T10:00:00Z", "07 Jan 2019", "Jan 7 2019", "",
                             "Mon jan 7 2019", " ", "Mon"})
    {
        EXPECT_FALSE(DateOf(QString::fromLatin1(text)).isValid()) << text;
    }
    EXPECT_EQ(DateOf(QStringLiteral("Mon Jan 7 2019")), QDate(2019, 1, 7));
    EXPECT_EQ(DateOf(QStringLiteral("x y z Jan 7 2019")), QDate(2019, 1, 7));
}

} // namespace
