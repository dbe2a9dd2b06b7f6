// NameRules.cpp: wrong names and namespaces that clients ignore, and characters that they replace.

#include "Engine/core/base/SafeText.h"
#include "Publisher/lint/LintSubject.h"

#include <algorithm>
#include <optional>
#include <set>
#include <vector>

namespace Pelnar::Publisher
{
namespace
{

char const* const PLAIN_ELEMENTS[] = {"item", "enclosure", "title", "description", "pubDate", "link", "channel"};
char const* const FEED_ELEMENTS[] = {
    "version", "shortVersionString", "minimumSystemVersion", "maximumSystemVersion", "releaseNotesLink", "deltas",
    "tags",    "criticalUpdate"};
char const* const PLAIN_ATTRIBUTES[] = {"url", "length", "type"};
char const* const FEED_ATTRIBUTES[] = {"version", "shortVersionString", "edSignature", "installationType",
                                       "os",      "deltaFrom"};
/// If an item has several of these elements, the first counts.
char const* const SINGLE_PLAIN_ELEMENTS[] = {"pubDate", "link"};
char const* const SINGLE_FEED_ELEMENTS[] = {"version", "shortVersionString", "minimumSystemVersion",
                                            "maximumSystemVersion"};

/// The names of the feed's namespace.
constexpr char const* NAMES[] = {"version",
                                 "shortVersionString",
                                 "minimumSystemVersion",
                                 "maximumSystemVersion",
                                 "releaseNotesLink",
                                 "fullReleaseNotesLink",
                                 "deltas",
                                 "deltaFrom",
                                 "deltaFromSparkleExecutableSize",
                                 "deltaFromSparkleLocales",
                                 "tags",
                                 "criticalUpdate",
                                 "channel",
                                 "phasedRolloutInterval",
                                 "informationalUpdate",
                                 "hardwareRequirements",
                                 "minimumAutoupdateVersion",
                                 "minimumUpdateVersion",
                                 "ignoreSkippedUpgradesBelowVersion",
                                 "belowVersion",
                                 "edSignature",
                                 "dsaSignature",
                                 "installationType",
                                 "installerArguments",
                                 "os",
                                 "format",
                                 "signature",
                                 "md5",
                                 "md5Sum"};

/// The number of letters that must be added, removed, changed or exchanged with a neighbour.
int Distance(QString const& a, QString const& b)
{
    std::vector<std::vector<int>> rows(std::size_t(a.size()) + 1, std::vector<int>(std::size_t(b.size()) + 1));
    for (int i = 0; i <= a.size(); ++i)
    {
        for (int j = 0; j <= b.size(); ++j)
        {
            int& best = rows[std::size_t(i)][std::size_t(j)];
            if (i == 0 || j == 0)
            {
                best = i + j;
                continue;
            }
            auto const at = [&](int up, int left) { return rows[std::size_t(i - up)][std::size_t(j - left)]; };
            best = std::min({at(1, 0) + 1, at(0, 1) + 1, at(1, 1) + (a.at(i - 1) == b.at(j - 1) ? 0 : 1)});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
            {
                best = std::min(best, at(2, 2) + 1);
            }
        }
    }
    return rows.back().back();
}

/// The known name that differs from \a local by one or two letters; empty if \a local is known or differs more.
std::optional<QString> MeantName(QString const& local)
{
    constexpr int FEWEST_LETTERS = 4;
    constexpr int MOST_LETTERS = 40;
    constexpr int MOST_ERRORS = 2;
    if (local.size() < FEWEST_LETTERS || local.size() > MOST_LETTERS)
    {
        return std::nullopt;
    }
    std::optional<QString> nearest;
    int least = MOST_ERRORS + 1;
    for (char const* const name : NAMES)
    {
        QString const known = QLatin1String(name);
        if (known.compare(local, Qt::CaseInsensitive) == 0)
        {
            return std::nullopt; // another rule reports the case
        }
        int const distance = known.size() < FEWEST_LETTERS ? least : Distance(local, known);
        if (distance < least && distance < known.size() / 2)
        {
            least = distance;
            nearest = known;
        }
    }
    return nearest;
}

template <std::size_t N>
char const* OtherCaseOf(QString const& name, char const* const (&known)[N])
{
    for (char const* each : known)
    {
        if (name.compare(QLatin1String(each), Qt::CaseInsensitive) == 0)
        {
            return name == QLatin1String(each) ? nullptr : each;
        }
    }
    return nullptr;
}

template <std::size_t N>
bool IsOneOf(QString const& name, char const* const (&known)[N])
{
    return std::any_of(std::begin(known), std::end(known),
                       [&name](char const* each)
                       { return name.compare(QLatin1String(each), Qt::CaseInsensitive) == 0; });
}

class NameCheck
{
public:
    explicit NameCheck(LintFindings& findings) : m_findings(findings) {}

    void Visit(XmlElement const& element, bool isInItem)
    {
        CheckName(element.name, element.place, FEED_ELEMENTS, PLAIN_ELEMENTS, isInItem ? u"<%1>"_s : QString());
        for (XmlAttribute const& attribute : element.attributes)
        {
            if (element.name.IsPlain("enclosure"))
            {
                CheckName(attribute.name, element.place, FEED_ATTRIBUTES, PLAIN_ATTRIBUTES, u"the attribute %1"_s);
            }
        }
        bool const isItem = element.name.IsPlain("item");
        if (isItem)
        {
            CheckRepetitions(element);
        }
        // Another rule checks the elements inside a description.
        if (!element.name.IsPlain("description"))
        {
            for (XmlElement const& child : element.children)
            {
                Visit(child, isInItem || isItem);
            }
        }
    }

private:
    /// \a form: how a name is shown that should be in the feed's namespace; empty where it may have no namespace.
    template <std::size_t F, std::size_t P>
    void CheckName(XmlName const& name, TextPlace place, char const* const (&feeds)[F], char const* const (&plain)[P],
                   QString const& form)
    {
        bool const isFeeds = IsFeedNamespaceUri(name.namespaceUri);
        bool const isPlain = name.namespaceUri.isEmpty();
        char const* const other = isFeeds   ? OtherCaseOf(name.local, feeds)
                                  : isPlain ? OtherCaseOf(name.local, plain)
                                            : nullptr;
        std::optional<QString> const meant = isFeeds && !other ? MeantName(name.local) : std::nullopt;
        if (other)
        {
            m_findings.Add(LintRule::NameCase, place,
                           u"clients read %2, but not %1"_s.arg(name.qualified, QLatin1String(other)));
        }
        else if (meant)
        {
            m_findings.Add(LintRule::NameMisspelt, place,
                           u"clients do not read %1; %2 may be meant"_s.arg(name.qualified, *meant));
        }
        else if (isPlain && !form.isEmpty() && IsOneOf(name.local, feeds))
        {
            m_findings.Add(LintRule::NameWithoutNamespace, place,
                           form.arg(name.qualified) + u" is not in the feed's namespace"_s);
        }
    }

    void CheckRepetitions(XmlElement const& item)
    {
        std::set<QString> met;
        std::set<QString> platforms;
        for (XmlElement const& child : item.children)
        {
            bool const isSingle =
                (child.name.namespaceUri.isEmpty() && IsOneOf(child.name.local, SINGLE_PLAIN_ELEMENTS)) ||
                (IsFeedNamespaceUri(child.name.namespaceUri) && IsOneOf(child.name.local, SINGLE_FEED_ELEMENTS));
            if (isSingle && !met.insert(child.name.local).second)
            {
                m_findings.Add(LintRule::RepeatedElement, child.place,
                               u"another <%1> of the item"_s.arg(child.name.qualified));
            }
            QString const platform = child.FeedAttribute("os").value_or(QString()).toLower() + u' ' +
                                     child.OwnAttribute("machine").value_or(QString());
            if (child.name.IsPlain("enclosure") && !platforms.insert(platform).second)
            {
                m_findings.Add(LintRule::RepeatedEnclosure, child.place,
                               u"another enclosure of the item for the same platform"_s);
            }
        }
    }

    LintFindings& m_findings;
};

void CheckText(QString const& text, QString const& name, TextPlace place, LintFindings& findings)
{
    for (int index = 0; index < text.size();)
    {
        Engine::CodePoint const character = Engine::CodePointAt(text.utf16(), index, text.size());
        bool const isBlank = character.value == '\t' || character.value == '\n' || character.value == '\r';
        if (!isBlank && Engine::IsHidden(character.value))
        {
            findings.Add(
                LintRule::ControlCharacter, place,
                u"%1 has the character U+%2"_s.arg(name, QString::number(character.value, 16).rightJustified(4, u'0')));
            return;
        }
        index += character.units;
    }
}

void VisitTexts(XmlElement const& element, LintFindings& findings)
{
    CheckText(element.text, u"<%1>"_s.arg(element.name.qualified), element.place, findings);
    for (XmlAttribute const& attribute : element.attributes)
    {
        CheckText(attribute.value, attribute.name.qualified, element.place, findings);
    }
    for (XmlElement const& child : element.children)
    {
        VisitTexts(child, findings);
    }
}

} // namespace

void CheckNames(LintSubject const& subject, LintFindings& findings)
{
    NameCheck check(findings);
    for (XmlElement const& element : subject.root.children)
    {
        check.Visit(element, false);
    }
}

void CheckTexts(LintSubject const& subject, LintFindings& findings)
{
    for (XmlElement const* item : subject.itemElements)
    {
        VisitTexts(*item, findings);
    }
}

} // namespace Pelnar::Publisher
