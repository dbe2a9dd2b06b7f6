#include "Publisher/lint/LintReport.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>
#include <ostream>

namespace Pelnar::Publisher
{
namespace
{

constexpr Severity SEVERITIES[] = {Severity::Error, Severity::Warning, Severity::Note};

Emphasis EmphasisOf(Severity severity)
{
    switch (severity)
    {
    case Severity::Error:
        return Emphasis::Bad;
    case Severity::Warning:
        return Emphasis::Warning;
    case Severity::Note:
        return Emphasis::Dim;
    }
    return Emphasis::None;
}

std::size_t Count(std::vector<LintFinding> const& findings, Severity severity)
{
    return std::size_t(std::count_if(findings.begin(), findings.end(),
                                     [&](LintFinding const& finding)
                                     { return EntryOf(finding.rule).severity == severity; }));
}

QString SummaryOf(std::vector<LintFinding> const& findings)
{
    QStringList counts;
    for (Severity const severity : SEVERITIES)
    {
        if (std::size_t const count = Count(findings, severity))
        {
            counts.append(CountOf(count, QLatin1String(SeverityName(severity))));
        }
    }
    return counts.isEmpty() ? QStringLiteral("clean") : counts.join(QStringLiteral(", "));
}

void PrintFinding(QString const& feed, LintFinding const& finding, Console const& console)
{
    LintRuleEntry const& entry = EntryOf(finding.rule);
    QString const place = QStringLiteral("%1:%2:%3: ").arg(feed).arg(finding.place.line).arg(finding.place.column);
    console.out.stream << Printable(place).toStdString()
                       << console.out.Styled(EmphasisOf(entry.severity), QLatin1String(SeverityName(entry.severity)))
                       << ": " << console.out.Styled(Emphasis::Bold, QLatin1String(entry.name)) << ": "
                       << Printable(finding.what).toStdString() << "; " << entry.mend << '\n';
}

} // namespace

void PrintGroupedFindings(QString const& feed, std::vector<LintFinding> const& findings, Console const& console)
{
    std::vector<std::pair<LintFinding, QStringList>> groups;
    for (LintFinding const& finding : findings)
    {
        auto const group = std::find_if(groups.begin(), groups.end(),
                                        [&](auto const& each) { return each.first.rule == finding.rule; });
        QString const line = QString::number(finding.place.line);
        if (group == groups.end())
        {
            groups.push_back({finding, {}});
        }
        else if (!group->second.contains(line))
        {
            group->second.append(line);
        }
    }
    for (auto const& [first, lines] : groups)
    {
        PrintFinding(feed, first, console);
        if (!lines.isEmpty())
        {
            console.Print(QStringLiteral("    and in %1 %2")
                              .arg(lines.size() == 1 ? QStringLiteral("line") : QStringLiteral("lines"),
                                   lines.join(QStringLiteral(", "))));
        }
    }
    console.Print(Printable(QStringLiteral("%1: %2").arg(feed, SummaryOf(findings))));
}

QJsonObject SarifOf(std::vector<std::pair<QString, std::vector<LintFinding>>> const& feeds)
{
    QJsonArray rules;
    for (LintRuleEntry const& entry : LintRules())
    {
        rules.append(QJsonObject{
            {QStringLiteral("id"), QLatin1String(entry.name)},
            {QStringLiteral("shortDescription"), QJsonObject{{QStringLiteral("text"), QLatin1String(entry.what)}}},
            {QStringLiteral("help"), QJsonObject{{QStringLiteral("text"), QLatin1String(entry.mend)}}}});
    }
    QJsonArray results;
    for (auto const& [feed, findings] : feeds)
    {
        for (LintFinding const& finding : findings)
        {
            LintRuleEntry const& entry = EntryOf(finding.rule);
            QJsonObject const region{{QStringLiteral("startLine"), std::max(finding.place.line, 1)},
                                     {QStringLiteral("startColumn"), std::max(finding.place.column, 1)}};
            QJsonObject const place{
                {QStringLiteral("physicalLocation"),
                 QJsonObject{{QStringLiteral("artifactLocation"), QJsonObject{{QStringLiteral("uri"), feed}}},
                             {QStringLiteral("region"), region}}}};
            results.append(QJsonObject{{QStringLiteral("ruleId"), QLatin1String(entry.name)},
                                       {QStringLiteral("level"), QLatin1String(SeverityName(entry.severity))},
                                       {QStringLiteral("message"),
                                        QJsonObject{{QStringLiteral("text"),
                                                     finding.what + QStringLiteral("; ") + QLatin1String(entry.mend)}}},
                                       {QStringLiteral("locations"), QJsonArray{place}}});
        }
    }
    QJsonObject const driver{{QStringLiteral("name"), QStringLiteral("pelnar-appcast lint")},
                             {QStringLiteral("rules"), rules}};
    return {{QStringLiteral("$schema"), QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
            {QStringLiteral("version"), QStringLiteral("2.1.0")},
            {QStringLiteral("runs"),
             QJsonArray{QJsonObject{{QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
                                    {QStringLiteral("results"), results}}}}};
}

void PrintFindings(QString const& feed, std::vector<LintFinding> const& findings, Console const& console)
{
    for (LintFinding const& finding : findings)
    {
        PrintFinding(feed, finding, console);
    }
    console.Print(Printable(QStringLiteral("%1: %2").arg(feed, SummaryOf(findings))));
}

QJsonObject JsonOf(QString const& feed, std::vector<LintFinding> const& findings)
{
    QJsonArray list;
    for (LintFinding const& finding : findings)
    {
        LintRuleEntry const& entry = EntryOf(finding.rule);
        list.append(QJsonObject{
            {QStringLiteral("rule"), QLatin1String(entry.name)},
            {QStringLiteral("severity"), QLatin1String(SeverityName(entry.severity))},
            {QStringLiteral("line"), finding.place.line},
            {QStringLiteral("column"), finding.place.column},
            {QStringLiteral("what"), finding.what},
            {QStringLiteral("mend"), QLatin1String(entry.mend)},
        });
    }
    return {{QStringLiteral("feed"), feed},
            {QStringLiteral("errors"), int(Count(findings, Severity::Error))},
            {QStringLiteral("warnings"), int(Count(findings, Severity::Warning))},
            {QStringLiteral("notes"), int(Count(findings, Severity::Note))},
            {QStringLiteral("findings"), list}};
}

ExitStatus StatusOf(std::vector<LintFinding> const& findings, Strictness strictness)
{
    bool const hasFinding =
        std::any_of(findings.begin(), findings.end(),
                    [&](LintFinding const& finding) {
                        return strictness == Strictness::Everything || EntryOf(finding.rule).severity != Severity::Note;
                    });
    return hasFinding ? ExitStatus::Findings : ExitStatus::Clean;
}

} // namespace Pelnar::Publisher
