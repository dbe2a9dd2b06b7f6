// The place of a host's log records. Nothing else appears on standard error.
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace
{

using namespace Pelnar::Testing;

constexpr int TIME_LIMIT_MS = 60000;

class LogProgram : public ::testing::Test
{
protected:
    void Run(QStringList const& words)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), m_folder.path()); // where glog writes files, if it does
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
        for (char const* const name : {"GLOG_logtostderr", "GLOG_v", "GLOG_stderrthreshold", "GLOG_log_dir"})
        {
            environment.remove(QString::fromLatin1(name));
        }
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(PELNAR_LOG_HOST), words);
        ASSERT_TRUE(process.waitForFinished(TIME_LIMIT_MS));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
        output = QString::fromUtf8(process.readAllStandardOutput());
        errors = QString::fromUtf8(process.readAllStandardError());
        for (QString const& name : QDir(m_folder.path()).entryList(QDir::Files))
        {
            EXPECT_FALSE(name.contains(QLatin1String(".log."))) << name.toStdString() << ": a log in a file";
        }
    }
    /// The session's record of the failed check. It must reach every host.
    static QString Failure() { return QStringLiteral("-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]: "); }
    static QString Warning() { return QStringLiteral("InitGoogleLogging"); }

    QString output;
    QString errors;

private:
    TestApplication<> m_application;
    QTemporaryDir m_folder;
};

TEST_F(LogProgram, HandlerGetsEveryRecordAndStandardErrorNone)
{
    Run({QStringLiteral("handler")});
    EXPECT_TRUE(output.contains(QLatin1String("first|2|App/UpdateChecker/SparkleImpl/SparkleManager:837|") + Failure()))
        << output.toStdString();
    EXPECT_EQ(errors.toStdString(), "");
}

TEST_F(LogProgram, HandlerThatIsReplacedGetsNothingMore)
{
    Run({QStringLiteral("handler"), QStringLiteral("replaced")});
    EXPECT_TRUE(output.contains(QLatin1String("second|2|")));
    EXPECT_TRUE(output.contains(Failure()));
    EXPECT_FALSE(output.contains(QLatin1String("first|")));
    EXPECT_EQ(errors.toStdString(), "");
}

TEST_F(LogProgram, WithoutItsHandlerStandardErrorGetsTheRecordsAndNoWarningOfGlogs)
{
    for (QStringList const& words :
         {QStringList{QStringLiteral("handler"), QStringLiteral("removed")}, QStringList{QStringLiteral("removed")},
          QStringList(), QStringList{QStringLiteral("refused-arguments")}})
    {
        Run(words);
        EXPECT_EQ(output.toStdString(), "");
        EXPECT_TRUE(errors.contains(Failure())) << errors.toStdString();
        EXPECT_FALSE(errors.contains(Warning())) << errors.toStdString();
    }
}

TEST_F(LogProgram, HostThatUsesGlogKeepsItsOwnLog)
{
    Run({QStringLiteral("own-glog"), QStringLiteral("handler")});
    EXPECT_TRUE(output.contains(Failure()));
    EXPECT_TRUE(errors.contains(Failure()));
    EXPECT_FALSE(errors.contains(Warning())) << errors.toStdString();
}

} // namespace
