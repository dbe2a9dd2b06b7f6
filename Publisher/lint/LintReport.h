// LintReport.h: findings as text for a person, as JSON (docs/formats/lint-json.md) and as SARIF.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/lint/LintSubject.h"

#include <QJsonObject>

namespace Pelnar::Publisher
{

/// The findings that cause the exit status 1.
enum class Strictness
{
    ErrorsAndWarnings,
    Everything,
};

void PrintFindings(QString const& feed, std::vector<LintFinding> const& findings, Console const& console);

/// The same with one line for each rule: its first finding and the lines of the others.
void PrintGroupedFindings(QString const& feed, std::vector<LintFinding> const& findings, Console const& console);

/// The findings of all \a feeds in the format SARIF 2.1.0, which code hosts show next to the lines.
QJsonObject SarifOf(std::vector<std::pair<QString, std::vector<LintFinding>>> const& feeds);

QJsonObject JsonOf(QString const& feed, std::vector<LintFinding> const& findings);

[[nodiscard]] ExitStatus StatusOf(std::vector<LintFinding> const& findings, Strictness strictness);

} // namespace Pelnar::Publisher
