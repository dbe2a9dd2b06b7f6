#include "tests/session/selection/PlainItem.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{

using namespace Pelnar::App::Session;
using Pelnar::Core::Version;
using Pelnar::Testing::PlainItem;
using Pelnar::Testing::PlainSubject;

QString Text(char const* text)
{
    return QString::fromLatin1(text);
}

/// A valid 5.1, judged by 5.0 on system 12.3. Only the given properties differ.
struct JudgementRow
{
    char const* rule;
    Judgement expected;
    std::function<void(PlainItem&, PlainSubject&)> change;
};

void PrintTo(JudgementRow const& row, std::ostream* out)
{
    *out << row.rule;
}

std::vector<JudgementRow> const JUDGEMENT_ROWS = {
    {"Ordinary", Judgement::VALID, [](PlainItem&, PlainSubject&) {}},
    {"MinimumAboveTheSystem", Judgement::SYSTEM_TOO_OLD,
     [](PlainItem& item, PlainSubject&) { item.minimumSystem = Text("12.4"); }},
    {"MinimumOfTheSystem", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.minimumSystem = Text("12.3"); }},
    {"MinimumOfTheSystemOnceShrunk", Judgement::VALID,
     [](PlainItem& item, PlainSubject&) { item.minimumSystem = Text("12.3.0.0"); }},
    {"MinimumAboveOnlyInTheLastComponent", Judgement::SYSTEM_TOO_OLD,
     [](PlainItem& item, PlainSubject&) { item.minimumSystem = Text("12.3.0.1"); }},
    {"UnparsableMinimum", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.minimumSystem = Text("99.x"); }},
    {"EmptyMinimum", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.minimumSystem = Text(""); }},
    {"MaximumBelowTheSystem", Judgement::SYSTEM_TOO_NEW,
     [](PlainItem& item, PlainSubject&) { item.maximumSystem = Text("12.2.9"); }},
    {"MaximumOfTheSystem", Judgement::VALID,
     [](PlainItem& item, PlainSubject&) { item.maximumSystem = Text("12.3.0"); }},
    {"UnparsableMaximum", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.maximumSystem = Text("1.x"); }},
    {"EmptyMaximum", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.maximumSystem = Text(""); }},
    {"MinimumBeforeMaximum", Judgement::SYSTEM_TOO_OLD,
     [](PlainItem& item, PlainSubject&)
     {
         item.minimumSystem = Text("13");
         item.maximumSystem = Text("11");
     }},
    {"BoundsOfAnUnknownSystem", Judgement::VALID,
     [](PlainItem& item, PlainSubject& subject)
     {
         item.minimumSystem = Text("99");
         item.maximumSystem = Text("1");
         subject.systemVersion = Version();
     }},
    {"SystemBeforeVersion", Judgement::SYSTEM_TOO_NEW,
     [](PlainItem& item, PlainSubject&)
     {
         item.maximumSystem = Text("11");
         item.version = Text("x");
     }},
    {"NoVersion", Judgement::VERSION_UNREADABLE, [](PlainItem& item, PlainSubject&) { item.version = QString(); }},
    {"VersionOfLetters", Judgement::VERSION_UNREADABLE,
     [](PlainItem& item, PlainSubject&) { item.version = Text("5.1b"); }},
    {"OlderVersion", Judgement::VERSION_OLDER, [](PlainItem& item, PlainSubject&) { item.version = Text("4.9.9"); }},
    {"LocalVersion", Judgement::VERSION_EQUAL, [](PlainItem& item, PlainSubject&) { item.version = Text("5.0"); }},
    {"LocalVersionOnceShrunk", Judgement::VERSION_EQUAL,
     [](PlainItem& item, PlainSubject&) { item.version = Text("5.0.0"); }},
    {"NewerInTheLastComponent", Judgement::VALID,
     [](PlainItem& item, PlainSubject&) { item.version = Text("5.0.0.1"); }},
    {"OlderAndEqualByTheOperators", Judgement::VERSION_OLDER,
     [](PlainItem&, PlainSubject& subject)
     {
         subject.versionLess = [](Version const&, Version const&) { return true; };
         subject.versionEqual = subject.versionLess;
     }},
    {"VersionBeforeAddress", Judgement::VERSION_EQUAL,
     [](PlainItem& item, PlainSubject&)
     {
         item.version = Text("5.0");
         item.address = QString();
     }},
    {"RelativeAddress", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.address = Text("App.zip"); }},
    {"NoAddress", Judgement::URL_INVALID, [](PlainItem& item, PlainSubject&) { item.address = QString(); }},
    {"InvalidAddress", Judgement::URL_INVALID,
     [](PlainItem& item, PlainSubject&) { item.address = Text("https://a.example:port/x"); }},
    {"AddressOfAnyScheme", Judgement::VALID,
     [](PlainItem& item, PlainSubject&) { item.address = Text("file:///tmp/x%20y.zip"); }},
    {"AddressBeforeDate", Judgement::URL_INVALID,
     [](PlainItem& item, PlainSubject&)
     {
         item.address = QString();
         item.date = Text("Mon Jan 7 2019");
     }},
    {"DateInTextForm", Judgement::DATE_REFUSED,
     [](PlainItem& item, PlainSubject&) { item.date = Text("Mon Jan 7 2019"); }},
    {"DateInTextFormAfterOtherWords", Judgement::DATE_REFUSED,
     [](PlainItem& item, PlainSubject&) { item.date = Text("released on Mon Jan 7 2019"); }},
    {"ImpossibleDateInTextForm", Judgement::VALID,
     [](PlainItem& item, PlainSubject&) { item.date = Text("Mon Jan 32 2019"); }},
    {"NoDate", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.date = QString(); }},
    {"DateBeforeLength", Judgement::DATE_REFUSED,
     [](PlainItem& item, PlainSubject&)
     {
         item.date = Text("Mon Jan 7 2019");
         item.length = 0;
     }},
    {"NoLength", Judgement::LENGTH_ZERO, [](PlainItem& item, PlainSubject&) { item.length = 0; }},
    {"LengthOfOne", Judgement::VALID, [](PlainItem& item, PlainSubject&) { item.length = 1; }},
    {"GreatestLength", Judgement::VALID,
     [](PlainItem& item, PlainSubject&) { item.length = std::numeric_limits<std::uint64_t>::max(); }},
};

class JudgementTable : public ::testing::TestWithParam<JudgementRow>
{
};

TEST_P(JudgementTable, NamesTheFirstFailedTest)
{
    PlainItem item;
    PlainSubject subject;
    GetParam().change(item, subject);
    ItemRecord record(item);
    EXPECT_STREQ(JudgementName(Judge(record, subject.View())), JudgementName(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Rows, JudgementTable, ::testing::ValuesIn(JUDGEMENT_ROWS),
                         [](auto const& row) { return std::string(row.param.rule); });

TEST(Judgement, EveryValueHasItsNumberAndName)
{
    char const* const names[] = {"system-too-old", "system-too-new", "version-unreadable",
                                 "version-older",  "version-equal",  "url-invalid",
                                 "date-refused",   "length-zero",    "valid"};
    for (int value = 0; value < 9; ++value)
    {
        EXPECT_STREQ(JudgementName(static_cast<Judgement>(value)), names[value]);
    }
    EXPECT_STREQ(JudgementName(static_cast<Judgement>(9)), "unknown");
}

TEST(Judgement, PropertiesAreReadOnceInTheOrderOfTheTests)
{
    PlainItem item;
    PlainSubject const subject;
    ItemRecord record(item);
    EXPECT_EQ(Judge(record, subject.View()), Judgement::VALID);
    EXPECT_EQ(Judge(record, subject.View()), Judgement::VALID);
    EXPECT_EQ(item.reads,
              (std::vector<std::string>{"minimumSystem", "maximumSystem", "version", "address", "date", "length"}));
}

TEST(Judgement, PropertiesBehindTheFirstFailureStayUnread)
{
    PlainItem item;
    item.version = Text("4.0");
    PlainSubject const subject;
    ItemRecord record(item);
    EXPECT_EQ(Judge(record, subject.View()), Judgement::VERSION_OLDER);
    EXPECT_EQ(item.reads, (std::vector<std::string>{"minimumSystem", "maximumSystem", "version"}));
}

TEST(Judgement, BoundsOfAnUnknownSystemStayUnread)
{
    PlainItem item;
    PlainSubject subject;
    subject.systemVersion = Version();
    ItemRecord record(item);
    EXPECT_EQ(Judge(record, subject.View()), Judgement::VALID);
    EXPECT_EQ(item.reads, (std::vector<std::string>{"version", "address", "date", "length"}));
}

TEST(Judgement, MissingOperatorThrows)
{
    PlainItem item;
    ItemRecord record(item);
    PlainSubject noLess;
    noLess.versionLess = nullptr;
    EXPECT_THROW((void)Judge(record, noLess.View()), std::bad_function_call);
    PlainSubject noEqual;
    noEqual.versionEqual = nullptr;
    EXPECT_THROW((void)Judge(record, noEqual.View()), std::bad_function_call);
}

} // namespace
