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
    return counts.isEmpty() ? u"clean"_s : counts.join(u", "_s);
}

void PrintFinding(QString const& feed, LintFinding const& finding, Console const& console)
{
    LintRuleEntry const& entry = EntryOf(finding.rule);
    QString const place =
        u"%1:%2:%3: "_s.arg(feed, QString::number(finding.place.line), QString::number(finding.place.column));
    console.out.stream << Printable(place).toStdString()
                       << console.out.Styled(EmphasisOf(entry.severity), QLatin1String(SeverityName(entry.severity)))
                       << ": " << console.out.Styled(Emphasis::Bold, QLatin1String(entry.name)) << ": "
                       << Printable(finding.what).toStdString() << "; " << entry.mend << '\n';
}

/// A path or an address as the reference that SARIF requires, in which "#" and blanks are encoded.
QString ReferenceOf(QString const& feed)
{
    return feed.contains("://"_l) ? feed : QString::fromLatin1(QUrl::toPercentEncoding(feed, "/"));
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
            console.Print(u"    and in %1 %2"_s.arg(lines.size() == 1 ? u"line"_s : u"lines"_s, lines.join(u", "_s)));
        }
    }
    console.Print(u"%1: %2"_s.arg(feed, SummaryOf(findings)));
}

QJsonObject SarifOf(std::vector<std::pair<QString, std::vector<LintFinding>>> const& feeds)
{
    QJsonArray rules;
    for (LintRuleEntry const& entry : LintRules())
    {
        rules.append(QJsonObject{{u"id"_s, QLatin1String(entry.name)},
                                 {u"shortDescription"_s, QJsonObject{{u"text"_s, QLatin1String(entry.what)}}},
                                 {u"help"_s, QJsonObject{{u"text"_s, QLatin1String(entry.mend)}}}});
    }
    QJsonArray results;
    for (auto const& [feed, findings] : feeds)
    {
        for (LintFinding const& finding : findings)
        {
            LintRuleEntry const& entry = EntryOf(finding.rule);
            QJsonObject const region{{u"startLine"_s, std::max(finding.place.line, 1)},
                                     {u"startColumn"_s, std::max(finding.place.column, 1)}};
            QJsonObject const place{
                {u"physicalLocation"_s, QJsonObject{{u"artifactLocation"_s, QJsonObject{{u"uri"_s, ReferenceOf(feed)}}},
                                                    {u"region"_s, region}}}};
            results.append(QJsonObject{
                {u"ruleId"_s, QLatin1String(entry.name)},
                {u"level"_s, QLatin1String(SeverityName(entry.severity))},
                {u"message"_s, QJsonObject{{u"text"_s, finding.what + u"; "_s + QLatin1String(entry.mend)}}},
                {u"locations"_s, QJsonArray{place}}});
        }
    }
    QJsonObject const driver{{u"name"_s, u"pelnar-appcast lint"_s}, {u"rules"_s, rules}};
    return {
        {u"$schema"_s, u"https://json.schemastore.org/sarif-2.1.0.json"_s},
        {u"version"_s, u"2.1.0"_s},
        {u"runs"_s, QJsonArray{QJsonObject{{u"tool"_s, QJsonObject{{u"driver"_s, driver}}}, {u"results"_s, results}}}}};
}

void PrintFindings(QString const& feed, std::vector<LintFinding> const& findings, Console const& console)
{
    for (LintFinding const& finding : findings)
    {
        PrintFinding(feed, finding, console);
    }
    console.Print(u"%1: %2"_s.arg(feed, SummaryOf(findings)));
}

QJsonObject JsonOf(QString const& feed, std::vector<LintFinding> const& findings)
{
    QJsonArray list;
    for (LintFinding const& finding : findings)
    {
        LintRuleEntry const& entry = EntryOf(finding.rule);
        list.append(QJsonObject{
            {u"rule"_s, QLatin1String(entry.name)},
            {u"severity"_s, QLatin1String(SeverityName(entry.severity))},
            {u"line"_s, finding.place.line},
            {u"column"_s, finding.place.column},
            {u"what"_s, finding.what},
            {u"mend"_s, QLatin1String(entry.mend)},
        });
    }
    return {{u"feed"_s, feed},
            {u"errors"_s, int(Count(findings, Severity::Error))},
            {u"warnings"_s, int(Count(findings, Severity::Warning))},
            {u"notes"_s, int(Count(findings, Severity::Note))},
            {u"findings"_s, list}};
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
