// ProgramTest.cpp: the command line as a person types it: help, and what is not understood.

#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

namespace Pelnar::Testing
{

TEST(AppcastProgram, DescribesItself)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("--help")});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("Exit status: 0 clean, 1 findings, 2 bad arguments"), std::string::npos) << run.out;
    EXPECT_EQ(run.err, "");
}

TEST(AppcastProgram, RefusesWhatItDoesNotUnderstand)
{
    for (QStringList const& arguments :
         {QStringList(), QStringList(QStringLiteral("publish")), QStringList(QStringLiteral("--loud"))})
    {
        ToolRun const run = RunAppcastProgram(arguments);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.find("error: "), 0u) << run.err;
        EXPECT_NE(run.err.find("; see pelnar-appcast --help\n"), std::string::npos) << run.err;
    }
}

} // namespace Pelnar::Testing
