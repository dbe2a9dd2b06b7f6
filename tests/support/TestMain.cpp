// TestMain.cpp: the main function of every test program: no display, user defaults of its own, the log on standard
// error. Tests make the application object that they need themselves. A run of no tests is a failed one.

#include "Foundation/IsolatedUserDefaults.h"

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QByteArray>

#include <cstdlib>
#include <iostream>

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
    int const status = RUN_ALL_TESTS();
    if (status == 0 && !testing::GTEST_FLAG(list_tests) && testing::UnitTest::GetInstance()->test_to_run_count() == 0)
    {
        std::cerr << "No test has this name: " << testing::GTEST_FLAG(filter) << '\n';
        return EXIT_FAILURE;
    }
    return status;
}
