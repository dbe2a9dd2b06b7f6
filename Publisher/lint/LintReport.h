// LintReport.h: findings as text for a person, and as JSON. docs/formats/lint-json.md holds the schema.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/lint/LintSubject.h"

#include <QJsonObject>

namespace Pelnar::Publisher
{

/// Which findings make the exit status 1.
enum class Strictness
{
    ErrorsAndWarnings,
    Everything,
};

void PrintFindings(QString const& feed, std::vector<LintFinding> const& findings, Console const& console);

/// The same with one line for each rule: its first finding, and where the others are.
void PrintGroupedFindings(QString const& feed, std::vector<LintFinding> const& findings, Console const& console);

/// All \a feeds, with their findings, in the format SARIF 2.1.0 that code hosts show beside the lines.
QJsonObject SarifOf(std::vector<std::pair<QString, std::vector<LintFinding>>> const& feeds);

QJsonObject JsonOf(QString const& feed, std::vector<LintFinding> const& findings);

[[nodiscard]] ExitStatus StatusOf(std::vector<LintFinding> const& findings, Strictness strictness);

} // namespace Pelnar::Publisher
