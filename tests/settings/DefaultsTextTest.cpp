// DefaultsTextTest.cpp: user defaults as text, and the meaning of their values.
#include "Settings/DefaultsText.h"

#include <gtest/gtest.h>

#include <QDateTime>

namespace
{

using namespace Pelnar;
using namespace Pelnar::Settings;
using Core::SettingType;

QVariant Meaning(std::string const& text, SettingType type)
{
    auto const entries = ParseDefaults("{ key = " + text + "; }");
    EXPECT_TRUE(entries) << text;
    return entries ? MeaningOf(entries->at("key"), type) : QVariant();
}

TEST(DefaultsText, IsWrittenForAPerson)
{
    DefaultsEntries entries;
    entries["SUSkippedVersion"] = EntryFor(QStringLiteral("5.1 \"b\\c\""));
    entries["SUAutomaticallyUpdate"] = EntryFor(true);
    entries["PelnarFailedChecks"] = EntryFor(3);
    entries["SULastCheckTime"] = EntryFor(QDateTime({2026, 1, 31}, {23, 59, 58}, Qt::UTC));
    EXPECT_EQ(FormatDefaults(entries), "{\n"
                                       "    PelnarFailedChecks = 3;\n"
                                       "    SUAutomaticallyUpdate = YES;\n"
                                       "    SULastCheckTime = \"2026-01-31T23:59:58Z\";\n"
                                       "    SUSkippedVersion = \"5.1 \\\"b\\\\c\\\"\";\n"
                                       "}\n");
}

TEST(DefaultsText, WhatIsWrittenIsReadAgain)
{
    DefaultsEntries entries;
    for (char16_t character = 1; character < 0x250; ++character)
    {
        entries[std::to_string(character)] = EntryFor(QString(QChar(character)) + QLatin1Char('x'));
    }
    auto const nested = ParseDefaults("{ list = (a, (b), { c = \"d e\"; }); map = { \"k k\" = (); }; }");
    ASSERT_TRUE(nested);
    entries.insert(nested->begin(), nested->end());
    std::string const text = FormatDefaults(entries);
    auto const read = ParseDefaults(text);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), entries.size());
    for (auto const& [key, value] : entries)
    {
        EXPECT_EQ(read->at(key).text, value.text) << key;
    }
    EXPECT_EQ(FormatDefaults(*read), text);
}

TEST(DefaultsText, ValuesHaveTheTypeOfTheirSetting)
{
    for (char const* const yes : {"YES", "yes", "true", "1", "<*BY>"})
    {
        EXPECT_EQ(Meaning(yes, SettingType::Boolean), QVariant(true)) << yes;
    }
    for (char const* const no : {"NO", "False", "0", "<*BN>"})
    {
        EXPECT_EQ(Meaning(no, SettingType::Boolean), QVariant(false)) << no;
    }
    EXPECT_EQ(Meaning("maybe", SettingType::Boolean), QVariant(QStringLiteral("maybe")));
    EXPECT_EQ(Meaning("7", SettingType::Number), QVariant(qlonglong(7)));
    EXPECT_EQ(Meaning("<*I-7>", SettingType::Number), QVariant(qlonglong(-7)));
    EXPECT_EQ(Meaning("seven", SettingType::Number), QVariant(QStringLiteral("seven")));
    EXPECT_EQ(Meaning("7", SettingType::Text), QVariant(QStringLiteral("7")));
    EXPECT_EQ(Meaning("(7)", SettingType::Text).type(), QVariant::List);
    QDateTime const time({2026, 1, 31}, {23, 59, 58}, Qt::UTC);
    for (char const* const text :
         {"\"2026-01-31T23:59:58Z\"", "<*D2026-01-31 23:59:58 +0000>", "<*D2026-02-01 01:59:58 +0200>"})
    {
        EXPECT_EQ(Meaning(text, SettingType::Date), QVariant(time)) << text;
    }
    EXPECT_EQ(Meaning("today", SettingType::Date), QVariant(QStringLiteral("today")));
}

TEST(DefaultsText, XmlIsReadAsWell)
{
    auto const entries = ParseDefaults("<plist version=\"1.0\"><dict><key>SUAutomaticallyUpdate</key><true/>"
                                       "<key>PelnarFailedChecks</key><integer>3</integer></dict></plist>");
    ASSERT_TRUE(entries);
    EXPECT_EQ(MeaningOf(entries->at("SUAutomaticallyUpdate"), SettingType::Boolean), QVariant(true));
    EXPECT_EQ(MeaningOf(entries->at("PelnarFailedChecks"), SettingType::Number), QVariant(qlonglong(3)));
}

TEST(DefaultsText, WhatIsNoDictionaryIsNothing)
{
    for (char const* const text : {"{ a = 1", "(1)", "text", "{ a = 1; a = 2; }", "<plist>", "{} {}"})
    {
        EXPECT_FALSE(ParseDefaults(text)) << text;
    }
    EXPECT_TRUE(ParseDefaults(" \n")->empty());
}

} // namespace
