// LoadingTest.cpp: a check fails if the session's library is missing, damaged, unreadable or of another build. It is
// reported like every failed check, the host lives, and the next check finds a repaired library.
#include "tests/idle/IdleProcess.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <ostream>

#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Testing;

QString const LOG_BEGINNING = QStringLiteral("The update session cannot be loaded: ");

/// The log's text about the loading, without the path of the library.
QStringList Reasons(QStringList const& lines)
{
    QStringList reasons;
    for (QString const& line : lines.filter(LOG_BEGINNING))
    {
        reasons += line.section(LOG_BEGINNING, 1);
    }
    return reasons;
}

void Truncate(QString const& path, qint64 part, qint64 whole)
{
    QFile file(path);
    ASSERT_TRUE(file.resize(file.size() * part / whole));
}

void Overwrite(QString const& path, qint64 offset, QByteArray const& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(offset) && file.write(bytes) == bytes.size());
}

struct BadLibrary
{
    char const* name;
    std::function<void(LibraryPlace const&)> make;
    char const* reason;
};

std::ostream& operator<<(std::ostream& out, BadLibrary const& row)
{
    return out << row.name;
}

/// The session looks for the engine in its own folder.
void CopySession(LibraryPlace const& place)
{
    LibraryPlace::Copy(QStringLiteral(PELNAR_SESSION), place.SessionPath());
    LibraryPlace::Copy(QStringLiteral(PELNAR_ENGINE), place.EnginePath());
}

void LinkToItself(LibraryPlace const& place)
{
    ASSERT_TRUE(QFile::link(place.SessionPath(), place.SessionPath()));
}

void MakePipe(LibraryPlace const& place)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(place.SessionPath()).constData(), 0600), 0);
}

/// Each table in its header claims to be longer than the file.
void BreakHeader(LibraryPlace const& place)
{
    CopySession(place);
    Overwrite(place.SessionPath(), 32, QByteArray(8, '\xff')); // the place of the list of segments
}

void WriteText(LibraryPlace const& place)
{
    QFile file(place.SessionPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(QByteArray(100000, 'x')) > 0);
}

class UnusableSession : public ::testing::TestWithParam<BadLibrary>
{
};

TEST_P(UnusableSession, FailsEachCheckUntilItIsPutRight)
{
    LibraryPlace place;
    GetParam().make(place);
    QStringList const lines =
        place.Run({QStringLiteral("check"), QStringLiteral("ask"), QStringLiteral("confirm"), QStringLiteral("days")});
    QString const all = lines.join(QLatin1Char('\n'));
    QStringList const reasons = Reasons(lines);
    ASSERT_EQ(reasons.size(), 3) << qPrintable(all);
    EXPECT_TRUE(reasons.front().contains(QLatin1String(GetParam().reason))) << qPrintable(all);
    // The silent check tells nobody. The check of a person ends with a message, like every failed check.
    EXPECT_EQ(lines.count(QStringLiteral("ended")), 2) << qPrintable(all);
    EXPECT_EQ(lines.count(QStringLiteral("found 5.9 5.9")), 1) << qPrintable(all);
    EXPECT_EQ(lines.filter(QStringLiteral("dialog SparkleUpdater_updaterIsMissingDialog: A part of this application "))
                  .size(),
              1)
        << qPrintable(all);
    EXPECT_TRUE(lines.contains(QLatin1String("days 0"))) << qPrintable(all);
}

INSTANTIATE_TEST_SUITE_P(
    Every, UnusableSession,
    ::testing::Values(
        BadLibrary{"Missing", [](LibraryPlace const&) {}, "No such file or directory"},
        BadLibrary{"DanglingLink",
                   [](LibraryPlace const& place)
                   { ASSERT_TRUE(QFile::link(QStringLiteral("missing"), place.SessionPath())); },
                   "No such file or directory"},
        BadLibrary{"LinkToItself", LinkToItself, "cannot be opened"},
        BadLibrary{"Folder",
                   [](LibraryPlace const& place)
                   { ASSERT_EQ(::mkdir(QFile::encodeName(place.SessionPath()).constData(), 0700), 0); },
                   "is not a shared library"},
        BadLibrary{"Pipe", MakePipe, "is not a shared library"},
        BadLibrary{"Empty", [](LibraryPlace const& place) { CopySession(place), Truncate(place.SessionPath(), 0, 1); },
                   "is not a shared library"},
        BadLibrary{"Text", WriteText, "is not a shared library"},
        BadLibrary{"CutInTheHeader",
                   [](LibraryPlace const& place)
                   {
                       CopySession(place);
                       ASSERT_TRUE(QFile(place.SessionPath()).resize(100));
                   },
                   "was cut short"},
        BadLibrary{"CutToATenth",
                   [](LibraryPlace const& place) { CopySession(place), Truncate(place.SessionPath(), 1, 10); },
                   "was cut short"},
        BadLibrary{"EngineCutToATenth",
                   [](LibraryPlace const& place) { CopySession(place), Truncate(place.EnginePath(), 1, 10); },
                   "libPelnarUpdateEngine.so.1: was cut short"},
        BadLibrary{"BrokenHeader", BreakHeader, "was cut short"},
        BadLibrary{"OtherMachine",
                   [](LibraryPlace const& place)
                   { CopySession(place), Overwrite(place.SessionPath(), 18, QByteArray("\xf7\x00", 2)); },
                   ""},
        BadLibrary{"OtherBuild",
                   [](LibraryPlace const& place)
                   { LibraryPlace::Copy(QStringLiteral(PELNAR_FOREIGN_SESSION), place.SessionPath()); },
                   "is of another build, 0.9-another-build instead of"},
        BadLibrary{"WithoutASession",
                   [](LibraryPlace const& place)
                   { LibraryPlace::Copy(QStringLiteral(PELNAR_NO_SESSION), place.SessionPath()); },
                   "pelnarUpdateSession"}),
    [](auto const& info) { return std::string(info.param.name); });

TEST(MissingSession, IsToldInThePersonsLanguage)
{
    LibraryPlace const place;
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    ::unsetenv("LANGUAGE");
    QStringList const lines = place.Run({QStringLiteral("ask")});
    ::unsetenv("LC_ALL");
    EXPECT_EQ(lines.filter(QStringLiteral("Installieren Sie die Anwendung neu.")).size(), 1)
        << qPrintable(lines.join(QLatin1Char('\n')));
}

TEST(UnreadableSession, FailsTheCheck)
{
    if (::geteuid() == 0)
    {
        GTEST_SKIP() << "root may read every file";
    }
    LibraryPlace place;
    CopySession(place);
    ASSERT_TRUE(QFile::setPermissions(place.SessionPath(), {}));
    QStringList const lines = place.Run({QStringLiteral("check")});
    ASSERT_EQ(Reasons(lines).size(), 1) << qPrintable(lines.join(QLatin1Char('\n')));
    EXPECT_TRUE(Reasons(lines).front().contains(QLatin1String("Permission denied")));
    EXPECT_EQ(lines.count(QStringLiteral("ended")), 1);
}

TEST(RepairedSession, ServesTheNextCheck)
{
    LibraryPlace place;
    QString const aside = place.Path(QStringLiteral("aside"));
    LibraryPlace::Copy(QStringLiteral(PELNAR_SESSION), aside);
    LibraryPlace::Copy(QStringLiteral(PELNAR_ENGINE), place.EnginePath());
    QStringList const lines =
        place.Run({QStringLiteral("check"), QStringLiteral("move=") + aside + QLatin1Char(':') + place.SessionPath(),
                   QStringLiteral("check"), QStringLiteral("ask")});
    QString const all = lines.join(QLatin1Char('\n'));
    EXPECT_EQ(Reasons(lines).size(), 1) << qPrintable(all);
    EXPECT_TRUE(lines.contains(QLatin1String("moved 1"))) << qPrintable(all);
    EXPECT_GE(lines.count(QStringLiteral("found 5.9 5.10")), 1) << qPrintable(all);
}

#if !defined(__SANITIZE_ADDRESS__) && !(defined(__has_feature) && __has_feature(address_sanitizer))
/// The thread that loads the session has no memory for the library's tables.
TEST(ScarceMemory, FailsTheCheck)
{
    constexpr std::uint64_t TABLE_BYTES = std::uint64_t{16} << 20;
    constexpr char MOST_BYTES[] = "memory=14000000"; // the stack of a thread has 8 MiB
    LibraryPlace const place;
    ElfW(Ehdr) header{};
    std::memcpy(header.e_ident, ELFMAG, SELFMAG);
    header.e_phoff = sizeof header;
    header.e_phentsize = sizeof(ElfW(Phdr));
    header.e_phnum = 1;
    ElfW(Phdr) table{};
    table.p_type = PT_DYNAMIC;
    table.p_filesz = TABLE_BYTES;
    QFile library(place.SessionPath());
    ASSERT_TRUE(library.open(QIODevice::WriteOnly));
    library.write(reinterpret_cast<char const*>(&header), sizeof header);
    library.write(reinterpret_cast<char const*>(&table), sizeof table);
    ASSERT_TRUE(library.resize(TABLE_BYTES));
    library.close();
    QStringList const lines = place.Run({QLatin1String(MOST_BYTES), QStringLiteral("check"), QStringLiteral("check")});
    QString const all = lines.join(QLatin1Char('\n'));
    EXPECT_TRUE(lines.contains(QStringLiteral("memory 0"))) << qPrintable(all);
    EXPECT_EQ(Reasons(lines), QStringList({QStringLiteral("std::bad_alloc"), QStringLiteral("std::bad_alloc")}))
        << qPrintable(all);
    EXPECT_EQ(lines.count(QStringLiteral("ended")), 2) << qPrintable(all);
}
#endif

/// Wherever the thread that loads the session finds no memory, also for its answer.
TEST(ScarceMemory, LeavesNoCheckWithoutAnAnswer)
{
    constexpr int REQUESTS = 24;
    LibraryPlace const place; // without a session
    for (int request = 0; request < REQUESTS; ++request)
    {
        QStringList const lines = place.Run({QStringLiteral("scarce=%1").arg(request), QStringLiteral("check")});
        EXPECT_EQ(lines.count(QStringLiteral("ended")), 1) << request << qPrintable(lines.join(QLatin1Char('\n')));
    }
}

TEST(Session, IsLookedForBesideTheUpdateCheckerOnly)
{
    LibraryPlace const checkers; // without a session
    LibraryPlace sessions;
    CopySession(sessions);
    QString const libraryPath =
        QFileInfo(checkers.SessionPath()).path() + QLatin1Char(':') + QFileInfo(sessions.SessionPath()).path();
    // The working directory is the second folder, too.
    QStringList const lines = sessions.RunWith(libraryPath, {QStringLiteral("check")});
    ASSERT_EQ(Reasons(lines).size(), 1) << qPrintable(lines.join(QLatin1Char('\n')));
    EXPECT_TRUE(Reasons(lines).front().startsWith(checkers.SessionPath()));
}

TEST(Session, IsFoundThoughTheWorkingDirectoryHasChanged)
{
    LibraryPlace place;
    CopySession(place);
    QStringList const lines = place.RunWith(QStringLiteral("."), {QStringLiteral("cd=/"), QStringLiteral("check")});
    EXPECT_EQ(lines.count(QStringLiteral("found 5.9 5.10")), 1) << qPrintable(lines.join(QLatin1Char('\n')));
}

/// A folder with the session that prints each call.
struct RecordedPlace : LibraryPlace
{
    RecordedPlace() { Copy(QStringLiteral(PELNAR_RECORDING_SESSION), SessionPath()); }

    /// The lines of the session and of the check's end, in order.
    QStringList Calls(QStringList const& words) const
    {
        return Run(words).filter(QRegularExpression(QStringLiteral("^(session|found|ended|days|relaunch|dialog)")));
    }
};

TEST(RecordedSession, HearsWhatTheHostSaidBeforeItWasLoaded)
{
    RecordedPlace const place;
    EXPECT_EQ(place.Calls({QStringLiteral("relaunch=first"), QStringLiteral("relaunch=--open,a b"),
                           QStringLiteral("check"), QStringLiteral("relaunch=later"), QStringLiteral("check")}),
              (QStringList{QStringLiteral("relaunch 1"), QStringLiteral("relaunch 1"),
                           QStringLiteral("session arguments --open|a b|"), QStringLiteral("session lock"),
                           QStringLiteral("ended"), QStringLiteral("session arguments later|"),
                           QStringLiteral("relaunch 1"), QStringLiteral("session lock"), QStringLiteral("ended")}));
}

TEST(RecordedSession, IsNotLoadedForArgumentsThatNoProgramCanBeStartedWith)
{
    RecordedPlace const place;
    QStringList const lines = place.Run({QStringLiteral("relaunch=") + QString(70000, QLatin1Char('x'))});
    EXPECT_TRUE(lines.contains(QStringLiteral("relaunch 0"))) << qPrintable(lines.join(QLatin1Char('\n')));
    EXPECT_EQ(lines.filter(QStringLiteral("The arguments for the next start are refused")).size(), 1);
}

TEST(RecordedSession, ThatRefusesItsLockIsNoMissingOne)
{
    RecordedPlace const place;
    QStringList const calls = place.Calls({QStringLiteral("ask")});
    EXPECT_EQ(calls.filter(QStringLiteral("dialog SparkleUpdater_updateIsAlreadyRunningDialog")).size(), 1)
        << qPrintable(calls.join(QLatin1Char('\n')));
    EXPECT_TRUE(calls.filter(QStringLiteral("Missing")).isEmpty());
}

TEST(RecordedSession, ThatThrowsWhenItIsOpenedEndsTheCheckAndNotTheHost)
{
    ::setenv("PELNAR_TEST_SESSION_THROWS", "1", 1);
    RecordedPlace const place;
    QStringList const lines = place.Run({QStringLiteral("check")});
    ::unsetenv("PELNAR_TEST_SESSION_THROWS");
    QString const all = lines.join(QLatin1Char('\n'));
    EXPECT_EQ(lines.filter(QStringLiteral("Exception while a check was started: the session is in no mood")).size(), 1)
        << qPrintable(all);
    EXPECT_EQ(lines.count(QStringLiteral("ended")), 1) << qPrintable(all);
}

TEST(RecordedSession, AnswersForTheFeedAndHearsOfAGoodStartOnlyWhenSomethingIsLeft)
{
    RecordedPlace const place;
    EXPECT_EQ(place.Calls({QStringLiteral("confirm"), QStringLiteral("days"), QStringLiteral("confirm")}),
              (QStringList{QStringLiteral("days 42"), QStringLiteral("session confirm")}))
        << "once the engine is there, it is told at once";
}

TEST(Session, ServesAHostThatAProgramOpensForItselfAlone)
{
    LibraryPlace const place;
    QStringList const lines =
        LinesOf(QStringLiteral(PELNAR_OPENING_PROGRAM),
                {QStringLiteral(PELNAR_OPENED_HOST), QStringLiteral("feed=") + place.Feed(), QStringLiteral("check")});
    EXPECT_EQ(lines.count(QStringLiteral("found 5.9 5.10")), 1) << qPrintable(lines.join(QLatin1Char('\n')));
}

TEST(Session, IsLoadedWhileTheHostGoesOn)
{
    LibraryPlace place;
    CopySession(place);
    QStringList const lines = place.Run({QStringLiteral("check")});
    int const returned = lines.indexOf(QStringLiteral("returned running"));
    int const found = lines.indexOf(QStringLiteral("found 5.9 5.10"));
    EXPECT_TRUE(returned >= 0 && returned < found) << qPrintable(lines.join(QLatin1Char('\n')));
}

} // namespace
