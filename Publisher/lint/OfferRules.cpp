// OfferRules.cpp: to whom items are offered that were meant for others, and who cannot take what is offered.

#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionOperators_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionText_p.h"
#include "Engine/core/feed/ReleasePolicy.h"
#include "Publisher/lint/LintSubject.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::IsOlderVersion;
using App::Session::VersionFromStringNoexcept;

/// Elements that say who gets an item, and that clients do not know.
constexpr char const* POLICIES[] = {"channel",
                                    "hardwareRequirements",
                                    "phasedRolloutInterval",
                                    "informationalUpdate",
                                    "minimumAutoupdateVersion",
                                    "minimumUpdateVersion",
                                    "ignoreSkippedUpgradesBelowVersion"};

void CheckPolicies(LintElement const& item, LintFindings& findings)
{
    for (LintElement const& child : item.children)
    {
        bool const isPolicy = std::any_of(std::begin(POLICIES), std::end(POLICIES),
                                          [&](char const* name) { return child.name.IsFeeds(name); });
        if (isPolicy)
        {
            QString const text = child.text.trimmed();
            findings.Add(LintRule::PolicyIgnored, child.place,
                         text.isEmpty() ? QStringLiteral("<%1>").arg(child.name.qualified)
                                        : QStringLiteral("<%1> is \"%2\"").arg(child.name.qualified, text));
        }
    }
}

/// Packages of other systems that clients for Linux are offered.
void CheckPackage(LintItem const& item, LintFindings& findings)
{
    constexpr char const* ENDINGS[] = {".dmg", ".pkg", ".mpkg", ".exe", ".msi", ".msix", ".apk", ".ipa"};
    QString const name = item.full.item->fileUrl.fileName();
    bool const isForeign =
        std::any_of(std::begin(ENDINGS), std::end(ENDINGS),
                    [&](char const* ending) { return name.endsWith(QLatin1String(ending), Qt::CaseInsensitive); });
    if (isForeign)
    {
        findings.Add(LintRule::ForeignPackage, item.full.Place(), name);
    }
}

bool IsOffered(Engine::FeedItem const& newer, Engine::FeedItem const& older)
{
    Core::Version const a = VersionFromStringNoexcept(older.versionString);
    Core::Version const b = VersionFromStringNoexcept(newer.versionString);
    return a.IsValid() && b.IsValid() && IsOlderVersion(a, b);
}

void CheckTrust(std::vector<LintItem> const& items, LintFindings& findings)
{
    for (LintItem const& item : items)
    {
        Engine::FeedItem const& newer = *item.full.item;
        QStringList stranded;
        for (LintItem const& other : items)
        {
            Engine::FeedItem const& older = *other.full.item;
            bool const isKnown = !newer.signerKey.isEmpty() && !older.trustedKeys.isEmpty();
            if (isKnown && !older.trustedKeys.contains(newer.signerKey) && IsOffered(newer, older))
            {
                stranded.append(older.versionString);
            }
        }
        if (!stranded.isEmpty())
        {
            findings.Add(LintRule::KeyNotTrusted, item.full.Place(),
                         QStringLiteral("%1 is signed by the key %2, which these do not trust: %3")
                             .arg(NameOf(newer), newer.signerKey, stranded.join(QStringLiteral(", "))));
        }
    }
}

/// Told once: in a feed with several lines of versions it may be meant.
void CheckDates(std::vector<LintItem> const& items, LintFindings& findings)
{
    struct Dated
    {
        LintItem const* item;
        Core::Version version;
        QDateTime date;
    };
    std::vector<Dated> dated;
    for (LintItem const& item : items)
    {
        Dated const each{&item, VersionFromStringNoexcept(item.full.item->versionString),
                         Engine::FeedTime(item.full.item->dateString)};
        if (each.version.IsValid() && each.date.isValid())
        {
            dated.push_back(each);
        }
    }
    std::stable_sort(dated.begin(), dated.end(),
                     [](Dated const& a, Dated const& b) { return IsOlderVersion(a.version, b.version); });
    for (std::size_t i = 1; i < dated.size(); ++i)
    {
        Dated const& older = dated[i - 1];
        Dated const& newer = dated[i];
        if (newer.date < older.date && IsOlderVersion(older.version, newer.version))
        {
            findings.Add(LintRule::DateOrder, newer.item->full.element->place,
                         QStringLiteral("%1 is of %2, and the older %3 of %4")
                             .arg(newer.item->full.item->versionString, newer.date.toString(Qt::ISODate),
                                  older.item->full.item->versionString, older.date.toString(Qt::ISODate)));
            return;
        }
    }
}

} // namespace

void CheckOffers(LintSubject const& subject, LintFindings& findings)
{
    for (LintElement const* item : subject.itemElements)
    {
        CheckPolicies(*item, findings);
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        CheckTrust(platform.items, findings);
        CheckDates(platform.items, findings);
        for (LintItem const& item : platform.items)
        {
            if (platform.system == Engine::FeedPlatform::Linux)
            {
                CheckPackage(item, findings);
            }
        }
    }
}

} // namespace Pelnar::Publisher
