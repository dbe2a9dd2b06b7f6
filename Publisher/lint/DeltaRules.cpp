// DeltaRules.cpp: deltas that no client takes, and deltas whose order is undefined.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/choice/ClientInstallation.h"
#include "Publisher/lint/LintSubject.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::IsOlderVersion;
using App::Session::VersionFromStringNoexcept;

bool IsSame(QString const& textA, QString const& textB)
{
    Core::Version const version = WholeVersion(textA);
    return version.IsValid() && version == WholeVersion(textB);
}

/// The parser omits such a delta.
void CheckStarts(XmlElement const& item, LintFindings& findings)
{
    for (XmlElement const& deltas : item.children)
    {
        if (!deltas.name.IsFeeds("deltas"))
        {
            continue;
        }
        for (XmlElement const& enclosure : deltas.children)
        {
            if (enclosure.name.IsPlain("enclosure") && !enclosure.FeedAttribute("deltaFrom"))
            {
                findings.Add(LintRule::DeltaFromMissing, enclosure.place, u"the delta has no sparkle:deltaFrom"_s);
            }
        }
    }
}

void CheckDelta(LintDownload const& delta, LintItem const& item, std::vector<LintItem> const& items,
                LintFindings& findings)
{
    QString const& text = delta.item->deltaFrom;
    Core::Version const from = VersionFromStringNoexcept(text);
    if (!from.IsValid())
    {
        findings.Add(LintRule::DeltaFromUnreadable, delta.Place(), u"sparkle:deltaFrom is \"%1\""_s.arg(text));
        return;
    }
    Core::Version const version = VersionFromStringNoexcept(delta.item->versionString);
    QString const& itemVersion = item.full.item->versionString;
    if (OrderOfTexts(delta.item->versionString, itemVersion) != 0)
    {
        findings.Add(
            LintRule::DeltaVersion, delta.Place(),
            u"it makes version %1, but its item has the version %2"_s.arg(delta.item->versionString, itemVersion));
    }
    if (version.IsValid() && !IsOlderVersion(from, version))
    {
        findings.Add(LintRule::DeltaFromNotOlder, delta.Place(),
                     u"it goes from %1 to %2"_s.arg(text, delta.item->versionString));
    }
    else if (std::none_of(items.begin(), items.end(),
                          [&](LintItem const& each) { return IsSame(each.full.item->versionString, text); }))
    {
        findings.Add(LintRule::DeltaBaseMissing, delta.Place(), u"no item has the version %1"_s.arg(text));
    }
    if (item.full.item->contentLength != 0 && delta.item->contentLength >= item.full.item->contentLength)
    {
        findings.Add(
            LintRule::DeltaLargerThanFull, delta.Place(),
            u"%1 bytes, the full download has %2"_s.arg(delta.item->contentLength).arg(item.full.item->contentLength));
    }
}

void CheckRepetitions(LintItem const& item, LintFindings& findings)
{
    for (auto later = item.deltas.begin(); later != item.deltas.end(); ++later)
    {
        auto const earlier = std::find_if(item.deltas.begin(), later,
                                          [&](LintDownload const& each)
                                          { return IsSame(each.item->deltaFrom, later->item->deltaFrom); });
        if (earlier != later)
        {
            findings.Add(LintRule::DeltaFromRepeated, later->Place(),
                         u"it starts from %1, as the delta in line %2 does"_s.arg(
                             later->item->deltaFrom, QString::number(earlier->Place().line)));
        }
    }
}

} // namespace

void CheckDeltas(LintSubject const& subject, LintFindings& findings)
{
    for (XmlElement const* item : subject.itemElements)
    {
        CheckStarts(*item, findings);
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            for (LintDownload const& delta : item.deltas)
            {
                CheckDelta(delta, item, platform.items, findings);
            }
            CheckRepetitions(item, findings);
        }
    }
}

} // namespace Pelnar::Publisher
