// VersionRules.cpp: versions that clients cannot read or tell apart, and items whose order is undefined.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/lint/LintSubject.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::IsOlderVersion;
using App::Session::IsSameVersion;
using App::Session::VersionFromStringNoexcept;

/// True for decimal components separated by dots, one of which is too large.
bool Overflows(QString const& text)
{
    QStringList const components = text.split(u'.');
    bool isGreat = false;
    for (QString const& component : components)
    {
        bool const isDecimal =
            !component.isEmpty() &&
            std::all_of(component.begin(), component.end(), [](QChar each) { return each >= u'0' && each <= u'9'; });
        if (!isDecimal)
        {
            return false;
        }
        isGreat = isGreat || !VersionFromStringNoexcept(component).IsValid();
    }
    return isGreat && components.size() <= Core::Version::COMPONENT_COUNT;
}

/// The item's own version, which the enclosure's replaces.
void CheckVersionElement(LintDownload const& download, LintFindings& findings)
{
    QString const& text = download.item->versionString;
    XmlElement const* const own = download.element->FeedChild("version");
    if (!download.item->isDelta && own && OrderOfTexts(own->text.trimmed(), text) != 0)
    {
        findings.Add(LintRule::VersionContradiction, own->place,
                     u"%1, but the enclosure says %2"_s.arg(own->text.trimmed(), text));
    }
}

void CheckVersion(LintDownload const& download, LintFindings& findings)
{
    QString const& text = download.item->versionString;
    if (text.isEmpty())
    {
        findings.Add(LintRule::VersionMissing, download.Place(), NameOf(*download.item) + u" has no version"_s);
        return;
    }
    if (!VersionFromStringNoexcept(text).IsValid())
    {
        findings.Add(Overflows(text) ? LintRule::VersionOverflow : LintRule::VersionUnreadable, download.Place(),
                     u"the version is \"%1\""_s.arg(text));
        return;
    }
    CheckVersionElement(download, findings);
    bool const isWritten =
        download.element->FeedChild("version") || (download.enclosure && download.enclosure->FeedAttribute("version"));
    if (!download.item->isDelta && !isWritten)
    {
        findings.Add(LintRule::VersionFromFileName, download.Place(),
                     u"%1 is only in %2"_s.arg(text, download.item->fileUrl.fileName()));
    }
}

void CheckSpelling(std::vector<LintItem> const& items, LintFindings& findings)
{
    for (auto later = items.begin(); later != items.end(); ++later)
    {
        QString const& text = later->full.item->versionString;
        Core::Version const version = VersionFromStringNoexcept(text);
        for (auto earlier = items.begin(); version.IsValid() && earlier != later; ++earlier)
        {
            QString const& other = earlier->full.item->versionString;
            Core::Version const otherVersion = VersionFromStringNoexcept(other);
            if (other != text && otherVersion.IsValid() && IsSameVersion(version, otherVersion))
            {
                findings.Add(LintRule::VersionSpelling, later->full.Place(),
                             u"%1 is the same version as %2 in line %3"_s.arg(
                                 text, other, QString::number(earlier->full.Place().line)));
                break;
            }
        }
    }
}

void CheckMixture(std::vector<LintItem> const& items, LintFindings& findings)
{
    LintItem const* single = nullptr;
    LintItem const* dotted = nullptr;
    for (LintItem const& item : items)
    {
        Core::Version const version = VersionFromStringNoexcept(item.full.item->versionString);
        if (!version.IsValid())
        {
            continue;
        }
        LintItem const*& first = version.Minor() == Core::Version::ABSENT ? single : dotted;
        first = first ? first : &item;
        if (single && dotted)
        {
            findings.Add(LintRule::VersionMixed, item.full.Place(),
                         u"%1 beside %2"_s.arg(single->full.item->versionString, dotted->full.item->versionString));
            return;
        }
    }
}

/// True if some system takes both.
bool ShareSystem(Engine::FeedItem const& a, Engine::FeedItem const& b)
{
    auto const isBelow = [](QString const& maximum, QString const& minimum)
    {
        Core::Version const highest = VersionFromStringNoexcept(maximum);
        Core::Version const lowest = VersionFromStringNoexcept(minimum);
        return highest.IsValid() && lowest.IsValid() && IsOlderVersion(highest, lowest);
    };
    return !isBelow(a.maximumSystemVersion, b.minimumSystemVersion) &&
           !isBelow(b.maximumSystemVersion, a.minimumSystemVersion);
}

/// True if some machine takes both and neither is withdrawn.
bool ShareClients(Engine::FeedItem const& a, Engine::FeedItem const& b)
{
    return Engine::ShareMachine(a.policy.machines, b.policy.machines) && !a.policy.isWithdrawn && !b.policy.isWithdrawn;
}

void CheckPriorities(std::vector<LintItem> const& items, LintFindings& findings)
{
    for (auto later = items.begin(); later != items.end(); ++later)
    {
        Engine::FeedItem const& item = *later->full.item;
        Core::Version const version = VersionFromStringNoexcept(item.versionString);
        for (auto earlier = items.begin(); version.IsValid() && earlier != later; ++earlier)
        {
            Engine::FeedItem const& other = *earlier->full.item;
            Core::Version const otherVersion = VersionFromStringNoexcept(other.versionString);
            if (otherVersion.IsValid() && IsSameVersion(version, otherVersion) &&
                UpdateTypeOf(item) == UpdateTypeOf(other) && ShareSystem(item, other) && ShareClients(item, other))
            {
                findings.Add(LintRule::SamePriority, later->full.Place(),
                             u"%1 has the version and the kind of the item in line %2"_s.arg(
                                 NameOf(item), QString::number(earlier->full.Place().line)));
                break;
            }
        }
    }
}

} // namespace

void CheckVersions(LintSubject const& subject, LintFindings& findings)
{
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            CheckVersion(item.full, findings);
            for (LintDownload const& delta : item.deltas)
            {
                if (delta.enclosure->FeedAttribute("version"))
                {
                    CheckVersion(delta, findings);
                }
            }
        }
        CheckSpelling(platform.items, findings);
        CheckMixture(platform.items, findings);
        CheckPriorities(platform.items, findings);
    }
}

} // namespace Pelnar::Publisher
