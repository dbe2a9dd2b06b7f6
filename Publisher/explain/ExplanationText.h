// ExplanationText.h: an explanation as text for a person, and as JSON. docs/formats/explain-json.md describes the JSON.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/explain/Explanation.h"

#include <QJsonObject>

namespace Pelnar::Publisher
{

/// The person's question that the explanation answers.
struct ExplainQuestion
{
    QString feed;
    QString localVersion;
    QString systemVersion;
    QString platform;
    PreviousAnswer previousAnswer = PreviousAnswer::NONE;
};

void PrintExplanation(Explanation const& explanation, ExplainQuestion const& question, Console const& console);

QJsonObject JsonOf(Explanation const& explanation, ExplainQuestion const& question);

} // namespace Pelnar::Publisher
