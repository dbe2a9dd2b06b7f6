// TestMain.cpp: the main function of every test program: no display, user defaults of its own, the log on standard
// error. Tests make the application object that they need themselves.

#include "Foundation/IsolatedUserDefaults.h"

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QByteArray>

int main(int argc, char** argv)
{
    Pelnar::Foundation::IsolatedUserDefaults const defaults;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
