// LintReport.h: findings as text for a person, and as JSON. docs/formats/lint-json.md holds the schema.
// Thread: any; no state. Ownership: none.
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

QJsonObject JsonOf(QString const& feed, std::vector<LintFinding> const& findings);

[[nodiscard]] ExitStatus StatusOf(std::vector<LintFinding> const& findings, Strictness strictness);

} // namespace Pelnar::Publisher
