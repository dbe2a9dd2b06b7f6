// Matrix.h: who gets what: every installed version on every system.
// docs/formats/matrix-json.md holds the schema of the JSON.
#pragma once

#include "Publisher/matrix/Outcome.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

#include <vector>

namespace Pelnar::Publisher
{

/// A version that is not the newest of the feed, and to which nothing is offered on these systems.
struct Stranded
{
    QString version;
    QStringList systems;
    bool isEverywhere = false; ///< on all systems of the matrix: clients of this version never get an update
};

/// A version that was withdrawn, for those who have it already.
struct Withdrawn
{
    QString version;
    QStringList next; ///< what they are offered on some system, each once; "none" among them
};

struct Matrix
{
    QString feed;
    QString platform;
    std::vector<NamedVersion> versions;
    std::vector<NamedVersion> systems;
    std::vector<std::vector<Outcome>> outcomes; ///< by version, then by system
    std::vector<Stranded> stranded;
    std::vector<Withdrawn> withdrawn;
};

/// REQUIRES: every version is valid; systems may be unknown.
Matrix MakeMatrix(std::vector<Engine::FeedItem> const& items, std::vector<NamedVersion> const& versions,
                  std::vector<NamedVersion> const& systems, Engine::Installation const& installation = {});

QJsonObject JsonOf(Matrix const& matrix);
/// Lines for a person: a table, and what is stranded.
QStringList TextOf(Matrix const& matrix);

/// What a publisher expects, as an earlier run wrote it.
struct ExpectedCell
{
    NamedVersion localVersion;
    NamedVersion systemVersion;
    QString outcome; ///< as TextOf says it
};

/// Reads the JSON of an earlier run. Throws Refusal, which names \a file.
[[nodiscard]] std::vector<ExpectedCell> ParseExpectation(QString const& file, QByteArray const& json);

/// One line for every cell that is not as expected; addresses and sizes may change.
QStringList Differences(Matrix const& matrix, std::vector<ExpectedCell> const& expected);

} // namespace Pelnar::Publisher
