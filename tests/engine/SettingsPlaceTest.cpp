// SettingsPlaceTest.cpp: the place of the user defaults of an installed application, for different program names and
// environments.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <map>
#include <string>

#include <unistd.h>

namespace
{

constexpr char IN_HOME[] = "home/.config/org.example.notely/updates.plist";
constexpr char EARLIER[] = "Defaults/Notely.plist";

class SettingsPlace : public ::testing::Test
{
protected:
    SettingsPlace()
    {
        for (char const* const name : {"Notely.app/Resources", "home", "Defaults", "bin"})
        {
            EXPECT_TRUE(QDir().mkpath(Path(name)));
        }
        EXPECT_TRUE(QFile::copy(QStringLiteral(PELNAR_SETTINGS_HOST), Path("Notely.app/Notely")));
        Write("Notely.app/Resources/Info-gnustep.plist",
              "{ CFBundleIdentifier = org.example.notely; CFBundleVersion = 1.0; NSExecutable = Notely; }");
        Write("GNUstep.conf", "GNUSTEP_USER_DEFAULTS_DIR=" + Path("Defaults").toLocal8Bit() + '\n');
        environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
        environment.remove(QStringLiteral("XDG_STATE_HOME"));
        environment.insert(QStringLiteral("HOME"), Path("home"));
        environment.insert(QStringLiteral("GNUSTEP_CONFIG_FILE"), Path("GNUstep.conf"));
    }

    QString Path(char const* name) const { return folder.filePath(QString::fromLatin1(name)); }

    void Write(char const* name, QByteArray const& text) const
    {
        EXPECT_TRUE(QDir().mkpath(QFileInfo(Path(name)).path()));
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    std::string Read(char const* name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    bool IsThere(char const* name) const { return QFileInfo::exists(Path(name)); }

    /// The application's output when it is started with the path \a name and the words \a wishes.
    std::string Run(char const* wishes, char const* name = "Notely.app/Notely")
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(Path(name), QString::fromLatin1(wishes).split(QLatin1Char(' ')));
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        log = process.readAllStandardError().toStdString();
        return process.readAllStandardOutput().toStdString();
    }

    /// The same, with \a calledName as the program's own name (argv[0]).
    std::string RunAs(char const* calledName, char const* wish)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral("/bin/bash"),
                      {QStringLiteral("-c"), QStringLiteral("exec -a \"$1\" \"$0\" \"$2\""), Path("Notely.app/Notely"),
                       QString::fromLatin1(calledName), QString::fromLatin1(wish)});
        EXPECT_TRUE(process.waitForFinished());
        return process.readAllStandardOutput().toStdString();
    }

    QTemporaryDir const folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::string log;
};

TEST_F(SettingsPlace, IsTheSameByEveryName)
{
    ASSERT_EQ(::symlink("../Notely.app/Notely", Path("bin/notely").toLocal8Bit().constData()), 0);
    ASSERT_EQ(::symlink("Notely.app", Path("Linked.app").toLocal8Bit().constData()), 0);
    EXPECT_EQ(Run("get"), "off");
    EXPECT_FALSE(IsThere("home/.config")) << "reading leaves nothing";
    EXPECT_EQ(Run("on", "bin/notely"), "on");
    EXPECT_TRUE(IsThere(IN_HOME)) << log;
    EXPECT_EQ(Run("get"), "on");
    EXPECT_EQ(Run("off", "Linked.app/Notely"), "off");
    EXPECT_EQ(Run("get", "bin/notely"), "off");
    EXPECT_EQ(RunAs("other", "get"), "off");
    EXPECT_EQ(RunAs("other", "on"), "on");
    EXPECT_EQ(Run("get"), "on");
    EXPECT_FALSE(IsThere(EARLIER)) << "nothing is written where earlier versions kept it";
}

TEST_F(SettingsPlace, FollowsTheEnvironment)
{
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Path("else"));
    EXPECT_EQ(Run("on"), "on");
    EXPECT_TRUE(IsThere("else/org.example.notely/updates.plist"));
    EXPECT_FALSE(IsThere("home/.config"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("relative"));
    EXPECT_EQ(Run("get"), "off") << "a relative folder does not count";
    EXPECT_EQ(Run("on"), "on");
    EXPECT_TRUE(IsThere(IN_HOME));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), QString());
    EXPECT_EQ(Run("get"), "on");
}

TEST_F(SettingsPlace, SettingsInTheOldPlaceAreCopiedOnce)
{
    Write(EARLIER, "{ SUAutomaticallyUpdate = YES; SUSkippedVersion = 5.1; Recent = (a); }");
    EXPECT_EQ(Run("get"), "on");
    EXPECT_EQ(Run("off"), "off");
    EXPECT_NE(Read(IN_HOME).find("SUSkippedVersion = 5.1;"), std::string::npos) << Read(IN_HOME);
    EXPECT_EQ(Read(IN_HOME).find("Recent"), std::string::npos) << "the host's files stay";
    EXPECT_EQ(Read(EARLIER), "{ SUAutomaticallyUpdate = YES; SUSkippedVersion = 5.1; Recent = (a); }");
    Write(IN_HOME, "{ PelnarEarlierDefaultsTaken = YES; }");
    EXPECT_EQ(Run("get"), "off") << "once";
}

TEST_F(SettingsPlace, OldDefaultsAreThoseOfTheProgramForEveryName)
{
    Write(EARLIER, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                   "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n<dict>\n"
                   "<key>SUAutomaticallyUpdate</key><true/>\n</dict>\n</plist>\n");
    ASSERT_EQ(::symlink("../Notely.app/Notely", Path("bin/notely").toLocal8Bit().constData()), 0);
    EXPECT_EQ(Run("get", "bin/notely"), "on");
    Write("Defaults/notely.plist", "{ SUSkippedVersion = 5.1; }");
    EXPECT_EQ(Run("off", "bin/notely"), "off");
    EXPECT_NE(Read(IN_HOME).find("SUSkippedVersion = 5.1;"), std::string::npos) << "skipped under the other name";
}

TEST_F(SettingsPlace, BrokenOldFileIsKeptAndReported)
{
    Write(EARLIER, "{ SUAutomaticallyUpdate = YES;");
    EXPECT_EQ(Run("get"), "off");
    EXPECT_NE(log.find("could not be copied from"), std::string::npos) << log;
    EXPECT_EQ(Run("on"), "on");
    EXPECT_EQ(Run("get"), "on");
    EXPECT_EQ(Read(EARLIER), "{ SUAutomaticallyUpdate = YES;");
}

TEST_F(SettingsPlace, HostThatUsesFoundationKeepsItsOwnDefaults)
{
    EXPECT_EQ(Run("on one"), "on one one ");
    EXPECT_NE(Read(EARLIER).find("one"), std::string::npos) << "where Foundation keeps them";
    EXPECT_EQ(Read(EARLIER).find("SUAutomaticallyUpdate"), std::string::npos) << Read(EARLIER);
    EXPECT_EQ(Read(IN_HOME).find("Before"), std::string::npos) << Read(IN_HOME);
    EXPECT_EQ(Run("off two"), "off two two ");
    EXPECT_EQ(Run("get"), "off");
    EXPECT_NE(Read(EARLIER).find("two"), std::string::npos) << Read(EARLIER);
}

TEST_F(SettingsPlace, CommandLineAndSharedDefaultsStillCount)
{
    Write("Defaults/NSGlobalDomain.plist", "{ SUAutomaticallyUpdate = YES; }");
    EXPECT_EQ(Run("get"), "on") << "the settings that all applications share";
    EXPECT_EQ(Run("off"), "off");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(Path("Notely.app/Notely"),
                  {QStringLiteral("get"), QStringLiteral("-SUAutomaticallyUpdate"), QStringLiteral("YES")});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.readAllStandardOutput().toStdString(), "on");
}

} // namespace
