// UpdateDefaultsTest.cpp: user defaults on the disk: one file, many processes, the places of earlier versions.
#include "Settings/DefaultsFile.h"
#include "tests/settings/SettingsFixture.h"
#include "tests/support/LogCapture.h"

#include <QDateTime>

#include <algorithm>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Settings;
using namespace Pelnar::Testing;
using Pelnar::Core::Setting;

bool HasWarning(LogCapture const& log, std::string const& part)
{
    std::vector<LogRecord> const records = log.Of(google::GLOG_WARNING);
    return std::any_of(records.begin(), records.end(),
                       [&part](LogRecord const& record) { return record.text.find(part) != std::string::npos; });
}

class UserDefaults : public SettingsTest
{
protected:
    UpdateDefaults Defaults(QStringList const& earlier = {}) const
    {
        return UpdateDefaults(QStringLiteral("org.example.app"), earlier);
    }

    QString File() const { return Path(".config/org.example.app/updates.plist"); }

    [[nodiscard]] bool Save(Setting setting, QVariant const& value, QStringList const& earlier = {}) const
    {
        UpdateDefaults defaults = Defaults(earlier);
        defaults.Remember({{setting, value}});
        return defaults.Save();
    }
};

TEST_F(UserDefaults, AreOneFileOfThisUsersAlone)
{
    EXPECT_FALSE(Defaults().Value(Setting::SkippedVersion).isValid());
    EXPECT_FALSE(QFileInfo::exists(Path(".config"))) << "reading makes nothing";
    EXPECT_TRUE(Save(Setting::SkippedVersion, QStringLiteral("5.1")));
    EXPECT_EQ(Read(File()), "{\n    SUSkippedVersion = 5.1;\n}\n");
    struct stat status;
    ASSERT_EQ(::stat(QFile::encodeName(File()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600u);
    EXPECT_EQ(QDir(Path(".config/org.example.app")).entryList(QDir::Files | QDir::Hidden),
              (QStringList{QStringLiteral("updates.lock"), QStringLiteral("updates.plist")}));
    EXPECT_EQ(Defaults().Value(Setting::SkippedVersion), QVariant(QStringLiteral("5.1")));
    EXPECT_TRUE(Save(Setting::SkippedVersion, QVariant()));
    EXPECT_FALSE(Defaults().Value(Setting::SkippedVersion).isValid());
}

TEST_F(UserDefaults, WhatAPersonWritesStays)
{
    Write(File(), "{\n  // mine\n  SUAutomaticallyUpdate = yes;\n  Own = (a, { b = c; });\n}\n");
    EXPECT_EQ(Defaults().Value(Setting::AutomaticallyUpdate), QVariant(true));
    EXPECT_TRUE(Save(Setting::FailedChecks, 2));
    EXPECT_EQ(ReadSimplified(File()),
              "{ Own = ( a, { b = c; }, ); PelnarFailedChecks = 2; SUAutomaticallyUpdate = yes; }");
}

TEST_F(UserDefaults, RememberedValuesCountAtOnce)
{
    Defaults().Remember({{Setting::SkippedVersion, QStringLiteral("5.1")}});
    EXPECT_EQ(Defaults().Value(Setting::SkippedVersion), QVariant(QStringLiteral("5.1")));
    EXPECT_FALSE(QFileInfo::exists(File()));
    EXPECT_FALSE(UpdateDefaults(QStringLiteral("org.example.other")).Value(Setting::SkippedVersion).isValid());
    EXPECT_TRUE(Defaults().Save());
    EXPECT_TRUE(Read(File()).find("SUSkippedVersion") != std::string::npos);
    Write(File(), "{ SUSkippedVersion = 6.0; }");
    EXPECT_EQ(Defaults().Value(Setting::SkippedVersion), QVariant(QStringLiteral("6.0"))) << "set by another process";
}

TEST_F(UserDefaults, ManyProcessesLoseNothing)
{
    constexpr int PROCESSES = 4;
    constexpr int ROUNDS = 25;
    constexpr Setting SETTINGS[PROCESSES] = {Setting::SkippedVersion, Setting::FeedUrl, Setting::FeedPlatform,
                                             Setting::FailedChecks};
    std::vector<pid_t> children;
    for (Setting const setting : SETTINGS)
    {
        pid_t const child = ::fork();
        if (child == 0)
        {
            bool isGood = true;
            for (int round = 1; round <= ROUNDS; ++round)
            {
                bool isSaved = Save(setting, QString::number(round));
                for (int attempt = 0; !isSaved && attempt < ROUNDS; ++attempt) // on a busy disk
                {
                    isSaved = Defaults().Save();
                }
                isGood = isGood && isSaved && Defaults().Value(setting).toString() == QString::number(round);
            }
            ::_exit(isGood ? 0 : 1);
        }
        children.push_back(child);
    }
    for (pid_t const child : children)
    {
        int status = -1;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    for (Setting const setting : SETTINGS)
    {
        EXPECT_EQ(Defaults().Value(setting).toString(), QString::number(ROUNDS));
    }
}

// --- the places of earlier versions ---

class EarlierDefaults : public UserDefaults
{
protected:
    QStringList const earlier{Path("GNUstep/Defaults/First.plist"), Path("GNUstep/Defaults/Second.plist")};
};

TEST_F(EarlierDefaults, AreCopiedOnceAndLeftUnchanged)
{
    QByteArray const old = "{ SUSkippedVersion = 5.1; SUAutomaticallyUpdate = <*BY>; Others = 1; "
                           "PelnarAllowsInsecureFeeds = YES; PelnarFeedRecord = {}; }";
    Write(earlier[0], old);
    Write(earlier[1], "{ SUSkippedVersion = 4.0; PelnarFailedChecks = 3; }");
    EXPECT_EQ(Defaults(earlier).Value(Setting::SkippedVersion), QVariant(QStringLiteral("5.1"))) << "before any change";
    EXPECT_FALSE(QFileInfo::exists(File()));
    EXPECT_TRUE(Save(Setting::LastCheckTime, QDateTime({2026, 1, 31}, {1, 2, 3}, Qt::UTC), earlier));
    EXPECT_EQ(ReadSimplified(File()), "{ PelnarEarlierDefaultsTaken = YES; PelnarFailedChecks = 3; "
                                      "SUAutomaticallyUpdate = \"*BY\"; SULastCheckTime = \"2026-01-31T01:02:03Z\"; "
                                      "SUSkippedVersion = 5.1; }");
    EXPECT_EQ(Read(earlier[0]), old.toStdString());
    EXPECT_TRUE(Save(Setting::SkippedVersion, QVariant(), earlier));
    EXPECT_FALSE(Defaults(earlier).Value(Setting::SkippedVersion).isValid()) << "it does not come back";
    Write(earlier[0], "{ SUFeedURL = later; }");
    EXPECT_FALSE(Defaults(earlier).Value(Setting::FeedUrl).isValid()) << "once";
}

TEST_F(EarlierDefaults, DoNotComeBeforeWhatIsThere)
{
    Write(earlier[0], "{ SUSkippedVersion = 5.1; PelnarFailedChecks = 3; }");
    EXPECT_TRUE(Save(Setting::SkippedVersion, QStringLiteral("6.0"))); // by one that does not know of them
    EXPECT_EQ(Defaults(earlier).Value(Setting::SkippedVersion), QVariant(QStringLiteral("6.0")));
    EXPECT_TRUE(Defaults(earlier).Save());
    EXPECT_EQ(Defaults().Value(Setting::SkippedVersion), QVariant(QStringLiteral("6.0")));
    EXPECT_EQ(Defaults().Value(Setting::FailedChecks), QVariant(qlonglong(3)));
}

TEST_F(EarlierDefaults, BrokenOnesLoseNothing)
{
    for (QByteArray const& broken : {QByteArray("{ SUSkippedVersion = 5.1"), QByteArray("\0\1", 2), QByteArray("(1)")})
    {
        QFile::remove(File());
        Write(earlier[0], broken);
        Write(earlier[1], "{ PelnarFailedChecks = 3; }");
        {
            LogCapture log;
            EXPECT_TRUE(Save(Setting::FeedUrl, QStringLiteral("x"), earlier));
            EXPECT_EQ(Defaults(earlier).Value(Setting::FailedChecks), QVariant(qlonglong(3)));
        }
        EXPECT_EQ(Read(earlier[0]), broken.toStdString());
        Write(earlier[0], "{ SUSkippedVersion = 5.1; SUFeedURL = y; }");
        EXPECT_TRUE(Defaults(earlier).Save());
        EXPECT_EQ(Defaults().Value(Setting::SkippedVersion), QVariant(QStringLiteral("5.1"))) << "it has been mended";
        EXPECT_EQ(Defaults().Value(Setting::FeedUrl), QVariant(QStringLiteral("x")));
    }
}

TEST_F(EarlierDefaults, BrokenOnesAreInTheLog)
{
    Write(earlier[0], "{");
    LogCapture log;
    EXPECT_TRUE(Save(Setting::FeedUrl, QStringLiteral("x"), earlier));
    EXPECT_TRUE(HasWarning(log, "The settings of an earlier version could not be copied from " +
                                    earlier[0].toStdString() + ": it is not a property list"));
}

// --- a wrong object in the place ---

TEST_F(UserDefaults, BrokenFileIsKeptAside)
{
    for (QByteArray const& broken :
         {QByteArray("{ SUSkippedVersion = 5.1"), QByteArray(100000, ' '), QByteArray("(1)")})
    {
        Write(File(), broken);
        LogCapture log;
        EXPECT_FALSE(Defaults().Value(Setting::SkippedVersion).isValid());
        EXPECT_EQ(Read(File()), broken.toStdString()) << "reading changes nothing";
        EXPECT_TRUE(Save(Setting::FailedChecks, 1));
        EXPECT_TRUE(HasWarning(log, "it is not a property list. They are kept as"));
        EXPECT_EQ(Read(File() + QStringLiteral(".unreadable")), broken.toStdString());
        EXPECT_EQ(ReadSimplified(File()), "{ PelnarFailedChecks = 1; }");
    }
}

TEST_F(UserDefaults, LinkInTheFilesPlaceIsNotFollowed)
{
    Write(Path("target"), "{ SUSkippedVersion = 5.1; }");
    ASSERT_TRUE(QDir().mkpath(QFileInfo(File()).path()));
    ASSERT_EQ(::symlink(QFile::encodeName(Path("target")).constData(), QFile::encodeName(File()).constData()), 0);
    EXPECT_FALSE(Defaults().Value(Setting::SkippedVersion).isValid());
    EXPECT_TRUE(Save(Setting::FailedChecks, 1));
    EXPECT_EQ(Read(Path("target")), "{ SUSkippedVersion = 5.1; }");
    EXPECT_FALSE(QFileInfo(File()).isSymLink());
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path("fifo")).constData(), 0600), 0);
    ASSERT_EQ(::rename(QFile::encodeName(Path("fifo")).constData(), QFile::encodeName(File()).constData()), 0);
    EXPECT_FALSE(Defaults().Value(Setting::FailedChecks).isValid()) << "a FIFO must not block the process";
}

TEST_F(UserDefaults, WhatOthersMayChangeDoesNotCount)
{
    Write(File(), "{ SUSkippedVersion = 5.1; }");
    ASSERT_EQ(::chmod(QFile::encodeName(File()).constData(), 0666), 0);
    EXPECT_FALSE(Defaults().Value(Setting::SkippedVersion).isValid());
}

TEST_F(UserDefaults, WhatCannotBeSavedIsRememberedAndSavedLater)
{
    Write(Path(".config"), "in the way"); // stops root as well
    LogCapture log;
    EXPECT_FALSE(Save(Setting::SkippedVersion, QStringLiteral("5.1")));
    EXPECT_TRUE(HasWarning(log, "The settings of the update checker could not be saved in " +
                                    Path(".config/org.example.app").toStdString() + ": the folder "));
    EXPECT_EQ(Defaults().Value(Setting::SkippedVersion), QVariant(QStringLiteral("5.1")));
    QFile::remove(Path(".config"));
    EXPECT_TRUE(Save(Setting::FailedChecks, 1));
    EXPECT_EQ(ReadSimplified(File()), "{ PelnarFailedChecks = 1; SUSkippedVersion = 5.1; }");
}

TEST_F(UserDefaults, ProcessThatHangsHoldsNobodyForLong)
{
    EXPECT_TRUE(Save(Setting::SkippedVersion, QStringLiteral("5.1")));
    int const held = ::open(QFile::encodeName(Path(".config/org.example.app/updates.lock")).constData(), O_RDONLY);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    LogCapture log;
    EXPECT_FALSE(Save(Setting::SkippedVersion, QStringLiteral("5.2")));
    EXPECT_TRUE(HasWarning(log, "updates.plist: another process is saving its own"));
    EXPECT_EQ(Defaults().Value(Setting::SkippedVersion), QVariant(QStringLiteral("5.2")));
    EXPECT_EQ(ReadSimplified(File()), "{ SUSkippedVersion = 5.1; }") << "no write without the lock";
    ::close(held);
    EXPECT_TRUE(Defaults().Save());
    EXPECT_EQ(ReadSimplified(File()), "{ SUSkippedVersion = 5.2; }");
}

TEST_F(UserDefaults, FolderThatCannotBeWrittenKeepsWhatIsThere)
{
    if (::geteuid() == 0)
    {
        GTEST_SKIP() << "root can write everywhere";
    }
    EXPECT_TRUE(Save(Setting::SkippedVersion, QStringLiteral("5.1")));
    QByteArray const folder = QFile::encodeName(QFileInfo(File()).path());
    ASSERT_EQ(::chmod(folder.constData(), 0500), 0);
    EXPECT_FALSE(Save(Setting::SkippedVersion, QStringLiteral("5.2")));
    ASSERT_EQ(::chmod(folder.constData(), 0700), 0);
    EXPECT_EQ(ReadSimplified(File()), "{ SUSkippedVersion = 5.1; }");
}

TEST_F(UserDefaults, FullDiskKeepsWhatIsThere)
{
    if (::geteuid() != 0 || ::unshare(CLONE_NEWNS) != 0)
    {
        GTEST_SKIP() << "a disk of its own needs root";
    }
    ASSERT_EQ(::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr), 0);
    ASSERT_TRUE(QDir().mkpath(Path(".config")));
    ASSERT_EQ(::mount("none", QFile::encodeName(Path(".config")).constData(), "tmpfs", 0, "size=64k,mode=0700"), 0);
    EXPECT_TRUE(Save(Setting::SkippedVersion, QStringLiteral("5.1")));
    QFile filler(Path(".config/filler"));
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096)
    {
    }
    LogCapture log;
    EXPECT_FALSE(Save(Setting::SkippedVersion, QStringLiteral("5.2")));
    EXPECT_TRUE(HasWarning(log, "No space left on device"));
    EXPECT_EQ(ReadSimplified(File()), "{ SUSkippedVersion = 5.1; }");
    filler.resize(0);
    EXPECT_TRUE(Defaults().Save());
    EXPECT_EQ(ReadSimplified(File()), "{ SUSkippedVersion = 5.2; }");
    filler.close();
    EXPECT_EQ(::umount2(QFile::encodeName(Path(".config")).constData(), MNT_DETACH), 0);
}

} // namespace
