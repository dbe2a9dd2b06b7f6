// TestMain.cpp: the main function of every test program: no display, user defaults of its own, the log on standard
// error. Tests make the application object that they need themselves.

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    // Foundation keeps user defaults in the home folder of the password database, whatever HOME says; only this
    // variable moves them, and it must be set before Foundation is first used.
    QTemporaryDir const settings;
    QByteArray const folder = QFile::encodeName(settings.path());
    QFile config(settings.filePath(QStringLiteral("GNUstep.conf")));
    if (!config.open(QIODevice::WriteOnly) || config.write("GNUSTEP_USER_DEFAULTS_DIR=" + folder + "/Defaults\n") < 0)
    {
        qFatal("cannot write %s", qPrintable(config.fileName()));
    }
    config.close();
    qputenv("GNUSTEP_CONFIG_FILE", QFile::encodeName(config.fileName()));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
