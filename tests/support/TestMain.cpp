// TestMain.cpp: the main function of every test program: no display, its own user defaults, the log on standard error.
// A test that needs an application object makes it itself. A run without tests fails. A run with only skipped tests has
// its own exit status.

#include "Foundation/IsolatedUserDefaults.h"

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QByteArray>

#include <cstdlib>
#include <iostream>

#include <sys/stat.h>

constexpr int EXIT_SKIPPED = 77; // the number in tests/CMakeLists.txt

int main(int argc, char** argv)
{
    ::umask(S_IWGRP | S_IWOTH);  // files that others may change are not trusted; tests of this create their own
    qunsetenv("XDG_CACHE_HOME"); // not the one of the person who runs the tests
    Pelnar::Foundation::IsolatedUserDefaults const defaults;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    ::testing::InitGoogleTest(&argc, argv);
    int const status = RUN_ALL_TESTS();
    testing::UnitTest const& tests = *testing::UnitTest::GetInstance();
    if (status != 0 || testing::GTEST_FLAG(list_tests))
    {
        return status;
    }
    if (tests.test_to_run_count() == 0)
    {
        std::cerr << "No test has this name: " << testing::GTEST_FLAG(filter) << '\n';
        return EXIT_FAILURE;
    }
    return tests.skipped_test_count() == tests.test_to_run_count() ? EXIT_SKIPPED : EXIT_SUCCESS;
}
