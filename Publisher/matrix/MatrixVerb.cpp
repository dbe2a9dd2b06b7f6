#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/matrix/Matrix.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

constexpr char const* FROM_FEED = "from-feed";

struct MatrixOptions : FeedQuestion
{
    std::string versions;
    std::string systems;
    std::string expectation;
};

using Versions = std::vector<NamedVersion>;

std::vector<ExpectedCell> ReadExpectation(MatrixOptions const& options)
{
    if (options.expectation.empty())
    {
        return {};
    }
    QString const name = QString::fromStdString(options.expectation);
    constexpr std::uint64_t MOST_BYTES = 64u << 20;
    QString const mend = u"give the JSON that an earlier run of matrix wrote"_s;
    return ParseExpectation(name, ReadInputFile(OpenInputFile(name), MOST_BYTES, mend));
}

/// Adds the versions of \a cells that \a versions does not have, in their order.
Versions With(Versions versions, std::vector<ExpectedCell> const& cells, NamedVersion ExpectedCell::*member)
{
    for (ExpectedCell const& cell : cells)
    {
        NamedVersion const& version = cell.*member;
        if (std::none_of(versions.begin(), versions.end(),
                         [&](NamedVersion const& each) { return each.text == version.text; }))
        {
            versions.push_back(version);
        }
    }
    return versions;
}

Versions InstalledVersions(MatrixOptions const& options, std::vector<ExpectedCell> const& expected,
                           std::vector<Engine::FeedItem> const& items)
{
    if (options.versions == FROM_FEED)
    {
        // An expected item may be gone, but not the clients with its version.
        Versions const versions = VersionsOfFeed(items);
        return versions.empty() ? versions : With(versions, expected, &ExpectedCell::localVersion);
    }
    if (options.versions.empty() && !options.expectation.empty())
    {
        return With({}, expected, &ExpectedCell::localVersion);
    }
    return ParseVersionList(u"--versions"_s, options.versions, ParseLocalVersion);
}

Versions Systems(MatrixOptions const& options, std::vector<ExpectedCell> const& expected)
{
    if (options.systems.empty() && !options.expectation.empty())
    {
        return With({}, expected, &ExpectedCell::systemVersion);
    }
    return ParseVersionList(u"--systems"_s, options.systems, ParseSystemVersion);
}

ExitStatus Answer(Matrix const& matrix, std::vector<ExpectedCell> const& expected, MatrixOptions const& options,
                  Console const& console)
{
    if (options.isJson)
    {
        QJsonObject json = JsonOf(matrix);
        AddInstallation(json, options.installation);
        console.PrintJson(json);
    }
    else
    {
        console.Print(TextOf(matrix));
    }
    if (options.expectation.empty())
    {
        return ExitStatus::Clean;
    }
    QStringList const differences = Differences(matrix, expected);
    for (QString const& line : differences)
    {
        console.err.stream << console.err.Styled(Emphasis::Bad, u"not as expected: "_s) << Printable(line).toStdString()
                           << '\n';
    }
    return differences.isEmpty() ? ExitStatus::Clean : ExitStatus::Findings;
}

ExitStatus ShowMatrix(MatrixOptions const& options, Console const& console)
{
    if (options.expectation.empty() && (options.versions.empty() || options.systems.empty()))
    {
        throw Refusal(
            {u"--versions and --systems are required without --expect"_s, u"see pelnar-appcast matrix --help"_s});
    }
    std::vector<ExpectedCell> const expected = ReadExpectation(options);
    Engine::Installation const installation = InstallationOf(options.installation);
    ParsedFeed const feed = ReadItems(options, options.feed, installation.machine, console);
    Versions const versions = InstalledVersions(options, expected, feed.items);
    if (versions.empty())
    {
        throw Refusal({feed.source.name, u"names no version to start with"_s, u"list them in --versions"_s});
    }
    Matrix matrix = MakeMatrix(feed.items, versions, Systems(options, expected), installation);
    matrix.feed = feed.source.name;
    matrix.platform = Engine::NameOf(options.platform);
    return Answer(matrix, expected, options, console);
}

} // namespace

void AddMatrix(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<MatrixOptions>(
        program, context, "matrix", "Show the update that every installed version gets on every system", ShowMatrix);
    AddFeedOption(verb, options.feed);
    verb.add_option("--versions", options.versions,
                    "Installed versions, separated by commas, or \"from-feed\" for all that the feed names")
        ->type_name("LIST");
    verb.add_option("--systems", options.systems,
                    "Versions of the operating system, separated by commas; \"unknown\" is allowed")
        ->type_name("LIST");
    AddClientOptions(verb, options);
    AddRolloutGroupOption(verb, options.installation);
    verb.add_option("--expect", options.expectation,
                    "JSON of an earlier run: exit with 1 if an outcome differs. Its versions and systems are the "
                    "defaults; its versions are added to those of \"from-feed\"")
        ->type_name("FILE");
}

} // namespace Pelnar::Publisher
