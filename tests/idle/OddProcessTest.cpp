// OddProcessTest.cpp: a host checks as usual, even if its name, folder, command line or environment is not valid text.
// Foundation takes its main thread as the main one, although another thread loads Foundation.
#include "tests/idle/IdleProcess.h"

#include <gtest/gtest.h>

#include <ostream>

namespace
{

using namespace Pelnar::Testing;

struct OddProcess
{
    char const* name;
    char const* script; ///< starts its arguments; "$odd" is the text
};

std::ostream& operator<<(std::ostream& out, OddProcess const& row)
{
    return out << row.name;
}

class ProcessWithOddTexts : public ::testing::TestWithParam<OddProcess>
{
};

TEST_P(ProcessWithOddTexts, FindsItsUpdateAndKeepsItsMainThread)
{
    LibraryPlace const place;
    QString const script = QStringLiteral("odd=$(printf 'caf\\351'); ") + QString::fromLatin1(GetParam().script);
    QStringList const lines =
        LinesOf(QStringLiteral("/bin/bash"),
                {QStringLiteral("-ec"), script, place.Path(QString()), QStringLiteral(PELNAR_IDLE_HOST),
                 QStringLiteral("feed=") + place.Feed(), QStringLiteral("check"), QStringLiteral("main")});
    EXPECT_EQ(lines.count(QStringLiteral("found 5.9 5.10")), 1) << qPrintable(lines.join(QLatin1Char('\n')));
    EXPECT_EQ(lines.count(QStringLiteral("main 1")), 1) << qPrintable(lines.join(QLatin1Char('\n')));
}

INSTANTIATE_TEST_SUITE_P(
    Every, ProcessWithOddTexts,
    ::testing::Values(OddProcess{"None", "exec \"$@\""}, OddProcess{"Name", "exec -a \"$odd\" \"$@\""},
                      OddProcess{"NameWithAFolder", "exec -a \"/$odd/$odd\" \"$@\""},
                      OddProcess{"EmptyName", "exec -a '' \"$@\""}, OddProcess{"Argument", "exec \"$@\" \"$odd\""},
                      OddProcess{"Variable", "export ODD=\"$odd\"; exec \"$@\""},
                      OddProcess{"VariablesName", "exec env \"$odd=1\" \"$@\""},
                      OddProcess{"Home", "export HOME=\"$0/$odd\"; mkdir \"$HOME\"; exec \"$@\""},
                      OddProcess{"WorkingFolder", "mkdir \"$0/$odd\"; cd \"$0/$odd\"; exec \"$@\""},
                      OddProcess{"Folder",
                                 "mkdir \"$0/$odd\"; cp \"$1\" \"$0/$odd/host\"; shift; exec \"$0/$odd/host\" \"$@\""},
                      OddProcess{"LinkToIt", "ln -s \"$1\" \"$0/$odd\"; shift; exec \"$0/$odd\" \"$@\""}),
    [](auto const& info) { return std::string(info.param.name); });

} // namespace
