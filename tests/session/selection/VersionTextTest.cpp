#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include <gtest/gtest.h>

namespace
{

using Pelnar::App::Session::VersionFromStringNoexcept;
using Pelnar::Core::Version;

TEST(VersionFromStringNoexcept, TextTheParserTakesGivesItsVersion)
{
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral("5")), Version(5));
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral("5.1")), Version(5, 1));
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral("5.1.2.3")), Version(5, 1, 2, 3));
}

TEST(VersionFromStringNoexcept, TextTheParserRejectsGivesTheInvalidVersion)
{
    for (char const* text : {"letters", "5.x", "5.1b2", ".", "5.", " 5", "1.2.3.4.5", "2147483648"})
    {
        EXPECT_EQ(VersionFromStringNoexcept(QString::fromLatin1(text)), Version()) << text;
    }
}

TEST(VersionFromStringNoexcept, EmptyTextGivesTheInvalidVersion)
{
    EXPECT_EQ(VersionFromStringNoexcept(QString()), Version());
    EXPECT_EQ(VersionFromStringNoexcept(QStringLiteral("")), Version());
}

} // namespace
