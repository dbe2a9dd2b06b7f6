// NotesRules.cpp: release notes that clients cannot lay out, duplicate notes, and the addresses of notes.

#include "Engine/core/fetch/FetchRules.h"
#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "Publisher/files/FaultText.h"
#include "Publisher/lint/LintSubject.h"

#include <set>

namespace Pelnar::Publisher
{
namespace
{

using Engine::ReleaseNotesRefusal;

void CheckDescription(LintItem const& item, LintFindings& findings)
{
    Engine::FeedItem const& parsed = *item.full.item;
    ReleaseNotesRefusal const refusal =
        Engine::FilterReleaseNotes(parsed.description.toStdString(),
                                   Engine::ReleaseNotesFormatFromText(parsed.descriptionFormat.toStdString()))
            .refusal;
    if (refusal != ReleaseNotesRefusal::None)
    {
        XmlElement const* const notes = item.full.element->PlainChild("description");
        findings.Add(LintRule::NotesOverLimits, notes ? notes->place : item.full.element->place,
                     u"the notes of %1: %2"_s.arg(NameOf(parsed), ReasonOf(refusal)));
    }
}

void CheckLink(LintItem const& item, LintFindings& findings)
{
    QUrl const& url = item.full.item->releaseNotesUrl;
    bool const isLocal = url.isLocalFile(); // a relative address in a feed that is not published yet, or reported by
                                            // another rule
    if (!url.isEmpty() && !Engine::IsHttps(url) && !isLocal && !Engine::IsLoopback(url))
    {
        XmlElement const* const link = item.full.element->FeedChild("releaseNotesLink");
        findings.Add(LintRule::NotesInsecure, link ? link->place : item.full.element->place,
                     url.toString(QUrl::FullyEncoded));
    }
}

/// If two notes have the same language, clients take the first.
void CheckLanguages(XmlElement const& item, LintFindings& findings)
{
    std::set<QString> met;
    for (XmlElement const& child : item.children)
    {
        if (!child.name.IsPlain("description") && !child.name.IsFeeds("releaseNotesLink"))
        {
            continue;
        }
        QString language;
        for (XmlAttribute const& attribute : child.attributes)
        {
            language = attribute.name.qualified == "xml:lang"_l ? attribute.value.trimmed() : language;
        }
        if (!met.insert(child.name.local + u' ' + language.toLower()).second)
        {
            findings.Add(LintRule::NotesRepeated, child.place,
                         language.isEmpty()
                             ? u"another <%1> without a language"_s.arg(child.name.qualified)
                             : u"another <%1> of the language \"%2\""_s.arg(child.name.qualified, language));
        }
    }
}

} // namespace

void CheckNotes(LintSubject const& subject, LintFindings& findings)
{
    for (XmlElement const* item : subject.itemElements)
    {
        CheckLanguages(*item, findings);
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            CheckDescription(item, findings);
            CheckLink(item, findings);
        }
    }
}

} // namespace Pelnar::Publisher
