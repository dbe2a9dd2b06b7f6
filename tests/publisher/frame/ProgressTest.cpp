// ProgressTest.cpp: the progress bar.

#include "Publisher/Progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Pelnar::Publisher
{

TEST(Progress, IsDrawnOnATerminalAndWipedAtTheEnd)
{
    std::ostringstream stream;
    Output const terminal{stream, true, false};
    {
        Progress progress(terminal, QStringLiteral("app.zip"));
        progress.Show(1, 2);
        EXPECT_EQ(stream.str(), "\rapp.zip [###############...............] 50 %");
    }
    EXPECT_EQ(stream.str().substr(46), "\r" + std::string(45, ' ') + "\r");
}

TEST(Progress, WritesNothingToAFile)
{
    std::ostringstream stream;
    Output const file{stream, false, false};
    Progress(file, QStringLiteral("app.zip")).Show(1, 2);
    EXPECT_EQ(stream.str(), "") << "short work is not worth a line";
}

TEST(Progress, WritesALineNowAndThenToAFile)
{
    std::ostringstream stream;
    Output const file{stream, false, false};
    Progress progress(file, QStringLiteral("app%2.zip"), std::chrono::milliseconds(0));
    progress.Show(1, 4);
    progress.Show(4, 4);
    EXPECT_EQ(stream.str(), "app%2.zip: 25 %\napp%2.zip: 100 %\n");
}

} // namespace Pelnar::Publisher
