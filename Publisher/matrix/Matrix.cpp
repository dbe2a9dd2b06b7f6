#include "Publisher/matrix/Matrix.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/Refusal.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <map>

namespace Pelnar::Publisher
{
namespace
{

/// The newest version among the items for such installations. Invalid if no item has a readable version.
Core::Version NewestVersion(std::vector<Engine::FeedItem> const& items, Engine::Installation installation)
{
    installation.version.clear();
    Core::Version newest;
    for (Engine::FeedItem const& item : items)
    {
        if (Engine::IsLeftOut(PolicyOf(item, installation)))
        {
            continue;
        }
        Core::Version const version = App::Session::VersionFromStringNoexcept(item.versionString);
        if (version.IsValid() && (!newest.IsValid() || App::Session::IsOlderVersion(newest, version)))
        {
            newest = version;
        }
    }
    return newest;
}

std::vector<Stranded> FindStranded(Matrix const& matrix, Core::Version const& newest)
{
    std::vector<Stranded> result;
    for (std::size_t row = 0; row < matrix.versions.size(); ++row)
    {
        Stranded stranded{matrix.versions[row].text, {}, false};
        for (std::size_t column = 0; column < matrix.systems.size(); ++column)
        {
            if (!matrix.outcomes[row][column].IsUpdate())
            {
                stranded.systems.append(matrix.systems[column].text);
            }
        }
        stranded.isEverywhere = std::size_t(stranded.systems.size()) == matrix.systems.size();
        bool const hasNewer = newest.IsValid() && App::Session::IsOlderVersion(matrix.versions[row].version, newest);
        if (hasNewer && !stranded.systems.isEmpty())
        {
            result.push_back(stranded);
        }
    }
    return result;
}

std::vector<Core::Version> WithdrawnVersions(std::vector<Engine::FeedItem> const& items)
{
    std::vector<Core::Version> versions;
    for (Engine::FeedItem const& item : items)
    {
        if (item.policy.isWithdrawn)
        {
            versions.push_back(App::Session::VersionFromStringNoexcept(item.versionString));
        }
    }
    std::sort(versions.begin(), versions.end(), App::Session::IsOlderVersion);
    return versions;
}

std::vector<Withdrawn> FindWithdrawn(Matrix const& matrix, std::vector<Engine::FeedItem> const& items)
{
    std::vector<Core::Version> const versions = WithdrawnVersions(items);
    std::vector<Withdrawn> result;
    for (std::size_t row = 0; row < matrix.versions.size(); ++row)
    {
        if (!std::binary_search(versions.begin(), versions.end(), matrix.versions[row].version,
                                App::Session::IsOlderVersion))
        {
            continue;
        }
        Withdrawn withdrawn{matrix.versions[row].text, {}};
        for (Outcome const& outcome : matrix.outcomes[row])
        {
            withdrawn.next.append(TextOf(outcome));
        }
        withdrawn.next.removeDuplicates();
        result.push_back(withdrawn);
    }
    return result;
}

QString Row(QStringList const& cells, std::vector<int> const& widths)
{
    QString line;
    for (int i = 0; i < cells.size(); ++i)
    {
        line += cells.at(i).leftJustified(widths[std::size_t(i)] + 2);
    }
    return line.trimmed();
}

/// One line for all versions that have this on the same systems.
QStringList StrandedLines(std::vector<Stranded> const& stranded)
{
    QStringList lines;
    QString systems;
    for (Stranded const& each : stranded)
    {
        QString const there = each.isEverywhere ? u"on every system"_s : u"on "_s + each.systems.join(u", "_s);
        if (!lines.isEmpty() && there == systems)
        {
            lines.last() += u", "_s + each.version;
            continue;
        }
        systems = there;
        lines.append(u"stranded %1: %2"_s.arg(there, each.version));
    }
    return lines;
}

QJsonArray TextsOf(std::vector<NamedVersion> const& versions)
{
    QJsonArray texts;
    for (NamedVersion const& version : versions)
    {
        texts.append(version.text);
    }
    return texts;
}

} // namespace

Matrix MakeMatrix(std::vector<Engine::FeedItem> const& items, std::vector<NamedVersion> const& versions,
                  std::vector<NamedVersion> const& systems, Engine::Installation const& installation)
{
    FeedChooser feed(items, installation);
    Matrix matrix;
    matrix.versions = versions;
    matrix.systems = systems;
    for (NamedVersion const& version : versions)
    {
        std::vector<Outcome>& row = matrix.outcomes.emplace_back();
        for (NamedVersion const& system : systems)
        {
            row.push_back(OutcomeOf(feed.Answer({version.version, system.version})));
        }
    }
    matrix.withdrawn = FindWithdrawn(matrix, items);
    matrix.stranded = FindStranded(matrix, NewestVersion(items, installation));
    return matrix;
}

QJsonObject JsonOf(Matrix const& matrix)
{
    QJsonArray cells;
    for (std::size_t row = 0; row < matrix.versions.size(); ++row)
    {
        for (std::size_t column = 0; column < matrix.systems.size(); ++column)
        {
            cells.append(QJsonObject{{u"localVersion"_s, matrix.versions[row].text},
                                     {u"systemVersion"_s, matrix.systems[column].text},
                                     {u"offered"_s, JsonOf(matrix.outcomes[row][column])}});
        }
    }
    QJsonArray stranded;
    for (Stranded const& each : matrix.stranded)
    {
        stranded.append(QJsonObject{{u"version"_s, each.version},
                                    {u"systems"_s, QJsonArray::fromStringList(each.systems)},
                                    {u"everywhere"_s, each.isEverywhere}});
    }
    QJsonArray withdrawn;
    for (Withdrawn const& each : matrix.withdrawn)
    {
        withdrawn.append(QJsonObject{{u"version"_s, each.version}, {u"next"_s, QJsonArray::fromStringList(each.next)}});
    }
    return {{u"feed"_s, matrix.feed},
            {u"platform"_s, matrix.platform},
            {u"versions"_s, TextsOf(matrix.versions)},
            {u"systems"_s, TextsOf(matrix.systems)},
            {u"cells"_s, cells},
            {u"stranded"_s, stranded},
            {u"withdrawn"_s, withdrawn}};
}

QStringList TextOf(Matrix const& matrix)
{
    QList<QStringList> rows{{u"installed"_s}};
    for (NamedVersion const& system : matrix.systems)
    {
        rows.first().append(u"on "_s + system.text);
    }
    for (std::size_t row = 0; row < matrix.versions.size(); ++row)
    {
        rows.append({matrix.versions[row].text});
        for (Outcome const& outcome : matrix.outcomes[row])
        {
            rows.last().append(TextOf(outcome));
        }
    }
    std::vector<int> widths(matrix.systems.size() + 1, 0);
    for (QStringList const& row : rows)
    {
        for (int i = 0; i < row.size(); ++i)
        {
            widths[std::size_t(i)] = std::max(widths[std::size_t(i)], row.at(i).size());
        }
    }
    QStringList lines;
    for (QStringList const& row : rows)
    {
        lines.append(Row(row, widths));
    }
    for (Withdrawn const& each : matrix.withdrawn)
    {
        lines.append(u"withdrawn %1: clients that have it get %2"_s.arg(each.version, each.next.join(u", "_s)));
    }
    return lines + StrandedLines(matrix.stranded);
}

std::vector<ExpectedCell> ParseExpectation(QString const& file, QByteArray const& json)
{
    QJsonValue const cells = QJsonDocument::fromJson(json).object().value(u"cells"_s);
    QJsonArray const list = cells.toArray();
    bool isGood = !list.isEmpty(); // a comparison with nothing would find nothing
    std::vector<ExpectedCell> expected;
    for (QJsonValue const& cell : list)
    {
        auto const versionAt = [&cell](char const* name)
        {
            QString const text = cell[QLatin1String(name)].toString();
            return NamedVersion{text, App::Session::VersionFromStringNoexcept(text)};
        };
        NamedVersion const local = versionAt("localVersion");
        NamedVersion const system = versionAt("systemVersion");
        QJsonValue const offered = cell[u"offered"_s];
        isGood = isGood && local.version.IsValid() &&
                 (system.version.IsValid() || system.text == QLatin1String(UNKNOWN_SYSTEM)) &&
                 (offered.isNull() || offered.isObject());
        expected.push_back({local, system, TextOf(OutcomeOf(offered))});
    }
    if (!isGood)
    {
        throw Refusal({file, u"is not the JSON of pelnar-appcast matrix"_s,
                       u"make it with pelnar-appcast matrix FEED ... --json"_s});
    }
    return expected;
}

QStringList Differences(Matrix const& matrix, std::vector<ExpectedCell> const& expected)
{
    std::map<std::pair<QString, QString>, QString> outcomes;
    for (ExpectedCell const& cell : expected)
    {
        outcomes.emplace(std::pair(cell.localVersion.text, cell.systemVersion.text), cell.outcome);
    }
    QStringList lines;
    for (std::size_t row = 0; row < matrix.versions.size(); ++row)
    {
        for (std::size_t column = 0; column < matrix.systems.size(); ++column)
        {
            QString const& version = matrix.versions[row].text;
            QString const& system = matrix.systems[column].text;
            QString const outcome = TextOf(matrix.outcomes[row][column]);
            auto const cell = outcomes.find({version, system});
            if (cell == outcomes.end())
            {
                lines.append(u"%1 on %2: %3, but the expectation has no such cell"_s.arg(version, system, outcome));
            }
            else if (cell->second != outcome)
            {
                lines.append(u"%1 on %2: %3, expected %4"_s.arg(version, system, outcome, cell->second));
            }
        }
    }
    return lines;
}

} // namespace Pelnar::Publisher
