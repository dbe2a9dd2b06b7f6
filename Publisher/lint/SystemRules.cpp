// SystemRules.cpp: the systems and platforms of items.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/lint/LintSubject.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::VersionFromStringNoexcept;

/// This update checker does not run on Windows, but clients of other families read the same feeds.
char const* const PLATFORMS[] = {"macos", "linux", "windows"};

void CheckBounds(LintItem const& item, LintFindings& findings)
{
    QString const& minimum = item.full.item->minimumSystemVersion;
    QString const& maximum = item.full.item->maximumSystemVersion;
    TextPlace const place = item.full.element->place;
    for (auto const& [name, text] : {std::pair("minimum", minimum), std::pair("maximum", maximum)})
    {
        if (!text.isEmpty() && !VersionFromStringNoexcept(text).IsValid())
        {
            findings.Add(
                LintRule::SystemBoundUnreadable, place,
                u"the %1 system version of %2 is \"%3\""_s.arg(QLatin1String(name), NameOf(*item.full.item), text));
        }
    }
    Core::Version const lowest = VersionFromStringNoexcept(minimum);
    Core::Version const highest = VersionFromStringNoexcept(maximum);
    if (lowest.IsValid() && highest.IsValid() && App::Session::IsOlderVersion(highest, lowest))
    {
        findings.Add(LintRule::SystemBoundsCrossed, place,
                     u"%1 requires %2 or later and %3 or earlier"_s.arg(NameOf(*item.full.item), minimum, maximum));
    }
}

void CheckPlatformName(XmlElement const& enclosure, LintFindings& findings)
{
    std::optional<QString> const system = enclosure.FeedAttribute("os");
    bool const isKnown =
        !system ||
        std::any_of(std::begin(PLATFORMS), std::end(PLATFORMS),
                    [&](char const* each) { return system->compare(QLatin1String(each), Qt::CaseInsensitive) == 0; });
    if (!isKnown)
    {
        findings.Add(LintRule::PlatformUnknown, enclosure.place, u"sparkle:os is \"%1\""_s.arg(*system));
    }
}

void CheckOrder(std::vector<XmlElement const*> const& items, LintFindings& findings)
{
    XmlElement const* marked = nullptr;
    for (XmlElement const* item : items)
    {
        XmlElement const* const enclosure = item->PlainChild("enclosure");
        if (!enclosure)
        {
            continue;
        }
        if (enclosure->FeedAttribute("os"))
        {
            marked = marked ? marked : enclosure;
        }
        else if (marked)
        {
            findings.Add(LintRule::PlatformFirst, marked->place,
                         u"an item for %1 comes before the one for all platforms in line %2"_s.arg(
                             *marked->FeedAttribute("os"), QString::number(enclosure->place.line)));
            return;
        }
    }
}

} // namespace

void CheckSystems(LintSubject const& subject, LintFindings& findings)
{
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            CheckBounds(item, findings);
        }
    }
    for (XmlElement const* item : subject.itemElements)
    {
        for (XmlElement const& child : item->children)
        {
            if (child.name.IsPlain("enclosure"))
            {
                CheckPlatformName(child, findings);
            }
        }
    }
    CheckOrder(subject.itemElements, findings);
}

} // namespace Pelnar::Publisher
