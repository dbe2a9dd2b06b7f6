#include "Publisher/lint/LintRules.h"

namespace Pelnar::Publisher
{

char const* SeverityName(Severity severity)
{
    switch (severity)
    {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Note:
        return "note";
    }
    return "unknown";
}

std::vector<LintRuleEntry> const& LintRules()
{
#define PELNAR_LINT_RULE_ENTRY(rule, name, severity, what, mend) {LintRule::rule, name, Severity::severity, what, mend},
    static std::vector<LintRuleEntry> const entries = {PELNAR_LINT_RULES(PELNAR_LINT_RULE_ENTRY)};
#undef PELNAR_LINT_RULE_ENTRY
    return entries;
}

LintRuleEntry const& EntryOf(LintRule rule)
{
    return LintRules().at(std::size_t(rule));
}

QString LintRulesAsMarkdown()
{
    QString text =
        u"# The rules of `pelnar-appcast lint`\n\n"
        "`pelnar-appcast lint --rules` generates this page; do not edit it. An error means that clients refuse or\n"
        "lose something. A warning means that they may do something unintended. A note means that the feed works but\n"
        "could be better. The exit status is 1 if there is an error or a warning; with `--strict`, if there is any\n"
        "finding.\n\n"
        "| Rule | Severity | Finding | Correction |\n"
        "| --- | --- | --- | --- |\n"_s;
    for (LintRuleEntry const& entry : LintRules())
    {
        QString const what = QString::fromLatin1(entry.what);
        QString const mend = QString::fromLatin1(entry.mend).replace("<"_l, "\\<"_l);
        text += u"| `%1` | %2 | %3 | %4 |\n"_s.arg(QLatin1String(entry.name),
                                                   QLatin1String(SeverityName(entry.severity)), what, mend);
    }
    return text;
}

} // namespace Pelnar::Publisher
