// IdleTest.cpp: the libraries of a process before its first check and after it.
#include "tests/idle/IdleProcess.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

namespace
{

using namespace Pelnar::Testing;

constexpr int MOST_LIBRARIES = 10;

QStringList const ONLY_FOR_CHECKS = {QStringLiteral("libPelnarUpdateSession"), QStringLiteral("libPelnarUpdateEngine"),
                                     QStringLiteral("libgnustep-base"), QStringLiteral("libcurl"),
                                     QStringLiteral("libsodium")};

/// The loaded libraries that only a check needs.
QStringList ForChecks(QStringList const& libraries)
{
    QStringList found;
    for (QString const& beginning : ONLY_FOR_CHECKS)
    {
        found += libraries.filter(QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(beginning)));
    }
    return found;
}

QStringList IdleLibraries(QStringList const& words)
{
    return LibrariesIn(LinesOf(QStringLiteral(PELNAR_IDLE_HOST), words + QStringList{QStringLiteral("libraries")}));
}

TEST(IdleHost, HasFewMoreLibrariesThanTheSameProgramWithoutTheUpdateChecker)
{
    QStringList const plain = LibrariesIn(LinesOf(QStringLiteral(PELNAR_PLAIN_HOST), {QStringLiteral("libraries")}));
    QStringList const libraries = IdleLibraries({});
    ASSERT_FALSE(plain.isEmpty());
    ASSERT_EQ(libraries.filter(QStringLiteral("libPelnarUpdateChecker")).size(), 1);
    QStringList more;
    for (QString const& name : libraries)
    {
        if (!plain.contains(name))
        {
            more += name;
        }
    }
    EXPECT_LE(more.size(), MOST_LIBRARIES) << qPrintable(more.join(QLatin1Char(' ')));
    EXPECT_TRUE(ForChecks(libraries).isEmpty()) << qPrintable(ForChecks(libraries).join(QLatin1Char(' ')));
}

TEST(IdleHost, LoadsNothingToConfirmAStartAfterWhichNothingIsLeft)
{
    QStringList const libraries = IdleLibraries({QStringLiteral("confirm")});
    EXPECT_FALSE(libraries.isEmpty());
    EXPECT_TRUE(ForChecks(libraries).isEmpty()) << qPrintable(ForChecks(libraries).join(QLatin1Char(' ')));
}

TEST(IdleHost, LoadsTheEngineToTellOfTheFeed)
{
    QStringList const lines =
        LinesOf(QStringLiteral(PELNAR_IDLE_HOST), {QStringLiteral("days"), QStringLiteral("libraries")});
    EXPECT_TRUE(lines.contains(QLatin1String("days 0"))) << qPrintable(lines.join(QLatin1Char('\n')));
    EXPECT_FALSE(ForChecks(LibrariesIn(lines)).isEmpty());
}

TEST(CheckedHost, HasEachLibraryOnce)
{
    LibraryPlace place;
    LibraryPlace::Copy(QStringLiteral(PELNAR_SESSION), place.SessionPath());
    LibraryPlace::Copy(QStringLiteral(PELNAR_ENGINE), place.EnginePath());
    QStringList const lines =
        place.Run({QStringLiteral("check"), QStringLiteral("check"), QStringLiteral("libraries")});
    EXPECT_EQ(lines.count(QStringLiteral("found 5.9 5.10")), 2) << qPrintable(lines.join(QLatin1Char('\n')));
    QStringList const libraries = LibrariesIn(lines);
    for (QString const& beginning : ONLY_FOR_CHECKS)
    {
        EXPECT_FALSE(libraries.filter(beginning).isEmpty()) << qPrintable(beginning);
    }
    // By the name without the version: two versions of a library would have two copies of its state.
    QStringList bare =
        libraries.filter(QRegularExpression(QStringLiteral("^lib(Pelnar|glog|gflags|gnustep|objc|Qt5)")));
    bare.replaceInStrings(QRegularExpression(QStringLiteral("[.]so.*")), QString());
    QSet<QString> const unique(bare.begin(), bare.end());
    EXPECT_EQ(unique.size(), bare.size()) << qPrintable(libraries.join(QLatin1Char('\n')));
}

} // namespace
