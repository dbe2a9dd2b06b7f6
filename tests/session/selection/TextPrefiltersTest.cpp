#include "App/UpdateChecker/SparkleImpl/Choice/TextPrefilters.h"

#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <QUrl>

#include <random>
#include <string>
#include <vector>

namespace
{

using namespace Pelnar::App::Session;

constexpr int ROUNDS = Pelnar::Testing::IS_SANITIZED ? 20000 : 300000;

/// Joins up to \a greatestCount random parts, so that texts come close to the limits of what is certain.
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

void ExpectSameAddressAnswer(QString const& text, Agreement& agreement)
{
    bool const answer = IsValidAddress(text);
    ASSERT_EQ(answer, QUrl(text).isValid()) << text.toStdString();
    ++(answer ? agreement.yes : agreement.no);
}

void ExpectSameDateAnswer(QString const& text, Agreement& agreement)
{
    QDate const date = TextDate(text);
    ASSERT_EQ(date, QDate::fromString(text, Qt::TextDate)) << text.toStdString();
    ++(date.isValid() ? agreement.yes : agreement.no);
}

TEST(TextPrefilters, AddressesAreValidAsQtSays)
{
    Agreement agreement;
    for (char const* text : {"",
                             "https://",
                             "https:///",
                             "https://a",
                             "https://a.example",
                             "https://a.example/x",
                             "https://c.-a/x",
                             "https://c-.a/x",
                             "https://-c.a/x",
                             "https://a..b/x",
                             "https://.a/x",
                             "https://a./x",
                             "https://xn--/x",
                             "https://xn--a/x",
                             "https://xn--a.example/x",
                             "https://a--b/x",
                             "https://1.2.3.4/x",
                             "https://1/x",
                             "https://0x7f.1/x",
                             "https://1.2.3.4a/x",
                             "https://9a.9b.c/x",
                             "https://a.example/x y",
                             "https://a.example/%",
                             "https://a.example:80/x",
                             "https://a.example:port/x",
                             "https://u:p@a.example/x",
                             "https://[::1]/x",
                             "http://a.example/x",
                             "HTTPS://a.example/x",
                             "//a.example/x",
                             "a.example/x",
                             "/x",
                             "file:///x",
                             ":",
                             "?",
                             "#"})
    {
        ExpectSameAddressAnswer(QString::fromUtf8(text), agreement);
    }
    EXPECT_GT(agreement.yes, 10);
    EXPECT_GT(agreement.no, 5);
}

TEST(TextPrefilters, RandomAddressesAreValidAsQtSays)
{
    TextMaker host({"a",
                    "z",
                    "x",
                    "xn",
                    "example",
                    "-",
                    "--",
                    ".",
                    ".",
                    "0",
                    "9",
                    "0x",
                    "A",
                    "_",
                    "%41",
                    "%",
                    ":",
                    "@",
                    "\u00e9",
                    "[",
                    "]",
                    " ",
                    "abcdefghijklmnopqrstuvwxyz",
                    "com"},
                   8);
    TextMaker path({"a", "Z", "/", "//", ".", "..", "-",  "_",      "~",  "App", "5.1", "%20",
                    "%", " ", ":", "@",  "?", "#",  "\\", "\u00e9", "\"", "[",   "|"},
                   6);
    Agreement agreement;
    for (int i = 0; i < ROUNDS && !HasFatalFailure(); ++i)
    {
        QString const scheme = host.Number(9) == 0 ? path() : QStringLiteral("https://");
        ExpectSameAddressAnswer(scheme + host() + QLatin1String(host.Number(3) ? "/" : "") + path(), agreement);
    }
    EXPECT_GT(agreement.yes, ROUNDS / 30);
    EXPECT_GT(agreement.no, ROUNDS / 30);
}

TEST(TextPrefilters, RandomPlainAddressesAreValidAsQtSays)
{
    TextMaker host({"a", "b", "z", "xn", "cdefghij", "-", ".", "0", "7", "0x", "e"}, 14);
    TextMaker path({"a", "Z", "/", ".", "-", "_", "~", "0"}, 8);
    Agreement agreement;
    for (int i = 0; i < ROUNDS && !HasFatalFailure(); ++i)
    {
        ExpectSameAddressAnswer(QStringLiteral("https://") + host() + QLatin1Char('/') + path(), agreement);
    }
    EXPECT_GT(agreement.yes, ROUNDS / 30);
    EXPECT_GT(agreement.no, ROUNDS / 300);
}

TEST(TextPrefilters, RandomTextsAreDatesAsQtSays)
{
    TextMaker text({"Mon",   "Jan", "Feb", "7",      "07",     "31",     "2019", "-1",   "+7",
                    "99999", " ",   " ",   " ",      " ",      "  ",     "\t",   ",",    "10:00:00",
                    "+0000", "GMT", "x",   "\u0667", "\u00a0", "\u2003", ".",    "\x7f", "\x01"},
                   12);
    Agreement agreement;
    for (int i = 0; i < ROUNDS && !HasFatalFailure(); ++i)
    {
        ExpectSameDateAnswer(text(), agreement);
    }
    EXPECT_GT(agreement.no, ROUNDS / 3);
}

TEST(TextPrefilters, RandomTextsThatEndLikeADateAreDatesAsQtSays)
{
    TextMaker start({"Mon", "x", " ", " ", "Jan", "7", "\t", "\u00e9"}, 5);
    TextMaker day({"7", "1", "31", "+", "-", "0", "\t", "\u00a0", "\x01", "x", "\u0667"}, 2);
    TextMaker year({"2019", "20", "0", "-", "+", " ", "\t", "x"}, 2);
    Agreement agreement;
    for (int i = 0; i < ROUNDS && !HasFatalFailure(); ++i)
    {
        QString const blank = QString(1 + start.Number(1), QLatin1Char(' '));
        ExpectSameDateAnswer(start() + blank + QLatin1String(start.Number(4) ? "Jan" : "jan") + blank + day() + blank +
                                 year(),
                             agreement);
    }
    EXPECT_GT(agreement.yes, ROUNDS / 30);
    EXPECT_GT(agreement.no, ROUNDS / 30);
}

TEST(TextPrefilters, DatesOfFeedsAreNoTextDates)
{
    for (char const* text : {"Mon, 07 Jan 2019 10:00:00 +0000", "2019-01-07T10:00:00Z", "07 Jan 2019", "Jan 7 2019", "",
                             "Mon jan 7 2019", " ", "Mon"})
    {
        EXPECT_FALSE(TextDate(QString::fromLatin1(text)).isValid()) << text;
    }
    EXPECT_EQ(TextDate(QStringLiteral("Mon Jan 7 2019")), QDate(2019, 1, 7));
    EXPECT_EQ(TextDate(QStringLiteral("x y z Jan 7 2019")), QDate(2019, 1, 7));
}

} // namespace
