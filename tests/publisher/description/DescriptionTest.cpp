// DescriptionTest.cpp: help text, manual page and completion describe every verb and option in the same way.

#include "Publisher/Verb.h"
#include "Publisher/description/CommandDescription.h"
#include "Publisher/description/DescribedCommand.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

#include <algorithm>
#include <functional>
#include <sstream>

namespace Pelnar::Testing
{
namespace
{

using namespace Publisher;

template <typename Result>
Result OfProgram(std::function<Result(CLI::App const&)> const& ask)
{
    std::istringstream in;
    std::ostringstream out;
    Console console{in, {out}, {out}};
    VerbContext context{console};
    Result result;
    WithProgram(context, [&](CLI::App& program) { result = ask(program); });
    return result;
}

std::string SourceFile(char const* path)
{
    QFile file(QStringLiteral(PELNAR_SOURCE_FOLDER "/") + QLatin1String(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll().toStdString();
}

/// Text without blanks and without the marks for the formatter of manual pages.
std::string Squeezed(std::string text)
{
    for (char const* const mark : {"\\fB", "\\fI", "\\fR", "\\&"})
    {
        for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark))
        {
            text.erase(at, std::string(mark).size());
        }
    }
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\n' || c == '\\'; }),
               text.end());
    return text;
}

constexpr char MEND[] = "build the target publisher_description and commit what it writes";

TEST(CommandDescription, ManualPageOfTheSourceTreeIsTheProgramsOwn)
{
    EXPECT_EQ(SourceFile("docs/man/pelnar-appcast.1"), OfProgram<std::string>(ManualPage)) << MEND;
}

TEST(CommandDescription, CompletionOfTheSourceTreeIsTheProgramsOwn)
{
    EXPECT_EQ(SourceFile("Publisher/description/pelnar-appcast.bash"), OfProgram<std::string>(BashCompletion)) << MEND;
}

TEST(CommandDescription, HelpAndManualPageSayTheSameOfEveryVerb)
{
    std::string const manual = Squeezed(OfProgram<std::string>(ManualPage));
    auto const commands = OfProgram<std::vector<DescribedCommand>>(DescribeCommands);
    EXPECT_GE(commands.size(), 10u);
    for (DescribedCommand const& command : commands)
    {
        QStringList const words = QString::fromStdString(command.path).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        ToolRun const help = RunTool(words + QStringList(QStringLiteral("--help")));
        EXPECT_EQ(help.status, 0) << command.path;
        std::string const helpText = Squeezed(help.out);
        for (std::string const& text : {helpText, manual})
        {
            EXPECT_NE(text.find(Squeezed(command.description)), std::string::npos) << command.path;
            for (DescribedOption const& option : command.options)
            {
                EXPECT_NE(text.find(option.names.back()), std::string::npos) << command.path << option.names.back();
                bool const isHelp = option.names.back() == "--help";
                EXPECT_TRUE(isHelp || text.find(Squeezed(option.description)) != std::string::npos)
                    << command.path << ' ' << option.names.back();
            }
        }
    }
}

TEST(CommandDescription, EveryOptionIsDescribed)
{
    for (DescribedCommand const& command : OfProgram<std::vector<DescribedCommand>>(DescribeCommands))
    {
        EXPECT_FALSE(command.description.empty()) << command.path;
        for (DescribedOption const& option : command.options)
        {
            EXPECT_FALSE(option.description.empty()) << command.path << ' ' << option.names.back();
        }
    }
}

/// The words that bash offers for the last of \a words.
QStringList Completions(QStringList const& words)
{
    QProcess bash;
    bash.setWorkingDirectory(QStringLiteral(PELNAR_SOURCE_FOLDER "/docs"));
    bash.start(
        QStringLiteral("bash"),
        QStringList{QStringLiteral("-c"),
                    QStringLiteral("source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _pelnar_appcast; "
                                   "printf '%s\\n' \"${COMPREPLY[@]}\""),
                    QStringLiteral(PELNAR_SOURCE_FOLDER "/Publisher/description/pelnar-appcast.bash"),
                    QStringLiteral("pelnar-appcast")} +
            words);
    EXPECT_TRUE(bash.waitForFinished());
    EXPECT_EQ(bash.readAllStandardError().toStdString(), "");
    return QString::fromUtf8(bash.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

TEST(CommandDescription, CompletionOffersVerbsOptionsChoicesAndFiles)
{
    QString const nothing = QLatin1String("");
    EXPECT_EQ(Completions({QStringLiteral("ke")}), QStringList(QStringLiteral("keys")));
    EXPECT_EQ(Completions({QStringLiteral("keys"), QStringLiteral("sh")}), QStringList(QStringLiteral("show")));
    EXPECT_EQ(Completions({QStringLiteral("keys"), QStringLiteral("show"), QStringLiteral("--f")}),
              QStringList(QStringLiteral("--format")));
    EXPECT_EQ(Completions({QStringLiteral("keys"), QStringLiteral("show"), QStringLiteral("--format"), nothing}),
              QStringList({QStringLiteral("xml"), QStringLiteral("gnustep"), QStringLiteral("bare")}));
    EXPECT_EQ(Completions({QStringLiteral("sign"), QStringLiteral("archi")}),
              QStringList(QStringLiteral("architecture.md")));
    QStringList const verbs = Completions({nothing});
    for (DescribedCommand const& command : OfProgram<std::vector<DescribedCommand>>(DescribeCommands))
    {
        for (std::string const& verb : command.verbs)
        {
            EXPECT_TRUE(!command.path.empty() || verbs.contains(QString::fromStdString(verb))) << verb;
        }
    }
}

TEST(CommandDescription, ManualPageIsWellFormed)
{
    QProcess formatter;
    formatter.start(QStringLiteral("groff"),
                    {QStringLiteral("-man"), QStringLiteral("-Tutf8"), QStringLiteral("-ww"), QStringLiteral("-z"),
                     QStringLiteral(PELNAR_SOURCE_FOLDER "/docs/man/pelnar-appcast.1")});
    if (!formatter.waitForStarted())
    {
        GTEST_SKIP() << "groff is not installed";
    }
    EXPECT_TRUE(formatter.waitForFinished());
    EXPECT_EQ(formatter.readAllStandardError().toStdString(), "");
}

TEST(CommandDescription, CompletionsOfOtherShellsAreTheProgramsOwn)
{
    EXPECT_EQ(SourceFile("Publisher/description/_pelnar-appcast"), OfProgram<std::string>(ZshCompletion)) << MEND;
    EXPECT_EQ(SourceFile("Publisher/description/pelnar-appcast.fish"), OfProgram<std::string>(FishCompletion)) << MEND;
}

} // namespace
} // namespace Pelnar::Testing
