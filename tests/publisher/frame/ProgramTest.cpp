// ProgramTest.cpp: the command line: help, and what it does not understand.

#include "Publisher/Verb.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <sstream>

namespace Pelnar::Testing
{
namespace
{

/// Calls \a use with each option of \a app and its verbs that takes a value, and with the verbs before it.
void ForEachValue(CLI::App& app, QStringList const& verbs,
                  std::function<void(QStringList const&, CLI::Option const&)> const& use)
{
    for (CLI::Option const* const option : app.get_options())
    {
        if (option->get_items_expected_max() > 0)
        {
            use(verbs, *option);
        }
    }
    for (CLI::App* const verb : app.get_subcommands({}))
    {
        ForEachValue(*verb, verbs + QStringList(QString::fromStdString(verb->get_name())), use);
    }
}

} // namespace

TEST(AppcastProgram, DescribesItself)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("--help")});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("Exit status: 0 no problem, 1 problems found, 2 bad arguments"), std::string::npos)
        << run.out;
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

TEST(AppcastProgram, NamesTheWordThatItDoesNotUnderstand)
{
    auto const said = [](QStringList const& arguments) { return RunTool(arguments).err; };
    EXPECT_EQ(said({}), "error: a verb is required; see pelnar-appcast --help\n");
    EXPECT_EQ(said({QStringLiteral("publish")}), "error: \"publish\" is not a verb; see pelnar-appcast --help\n");
    EXPECT_EQ(said({QStringLiteral("--loud")}), "error: \"--loud\" is not an option; see pelnar-appcast --help\n");
    EXPECT_EQ(said({QStringLiteral("keys"), QStringLiteral("make")}),
              "error: \"make\" is not a verb; see pelnar-appcast keys --help\n");
    auto const saidOf = [&said](char const* line) { return said(QString::fromLatin1(line).split(QLatin1Char(' '))); };
    EXPECT_EQ(saidOf("generat"),
              "error: \"generat\" is not a verb; did you mean generate? See pelnar-appcast --help\n");
    EXPECT_EQ(saidOf("signfeed"),
              "error: \"signfeed\" is not a verb; did you mean sign-feed? See pelnar-appcast --help\n");
    EXPECT_EQ(saidOf("delta aplpy"),
              "error: \"aplpy\" is not a verb; did you mean apply? See pelnar-appcast delta --help\n");
    EXPECT_EQ(saidOf("generate . --kye file"),
              "error: \"--kye\" is not an option; did you mean --key? See pelnar-appcast generate --help\n");
    EXPECT_EQ(saidOf("lint feed --loudly"), "error: \"--loudly\" is not an option; see pelnar-appcast lint --help\n");
    EXPECT_EQ(saidOf("lint feed -x"), "error: \"-x\" is not an option; see pelnar-appcast lint --help\n");
    EXPECT_EQ(saidOf("serve . other"), "error: \"other\" is one argument too many; see pelnar-appcast serve --help\n");
    EXPECT_EQ(said({QStringLiteral("keys")}), "error: a verb is required; see pelnar-appcast keys --help\n");
    EXPECT_EQ(said({QStringLiteral("serve"), QStringLiteral("."), QStringLiteral("--port"), QStringLiteral("65536")}),
              "error: --port: \"65536\" is not a number from 0 to 65535; see pelnar-appcast serve --help\n");
    EXPECT_EQ(saidOf("generate . --deltas few"),
              "error: --deltas: \"few\" is not a number from 0 to 100; see pelnar-appcast generate --help\n");
    EXPECT_EQ(saidOf("generate . --effort some"),
              "error: --effort: \"some\" is not one of low,usual,high; see pelnar-appcast generate --help\n");
    EXPECT_EQ(saidOf("generate . --key"), "error: --key: no FILE is given; see pelnar-appcast generate --help\n");
}

TEST(AppcastProgram, ListsEachVerbInOneLine)
{
    std::istringstream help(RunTool({QStringLiteral("--help")}).out);
    std::size_t verbs = 0;
    bool isInList = false;
    for (std::string line; std::getline(help, line);)
    {
        if (isInList && !line.empty())
        {
            ++verbs;
            EXPECT_LE(line.size(), 120u) << line;
            EXPECT_EQ(line.find(". "), std::string::npos) << line;
        }
        isInList = isInList || line == "Verbs:";
    }
    EXPECT_GT(verbs, 15u);
    EXPECT_NE(
        RunTool({QStringLiteral("sign-feed"), QStringLiteral("--help")}).out.find("A feed that was changed since"),
        std::string::npos);
}

TEST(AppcastProgram, EmptyValueOfAnyOptionIsRefused)
{
    std::istringstream in;
    std::ostringstream out;
    Publisher::Console console{in, {out}, {out}};
    Publisher::VerbContext context{console};
    int values = 0;
    Publisher::WithProgram(
        context,
        [&values](CLI::App& program)
        {
            ForEachValue(program, {},
                         [&values](QStringList const& verbs, CLI::Option const& option)
                         {
                             QString const name = QString::fromStdString(option.get_name());
                             bool const isNamed = name.startsWith(QLatin1Char('-'));
                             ToolRun const run = RunTool(verbs + (isNamed ? QStringList(name) : QStringList()) +
                                                         QStringList(QString()));
                             EXPECT_EQ(run.status, 2) << verbs.join(QLatin1Char(' ')).toStdString();
                             EXPECT_EQ(run.out, "");
                             EXPECT_EQ(run.err.find("error: "), 0u) << run.err;
                             EXPECT_NE(run.err.find(isNamed ? name.toStdString() + ": " : ": no value is given"),
                                       std::string::npos)
                                 << run.err;
                             ++values;
                         });
        });
    EXPECT_GT(values, 60);
}

TEST(AppcastProgram, TellsItsVersion)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("--version")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out.find("pelnar-appcast "), 0u) << run.out;
    EXPECT_NE(run.out.find_first_of("0123456789"), std::string::npos) << run.out;
}

TEST(AppcastProgram, BreaksItsHelpToTheColumnsThatThereAre)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("COLUMNS"), QStringLiteral("80"));
    ToolRun const run = RunAppcastProgram({QStringLiteral("generate"), QStringLiteral("--help")}, {}, environment);
    EXPECT_EQ(run.status, 0);
    std::istringstream lines(run.out);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
    {
        EXPECT_LE(line.size(), 80u) << line;
    }
    EXPECT_GT(count, 20) << run.out;
}

TEST(AppcastProgram, OutputThatCannotBeWrittenIsAFailureOfEveryVerb)
{
    QTemporaryDir folder;
    QFile feed(folder.filePath(QStringLiteral("appcast.xml")));
    ASSERT_TRUE(feed.open(QIODevice::WriteOnly));
    feed.write("<rss><channel></channel></rss>");
    feed.close();
    QString const name = feed.fileName();
    QStringList const lines[] = {
        {QStringLiteral("--help")},
        {QStringLiteral("--version")},
        {QStringLiteral("lint"), QStringLiteral("--rules")},
        {QStringLiteral("lint"), name},
        {QStringLiteral("lint"), name, QStringLiteral("--json")},
        {QStringLiteral("explain"), name, QStringLiteral("--local-version"), QStringLiteral("1"),
         QStringLiteral("--system-version"), QStringLiteral("11")},
        {QStringLiteral("matrix"), name, QStringLiteral("--versions"), QStringLiteral("1"), QStringLiteral("--systems"),
         QStringLiteral("11")},
        {QStringLiteral("diff"), name, name},
        {QStringLiteral("keys"), QStringLiteral("generate"), folder.filePath(QStringLiteral("key"))},
        {QStringLiteral("keys"), QStringLiteral("show"), folder.filePath(QStringLiteral("key"))},
        {QStringLiteral("keys"), QStringLiteral("export"), folder.filePath(QStringLiteral("key"))},
        {QStringLiteral("sign"), name, QStringLiteral("--key"), folder.filePath(QStringLiteral("key"))},
        {QStringLiteral("serve"), folder.path()},
    };
    for (QStringList const& line : lines)
    {
        QProcess process;
        process.setStandardOutputFile(QStringLiteral("/dev/full"));
        process.start(AppcastProgram(), line);
        ASSERT_TRUE(process.waitForFinished(30000)) << line.join(QLatin1Char(' ')).toStdString();
        EXPECT_EQ(process.exitCode(), 1) << line.join(QLatin1Char(' ')).toStdString();
        EXPECT_TRUE(process.readAllStandardError().contains("error: <stdout>: cannot be written; check the space"))
            << line.join(QLatin1Char(' ')).toStdString();
    }
}

TEST(AppcastProgram, NeedsNoThreadOfItsOwn)
{
    QString const strace = QStringLiteral("/usr/bin/strace");
    if (!QFile::exists(strace))
    {
        GTEST_SKIP() << "system calls cannot be traced here";
    }
    QTemporaryDir folder;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0")); // it traces, too
    process.setProcessEnvironment(environment);
    process.start(strace,
                  {QStringLiteral("-f"), QStringLiteral("-qq"), QStringLiteral("-o"), QStringLiteral("/dev/null"),
                   QStringLiteral("-e"), QStringLiteral("inject=clone,clone3:error=EAGAIN"), AppcastProgram(),
                   QStringLiteral("keys"), QStringLiteral("generate"), folder.filePath(QStringLiteral("key"))});
    ASSERT_TRUE(process.waitForFinished(30000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("key"))));
}

} // namespace Pelnar::Testing
