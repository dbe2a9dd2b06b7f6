#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::App::Session;

TEST(Extensions, ConstantsAreBuiltFromEachOther)
{
    EXPECT_EQ(Extensions::VERSION, QStringLiteral("1"));
    EXPECT_EQ(Extensions::PREFIX, QStringLiteral("pelnar1_"));
    EXPECT_EQ(Extensions::KEY_OVERRIDE_PATH_TO_RELAUNCH, QStringLiteral("PELNAR1_OVERRIDEPATHTORELAUNCH"));
}

TEST(Extensions, KeyIsTheNameInUpperCase)
{
    EXPECT_EQ(ExtensionKey(QStringLiteral("pelnar1_OverridePathToRelaunch")),
              Extensions::KEY_OVERRIDE_PATH_TO_RELAUNCH);
    EXPECT_EQ(ExtensionKey(QStringLiteral("Pelnar1_Foo")), QStringLiteral("PELNAR1_FOO"));
    EXPECT_EQ(ExtensionKey(QStringLiteral("PELNAR1_")), QStringLiteral("PELNAR1_"));
    EXPECT_EQ(ExtensionKey(QStringLiteral("pelnar1_stra\u00dfe")), QStringLiteral("PELNAR1_STRASSE"));
}

TEST(Extensions, OtherNamesAreNotExtensions)
{
    for (char const* name : {"", "pelnarFoo", "pelnar2_Foo", "x_pelnar1_Foo", " pelnar1_Foo", "pelnar1", "pelnar1-Foo"})
    {
        EXPECT_EQ(ExtensionKey(QString::fromLatin1(name)), std::nullopt) << name;
    }
    EXPECT_EQ(ExtensionKey(QString()), std::nullopt);
}

} // namespace
