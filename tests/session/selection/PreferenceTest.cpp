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

char const BUNDLE[] = "https://a.example/App.zip";
char const OTHER_BUNDLE[] = "https://b.example/App.zip";
char const INSTALLER[] = "https://a.example/App.sparkle_guided.pkg";
char const OTHER_INSTALLER[] = "https://a.example/App.sparkle_interactive.pkg";
char const FEED_DATE[] = "Mon, 07 Jan 2019 10:00:00 +0000";
char const LATER_FEED_DATE[] = "Tue, 08 Jan 2019 10:00:00 +0000";
char const TEXT_DATE[] = "Mon Jan 7 2019";
char const LATER_TEXT_DATE[] = "Tue Jan 8 2019";

struct Offer
{
    char const* version = "5.1";
    char const* address = BUNDLE;
    bool isDelta = false;
    char const* date = FEED_DATE;
    std::uint64_t length = 1000;
};

/// Two valid items for the local version 5.0: the winner, and the rule.
struct PreferenceRow
{
    char const* rule;
    Offer a;
    Offer b;
    char winner;
    PreferenceRule expected;
};

void PrintTo(PreferenceRow const& row, std::ostream* out)
{
    *out << row.rule;
}

PlainItem Item(Offer const& offer)
{
    PlainItem item;
    item.version = Text(offer.version);
    item.address = Text(offer.address);
    item.isDelta = offer.isDelta;
    item.date = Text(offer.date);
    item.length = offer.length;
    return item;
}

std::vector<PreferenceRow> const PREFERENCE_ROWS = {
    {"NewerSecond", {"5.1"}, {"5.2"}, 'b', PreferenceRule::NEWER_VERSION},
    {"NewerFirst", {"5.10"}, {"5.9"}, 'a', PreferenceRule::NEWER_VERSION},
    {"NewerBeforeType", {"6.0", INSTALLER}, {"6.0.1", BUNDLE}, 'b', PreferenceRule::NEWER_VERSION},
    {"NewerMajorBundleBeforeMinorDelta", {"5.9", BUNDLE, true}, {"6.0"}, 'b', PreferenceRule::NEWER_VERSION},
    {"MinorDeltaBeforeBundle", {"5.1", BUNDLE}, {"5.1", BUNDLE, true}, 'b', PreferenceRule::WANTED_TYPE},
    {"MinorDeltaBeforeInstaller", {"5.1", BUNDLE, true}, {"5.1", INSTALLER}, 'a', PreferenceRule::WANTED_TYPE},
    {"MinorBundleBeforeInstaller", {"5.1", INSTALLER}, {"5.1", BUNDLE}, 'b', PreferenceRule::WANTED_TYPE},
    {"MajorInstallerBeforeBundle", {"6.0", BUNDLE}, {"6.0", INSTALLER}, 'b', PreferenceRule::WANTED_TYPE},
    {"MajorInstallerBeforeDelta", {"6.0", INSTALLER}, {"6.0", BUNDLE, true}, 'a', PreferenceRule::WANTED_TYPE},
    {"MajorDeltaBeforeBundle", {"6.0", BUNDLE}, {"6.0", BUNDLE, true}, 'b', PreferenceRule::WANTED_TYPE},
    {"TypeAmongVersionsEqualOnceShrunk", {"5.1", INSTALLER}, {"5.1.0", BUNDLE}, 'b', PreferenceRule::WANTED_TYPE},
    {"TypeBeforeLength", {"5.1", INSTALLER, false, FEED_DATE, 1}, {"5.1"}, 'b', PreferenceRule::WANTED_TYPE},
    {"SameAddressKeepsTheFirst", {"5.1", BUNDLE, false, FEED_DATE, 9}, {}, 'a', PreferenceRule::SAME_ADDRESS},
    {"SameAddressBeforeLength", {}, {"5.1", BUNDLE, false, FEED_DATE, 1}, 'a', PreferenceRule::SAME_ADDRESS},
    {"SameAddressBeforeDate",
     {"5.1", BUNDLE, false, TEXT_DATE},
     {"5.1", BUNDLE, false, LATER_TEXT_DATE},
     'a',
     PreferenceRule::SAME_ADDRESS},
    {"SameAddressInAnotherSpelling", {}, {"5.1", "HTTPS://A.EXAMPLE/App.zip"}, 'a', PreferenceRule::SAME_ADDRESS},
    {"LaterTextDateSecond",
     {"5.1", BUNDLE, false, TEXT_DATE, 1},
     {"5.1", OTHER_BUNDLE, false, LATER_TEXT_DATE},
     'b',
     PreferenceRule::LATER_DATE},
    {"LaterTextDateFirst",
     {"5.1", BUNDLE, false, LATER_TEXT_DATE},
     {"5.1", OTHER_BUNDLE, false, TEXT_DATE, 1},
     'a',
     PreferenceRule::LATER_DATE},
    {"TextDateAfterAnUnreadableOne",
     {"5.1", BUNDLE, false, FEED_DATE, 1},
     {"5.1", OTHER_BUNDLE, false, TEXT_DATE},
     'b',
     PreferenceRule::LATER_DATE},
    {"FeedDatesDecideNothing",
     {"5.1", BUNDLE, false, FEED_DATE, 1},
     {"5.1", OTHER_BUNDLE, false, LATER_FEED_DATE, 2},
     'a',
     PreferenceRule::SMALLER_LENGTH},
    {"AddressesThatDifferInTheQueryByLength",
     {"5.1", "https://a.example/get?v=1"},
     {"5.1", "https://a.example/get?v=2", false, FEED_DATE, 1},
     'b',
     PreferenceRule::SMALLER_LENGTH},
    {"SmallerSecond", {}, {"5.1", OTHER_BUNDLE, false, FEED_DATE, 999}, 'b', PreferenceRule::SMALLER_LENGTH},
    {"SmallerFirst", {}, {"5.1", OTHER_BUNDLE, false, FEED_DATE, 1001}, 'a', PreferenceRule::SMALLER_LENGTH},
    {"EqualLengthsKeepTheFirst", {}, {"5.1", OTHER_BUNDLE}, 'a', PreferenceRule::SMALLER_LENGTH},
    {"LengthsAreUnsigned",
     {"5.1", BUNDLE, false, FEED_DATE, 0xffffffffffffffffu},
     {"5.1", OTHER_BUNDLE, false, FEED_DATE, 1},
     'b',
     PreferenceRule::SMALLER_LENGTH},
    {"TwoInstallersByLength",
     {"6.0", INSTALLER},
     {"6.0", OTHER_INSTALLER, false, FEED_DATE, 1},
     'b',
     PreferenceRule::SMALLER_LENGTH},
    {"TwoDeltasByLength",
     {"5.1", BUNDLE, true},
     {"5.1", OTHER_BUNDLE, true, FEED_DATE, 1},
     'b',
     PreferenceRule::SMALLER_LENGTH},
};

class PreferenceTable : public ::testing::TestWithParam<PreferenceRow>
{
};

TEST_P(PreferenceTable, NamesTheWinnerAndItsRule)
{
    PlainItem const itemA = Item(GetParam().a);
    PlainItem const itemB = Item(GetParam().b);
    PlainSubject const subject;
    ItemRecord a(itemA);
    ItemRecord b(itemB);
    std::optional<Preference> const byType = PreferByVersionAndType(a, b, subject.View());
    Preference const preference = byType ? *byType : PreferByDownload(a, b);
    EXPECT_EQ(static_cast<int>(preference.rule), static_cast<int>(GetParam().expected));
    EXPECT_EQ(&preference.item, GetParam().winner == 'a' ? &a : &b);
}

INSTANTIATE_TEST_SUITE_P(Rows, PreferenceTable, ::testing::ValuesIn(PREFERENCE_ROWS),
                         [](auto const& row) { return std::string(row.param.rule); });

TEST(Preference, MajorIsComparedWithTheLocalOneAsASignedNumber)
{
    PlainItem const bundle = Item({"1.0", BUNDLE});
    PlainItem const installer = Item({"1.0", INSTALLER});
    PlainSubject subject;
    subject.localVersion = Version(-2, 0);
    ItemRecord a(bundle);
    ItemRecord b(installer);
    std::optional<Preference> const major = PreferByVersionAndType(a, b, subject.View());
    ASSERT_TRUE(major);
    EXPECT_EQ(&major->item, &b);
    subject.localVersion = Version(1, 0);
    std::optional<Preference> const minor = PreferByVersionAndType(a, b, subject.View());
    ASSERT_TRUE(minor);
    EXPECT_EQ(&minor->item, &a);
}

TEST(Preference, ItemsAreReadOnceHoweverOftenTheyAreCompared)
{
    PlainItem const itemA = Item({});
    PlainItem const itemB = Item({"5.1", OTHER_BUNDLE});
    PlainSubject const subject;
    ItemRecord a(itemA);
    ItemRecord b(itemB);
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_FALSE(PreferByVersionAndType(a, b, subject.View()));
        EXPECT_EQ(PreferByDownload(a, b).rule, PreferenceRule::SMALLER_LENGTH);
    }
    std::vector<std::string> const once{"version", "isDelta", "address", "date", "length"};
    EXPECT_EQ(itemA.reads, once);
    EXPECT_EQ(itemB.reads, once);
}

TEST(Preference, MissingOrderThrows)
{
    PlainItem const item = Item({});
    PlainSubject subject;
    subject.versionLess = nullptr;
    ItemRecord a(item);
    ItemRecord b(item);
    EXPECT_THROW((void)PreferByVersionAndType(a, b, subject.View()), std::bad_function_call);
}

TEST(DeltaStart, IsAVersionThatEqualsTheLocalOne)
{
    PlainSubject subject;
    for (char const* start : {"5", "5.0", "05.0.0.0"})
    {
        EXPECT_TRUE(StartsFromRunningVersion(Text(start), subject.View())) << start;
    }
    for (char const* start : {"5.1", "4.9", "", "five"})
    {
        EXPECT_FALSE(StartsFromRunningVersion(Text(start), subject.View())) << start;
    }
}

TEST(DeltaStart, ThatDoesNotParseIsNotCompared)
{
    PlainSubject subject;
    subject.versionEqual = [](Version const&, Version const&) { return true; };
    EXPECT_FALSE(StartsFromRunningVersion(Text("five"), subject.View()));
    EXPECT_TRUE(StartsFromRunningVersion(Text("4"), subject.View()));
}

} // namespace
