// PreferenceTest.cpp: the public functions for a preference box. Each test runs an installed application in its own
// process.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <string>

#include <sys/stat.h>

namespace
{

/// One process of the application with its preference box.
class Box
{
public:
    /// The argument and the variable are escaped as the shell reads them.
    explicit Box(QTemporaryDir const& folder, QByteArray const& argument = {}, QByteArray const& variable = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), folder.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.path());
        environment.insert(QStringLiteral("GNUSTEP_CONFIG_FILE"), folder.filePath(QStringLiteral("GNUstep.conf")));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // Through the shell, because Qt stores arguments and variables as text.
        QByteArray const script = "export ODD=$'" + variable + "'; exec \"$0\" $'" + argument + "'";
        m_process.start(QStringLiteral("/bin/bash"), {QStringLiteral("-c"), QString::fromLatin1(script),
                                                      folder.filePath(QStringLiteral("Notely.app/Notely"))});
    }
    ~Box()
    {
        m_process.closeWriteChannel();
        EXPECT_TRUE(m_process.waitForFinished());
        EXPECT_EQ(m_process.exitCode(), 0);
    }
    Box(Box const&) = delete;
    Box& operator=(Box const&) = delete;

    std::string Ask(char const* line)
    {
        m_process.write(QByteArray(line) + '\n');
        while (!m_process.canReadLine() && m_process.waitForReadyRead())
        {
        }
        return m_process.readLine().trimmed().toStdString();
    }

private:
    QProcess m_process;
};

class Preference : public ::testing::Test
{
protected:
    Preference()
    {
        EXPECT_TRUE(QDir().mkpath(folder.filePath(QStringLiteral("Notely.app/Resources"))));
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(PELNAR_PREFERENCE_HOST), folder.filePath(QStringLiteral("Notely.app/Notely"))));
        Write("GNUstep.conf", "GNUSTEP_USER_DEFAULTS_DIR=" + folder.path().toLocal8Bit() + "/Defaults\n");
        SetBundle({});
    }

    void SetBundle(QByteArray const& entries) const
    {
        Write("Notely.app/Resources/Info-gnustep.plist",
              "{ CFBundleIdentifier = org.example.notely; CFBundleVersion = 1.0; NSExecutable = Notely; " + entries +
                  "}");
    }

    void Write(char const* name, QByteArray const& text) const
    {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    std::string Ask(char const* line) const { return Box(folder).Ask(line); }

    QTemporaryDir const folder;
};

TEST_F(Preference, IsOffUntilThePersonOrTheBundleSaysOtherwise)
{
    EXPECT_EQ(Ask("get"), "off");
    SetBundle("SUAutomaticallyUpdate = YES; ");
    EXPECT_EQ(Ask("get"), "on");
    EXPECT_EQ(Ask("off"), "off");
    EXPECT_EQ(Ask("get"), "off") << "the person's choice counts, also in the next process";
    SetBundle("SUAutomaticallyUpdate = NO; ");
    EXPECT_EQ(Ask("on"), "on");
    EXPECT_EQ(Ask("get"), "on");
}

TEST_F(Preference, IsTheSameInEveryProcessThatRuns)
{
    Box first(folder);
    Box second(folder);
    EXPECT_EQ(first.Ask("get"), "off");
    EXPECT_EQ(second.Ask("get"), "off");
    EXPECT_EQ(first.Ask("on"), "on");
    EXPECT_EQ(second.Ask("get"), "on");
    EXPECT_EQ(second.Ask("off"), "off");
    EXPECT_EQ(first.Ask("get"), "off");
}

TEST_F(Preference, IsThereWhereTheCommandLineOrTheEnvironmentIsNotInUtf8)
{
    char const odd[] = R"(caf\xe9 \xff)";
    EXPECT_EQ(Box(folder, odd).Ask("on"), "on");
    EXPECT_EQ(Box(folder, {}, odd).Ask("get"), "on");
    EXPECT_EQ(Box(folder, odd, odd).Ask("get"), "on");
}

TEST_F(Preference, ChannelsAreTheBundlesUntilThePersonListsOthers)
{
    EXPECT_EQ(Ask("channels"), "");
    SetBundle("PelnarChannels = \"beta, nightly\"; ");
    EXPECT_EQ(Ask("channels"), "beta nightly");
    EXPECT_EQ(Ask("channels rc"), "rc");
    EXPECT_EQ(Ask("channels"), "rc") << "in the next process too";
    EXPECT_EQ(Ask("channels none"), "");
    EXPECT_EQ(Ask("channels"), "") << "no channel is a choice as well";
}

TEST_F(Preference, ChannelsWithNamesThatCannotBeListedChangeNothing)
{
    EXPECT_EQ(Ask("channels beta"), "beta");
    EXPECT_EQ(Ask("channels rc a,b"), "refused:beta");
    EXPECT_EQ(Ask("channels \x01"), "refused:beta");
    EXPECT_EQ(Ask("channels"), "beta");
}

TEST_F(Preference, ThatCannotBeSavedHoldsAsLongAsTheProcess)
{
    QFile file(folder.filePath(QStringLiteral("config")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << "a file where the folder would be";
    {
        Box box(folder);
        EXPECT_EQ(box.Ask("on"), "on");
        EXPECT_EQ(box.Ask("get"), "on");
    }
    EXPECT_EQ(Ask("get"), "off");
}

} // namespace
