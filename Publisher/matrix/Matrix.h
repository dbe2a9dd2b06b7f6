// Matrix.h: the update that every installed version gets on every system. docs/formats/matrix-json.md describes the
// JSON.
#pragma once

#include "Publisher/matrix/Outcome.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

#include <vector>

namespace Pelnar::Publisher
{

/// A version that is not the newest in the feed and gets no update on these systems.
struct Stranded
{
    QString version;
    QStringList systems;
    bool isEverywhere = false; ///< on all systems of the matrix: clients of this version never get an update
};

/// A withdrawn version, for the clients that already have it.
struct Withdrawn
{
    QString version;
    QStringList next; ///< their offers on the systems, each once; may include "none"
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
/// Lines for a person: a table, and the stranded versions.
QStringList TextOf(Matrix const& matrix);

/// An expected outcome, from the JSON of an earlier run.
struct ExpectedCell
{
    NamedVersion localVersion;
    NamedVersion systemVersion;
    QString outcome; ///< in the form of TextOf
};

/// Reads the JSON of an earlier run. Throws Refusal; its message names \a file.
[[nodiscard]] std::vector<ExpectedCell> ParseExpectation(QString const& file, QByteArray const& json);

/// One line for every cell that differs from the expectation. Addresses and sizes are not compared.
QStringList Differences(Matrix const& matrix, std::vector<ExpectedCell> const& expected);

} // namespace Pelnar::Publisher
