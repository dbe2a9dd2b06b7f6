// LibrariesTest.cpp: the libraries that a run of the tool loads, as the loader reports them.

#include "tests/publisher/support/AppcastTool.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace Pelnar::Testing
{
namespace
{

constexpr int MOST_LIBRARIES = 25;
/// The loader and the kernel's page. Every program has them, and the loader does not list them.
constexpr int ALWAYS_THERE = 2;

QByteArray const FEED =
    "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel><item><enclosure "
    "url='https://dl.example.com/5.2.zip' length='20' sparkle:version='5.2'/></item></channel></rss>";

class AppcastLibraries : public ::testing::Test
{
protected:
    AppcastLibraries()
    {
        m_environment.insert(QStringLiteral("LD_DEBUG"), QStringLiteral("files"));
        m_environment.insert(QStringLiteral("LD_DEBUG_OUTPUT"), LogPath());
        QFile feed(FeedPath());
        EXPECT_TRUE(feed.open(QIODevice::WriteOnly) && feed.write(FEED) == FEED.size());
    }

    QString LogPath() const { return m_folder.filePath(QStringLiteral("loader")); }
    QString FeedPath() const { return m_folder.filePath(QStringLiteral("appcast.xml")); }
    QString FolderPath() const { return m_folder.path(); }

    /// The names of all libraries that a run has loaded.
    QStringList LoadedBy(QStringList const& arguments)
    {
        ToolRun const run = RunAppcastProgram(arguments, {}, m_environment);
        EXPECT_LE(run.status, 1) << run.err;
        QStringList names;
        for (QFileInfo const& log : QDir(FolderPath()).entryInfoList({QStringLiteral("loader.*")}))
        {
            QFile file(log.filePath());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            for (QByteArray const& line : file.readAll().split('\n'))
            {
                int const begin = line.indexOf("calling init: ");
                names += begin < 0 ? QStringList()
                                   : QStringList(QFileInfo(QString::fromUtf8(line.mid(begin + 14))).fileName());
            }
            EXPECT_TRUE(file.remove());
        }
        EXPECT_EQ(names.removeDuplicates(), 0);
        EXPECT_EQ(names.filter(QStringLiteral("libQt5Core")).size(), 1) << "the loader's list is not understood";
        return names;
    }

    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();

private:
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(AppcastLibraries, OfARunThatReadsAFileAreFew)
{
    QRegularExpression const unwanted(QStringLiteral("Widgets|Gui|X11|xcb|libGL|curl|ssl|Qt5Network|PelnarHost"));
    for (QStringList const& arguments :
         {QStringList{QStringLiteral("--version")}, QStringList{QStringLiteral("lint"), FeedPath()},
          QStringList{QStringLiteral("explain"), FeedPath(), QStringLiteral("--local-version"), QStringLiteral("5.1"),
                      QStringLiteral("--system-version"), QStringLiteral("12")}})
    {
        QStringList const names = LoadedBy(arguments);
        EXPECT_TRUE(names.filter(unwanted).isEmpty()) << qPrintable(names.filter(unwanted).join(QLatin1Char(' ')));
        if (PELNAR_IS_SLIM)
        {
            EXPECT_LE(names.size() + ALWAYS_THERE, MOST_LIBRARIES) << qPrintable(names.join(QLatin1Char(' ')));
        }
    }
}

TEST_F(AppcastLibraries, ForTheNetworkComeWithTheFirstAddress)
{
    LoopbackServer const server(Answering(OkAnswer(FEED)));
    QStringList const names =
        LoadedBy({QStringLiteral("explain"), server.Url().toString(), QStringLiteral("--local-version"),
                  QStringLiteral("5.1"), QStringLiteral("--system-version"), QStringLiteral("12")});
    EXPECT_EQ(names.filter(QStringLiteral("libcurl")).size(), 1);
    EXPECT_EQ(server.Requests().size(), 1u);
    EXPECT_TRUE(names.filter(QRegularExpression(QStringLiteral("Widgets|Gui|X11"))).isEmpty());
}

TEST_F(AppcastLibraries, ThatAreMissingAreNamedWithWhatToInstall)
{
    LoopbackServer const server(Answering(OkAnswer(FEED)));
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(QStringLiteral("LD_LIBRARY_PATH"), FolderPath());
    for (QString const& name : {QStringLiteral("libcurl.so.4"), QStringLiteral("pelnar-appcast-late.so")})
    {
        // The loader takes the first file with the name, and stops when it sees that this is not a library.
        QFile library(QDir(FolderPath()).filePath(name));
        ASSERT_TRUE(library.open(QIODevice::WriteOnly));
        library.close();
        ToolRun const local = RunAppcastProgram({QStringLiteral("lint"), FeedPath()}, {}, m_environment);
        EXPECT_EQ(local.status, 1) << local.err;
        for (QStringList const& arguments :
             {QStringList{QStringLiteral("lint"), server.Url().toString()},
              QStringList{QStringLiteral("serve"), FolderPath(), QStringLiteral("--end-with-input")}})
        {
            ToolRun const run = RunAppcastProgram(arguments, {}, m_environment);
            EXPECT_EQ(run.status, 2);
            EXPECT_EQ(run.out, "");
            EXPECT_EQ(run.err.find("error: a part of this program cannot be loaded: "), 0u) << run.err;
            EXPECT_NE(run.err.find(name.toStdString()), std::string::npos) << run.err;
            EXPECT_NE(run.err.find("; reinstall the package pelnar-appcast"), std::string::npos) << run.err;
        }
        ASSERT_TRUE(library.remove());
    }
    EXPECT_EQ(server.Connections(), 0);
}

} // namespace Pelnar::Testing
