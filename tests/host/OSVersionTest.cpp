// OSVersionTest.cpp: the system's version from os-release, and the host's override.

#include "HostFramework/OSVersion.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <ostream>

namespace Pelnar::Util
{
namespace
{

struct OsReleaseRow
{
    char const* name;
    char const* content;
    char const* expected;
};

std::ostream& operator<<(std::ostream& out, OsReleaseRow const& row)
{
    return out << row.name;
}

class OsRelease : public testing::TestWithParam<OsReleaseRow>
{
};

TEST_P(OsRelease, AnswersItsVersionId)
{
    EXPECT_EQ(VersionIdOf(GetParam().content).toStdString(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OsRelease,
    testing::Values(OsReleaseRow{"DoubleQuotes", "NAME=\"Some System\"\nVERSION_ID=\"12.4\"\nID=some\n", "12.4"},
                    OsReleaseRow{"SingleQuotes", "VERSION_ID='12'\n", "12"},
                    OsReleaseRow{"NoQuotes", "VERSION_ID=39\n", "39"},
                    OsReleaseRow{"NoFinalLineBreak", "VERSION_ID=39", "39"},
                    OsReleaseRow{"WindowsLineBreaks", "NAME=x\r\nVERSION_ID=\"7\"\r\n", "7"},
                    OsReleaseRow{"Indented", "  VERSION_ID=\"7\"  \n", "7"},
                    OsReleaseRow{"EscapesInDoubleQuotes", "VERSION_ID=\"1\\\"2\\\\3\\$4\\`5\\n\"\n", "1\"2\\3$4`5\\n"},
                    OsReleaseRow{"NoEscapesInSingleQuotes", "VERSION_ID='1\\\\2'\n", "1\\\\2"},
                    OsReleaseRow{"BackslashAtTheEnd", "VERSION_ID=\"1\\\"\n", "1\\"},
                    OsReleaseRow{"UnbalancedQuote", "VERSION_ID=\"12\n", "\"12"},
                    OsReleaseRow{"OneQuoteOnly", "VERSION_ID=\"\n", "\""},
                    OsReleaseRow{"EmptyQuotes", "VERSION_ID=\"\"\n", ""}, OsReleaseRow{"NoValue", "VERSION_ID=\n", ""},
                    OsReleaseRow{"Missing", "NAME=rolling\nVERSION=\"1 (one)\"\n", ""}, OsReleaseRow{"Empty", "", ""},
                    OsReleaseRow{"Comment", "#VERSION_ID=5\n", ""},
                    OsReleaseRow{"LongerKey", "MY_VERSION_ID=5\nVERSION_IDS=6\n", ""},
                    OsReleaseRow{"LastOneWins", "VERSION_ID=5\nVERSION_ID=6\n", "6"}),
    [](auto const& info) { return std::string(info.param.name); });

TEST(SystemVersion, HasItsPatchNumber)
{
    using System = QOperatingSystemVersion;
    EXPECT_EQ(AllComponentsOf(System(System::MacOS, 10, 15, 7)), QStringLiteral("10.15.7"));
    EXPECT_EQ(AllComponentsOf(System(System::MacOS, 11, 0, 1)), QStringLiteral("11.0.1"));
    EXPECT_EQ(AllComponentsOf(System(System::MacOS, 10, 13)), QStringLiteral("10.13.0"));
    EXPECT_EQ(AllComponentsOf(System(System::MacOS, 12)), QStringLiteral("12.0.0"));
}

QString WriteFile(QTemporaryDir const& folder, QString const& name, QByteArray const& content)
{
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

TEST(OsReleaseFiles, TheFirstThatExistsAnswersEvenWithoutAVersion)
{
    QTemporaryDir const folder;
    QString const first = WriteFile(folder, QStringLiteral("first"), "VERSION_ID=1\n");
    QString const second = WriteFile(folder, QStringLiteral("second"), "VERSION_ID=2\n");
    QString const rolling = WriteFile(folder, QStringLiteral("rolling"), "NAME=rolling\n");
    QString const absent = folder.filePath(QStringLiteral("absent"));

    EXPECT_EQ(VersionIdFromFiles({first, second}), QStringLiteral("1"));
    EXPECT_EQ(VersionIdFromFiles({absent, second}), QStringLiteral("2"));
    EXPECT_EQ(VersionIdFromFiles({rolling, second}), QString());
    EXPECT_EQ(VersionIdFromFiles({absent}), QString());
    EXPECT_EQ(VersionIdFromFiles({}), QString());
}

TEST(OSVersion, IsTheHostsWhenItSaysSoAndTheSystemsOtherwise)
{
    QString const systems = OSVersion();
    SetOSVersion(QStringLiteral("10.15.7"));
    EXPECT_EQ(OSVersion(), QStringLiteral("10.15.7"));
    SetOSVersion(QStringLiteral(""));
    EXPECT_EQ(OSVersion(), QStringLiteral("")) << "an empty version is an answer too";
    SetOSVersion(QString());
    EXPECT_EQ(OSVersion(), systems);
#if defined(Q_OS_LINUX)
    EXPECT_EQ(systems, VersionIdFromFiles({QStringLiteral("/etc/os-release"), QStringLiteral("/usr/lib/os-release")}));
#endif
}

} // namespace
} // namespace Pelnar::Util
