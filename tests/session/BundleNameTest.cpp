// The name in the ready-to-install dialog, in programs laid out as bundles: the bundle's own name if it has one.

#include "tests/session/SessionFixture.h"
#include "tests/support/DialogDriver.h"

#include <QMessageBox>

namespace
{

using namespace Pelnar::Testing;

using BundleName = SessionTest;

TEST_F(BundleName, OfTheRunningBundleIsShown)
{
    LendWithRemote(State::SILENT_DOWNLOADING);
    QString text;
    DialogDriver driver(QStringLiteral("SparkleUpdater_updateIsReadyToInstallDialog"),
                        [&text](QWidget* widget)
                        {
                            text = qobject_cast<QMessageBox*>(widget)->text();
                            widget->close();
                        });
    Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1")), ScriptedInvocation(true, false));
    EXPECT_EQ(text, QStringLiteral("A new version of " PELNAR_EXPECTED_NAME " 6 is ready to install"));
}

TEST_F(BundleName, RunningBundleIsRelaunchedByDefault)
{
    LendWithRemote(State::SILENT_INSTALLING);
    QString const path = Callbacks::PathToRelaunch();
    EXPECT_TRUE(path.endsWith(QStringLiteral(".app")));
    // The executable is in the bundle itself or, on macOS, in Contents/MacOS.
    QString const programs = QCoreApplication::applicationDirPath();
    EXPECT_TRUE(programs == path || programs == path + QStringLiteral("/Contents/MacOS")) << qPrintable(path);
}

} // namespace
