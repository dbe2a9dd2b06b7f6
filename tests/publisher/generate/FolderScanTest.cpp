// FolderScanTest.cpp: the meaning of the names in a publisher's folder.

#include "Publisher/generate/FolderScan.h"

#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

namespace Pelnar::Publisher
{
namespace
{

TEST(FolderScan, NamesTellWhatFilesAre)
{
    struct Row
    {
        char const* name;
        std::optional<ArchiveKind> kind;
        char const* stem;
    };
    Row const rows[] = {
        {"App-1.0.zip", ArchiveKind::Bundle, "App-1.0"},
        {"App-1.1.tar.zst", ArchiveKind::Bundle, "App-1.1"},
        {"App-1.2.TGZ", ArchiveKind::Bundle, "App-1.2"},
        {"App-1.0-1.1.delta", ArchiveKind::Delta, "App-1.0-1.1"},
        {"App_2.0.sparkle_guided.pkg", ArchiveKind::GuidedInstaller, "App_2.0"},
        {"App_2.0.sparkle_interactive.run", ArchiveKind::InteractiveInstaller, "App_2.0"},
        {"App_2.0.sparkle_guided.zip", ArchiveKind::GuidedInstaller, "App_2.0"},
        {"App_2.0.Sparkle_Guided.zip", ArchiveKind::Bundle, "App_2.0.Sparkle_Guided"},
        {"appcast.xml", std::nullopt, ""},
        {"App-1.0.html", std::nullopt, ""},
        {"App-1.0.tar", std::nullopt, ""},
        {".App-1.0.zip", std::nullopt, ""},
        {"zip", std::nullopt, ""},
    };
    for (Row const& row : rows)
    {
        Testing::Workspace const folder;
        Testing::WriteFile(folder.Path() + '/' + row.name, "x");
        std::vector<FolderArchive> const archives = ScanFolder(QString::fromStdString(folder.Path()));
        ASSERT_EQ(archives.size(), row.kind ? 1u : 0u) << row.name;
        if (row.kind)
        {
            EXPECT_EQ(archives[0].kind, *row.kind) << row.name;
            EXPECT_EQ(archives[0].stem.toStdString(), row.stem) << row.name;
        }
    }
}

TEST(FolderScan, ArchivesComeInTheOrderOfTheirNames)
{
    Testing::Workspace const folder;
    for (char const* const name : {"b.zip", "a.zip", "C.zip"})
    {
        Testing::WriteFile(folder.Path() + '/' + name, "x");
    }
    std::vector<FolderArchive> const archives = ScanFolder(QString::fromStdString(folder.Path()));
    ASSERT_EQ(archives.size(), 3u);
    EXPECT_EQ(archives[0].fileName, QStringLiteral("C.zip"));
    EXPECT_EQ(archives[2].fileName, QStringLiteral("b.zip"));
}

TEST(FolderScan, FolderThatCannotBeReadToItsEndIsNoSmallerOne)
{
    QString const strace = QStringLiteral("/usr/bin/strace");
    if (!QFile::exists(strace))
    {
        GTEST_SKIP() << "system calls cannot be traced here";
    }
    Testing::PublisherFolder const folder;
    folder.PutVersion("1.0");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0")); // it traces, too
    process.setProcessEnvironment(environment);
    process.start(strace, {QStringLiteral("-f"), QStringLiteral("-qq"), QStringLiteral("-o"),
                           QStringLiteral("/dev/null"), QStringLiteral("-e"),
                           QStringLiteral("inject=getdents64:error=EIO:when=1"), Testing::AppcastProgram(),
                           QStringLiteral("generate"), QString::fromStdString(folder.Path()), QStringLiteral("--key"),
                           folder.KeyFile(), QStringLiteral("--url-prefix"), QStringLiteral("https://a.example/")});
    ASSERT_TRUE(process.waitForFinished(30000));
    std::string const errors = process.readAllStandardError().toStdString();
    EXPECT_EQ(process.exitCode(), 2) << errors;
    EXPECT_NE(errors.find("cannot be read: Input/output error"), std::string::npos) << errors;
}

} // namespace
} // namespace Pelnar::Publisher
