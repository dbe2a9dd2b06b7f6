// OfferRules.cpp: items that are offered to the wrong clients, and items that the clients cannot install.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/Console.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/lint/LintSubject.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::IsOlderVersion;
using App::Session::VersionFromStringNoexcept;

/// Elements that restrict who gets an item, but that clients do not know.
void CheckPolicies(XmlElement const& item, LintFindings& findings)
{
    for (XmlElement const& child : item.children)
    {
        if (child.name.IsFeeds("ignoreSkippedUpgradesBelowVersion"))
        {
            QString const text = child.text.trimmed();
            findings.Add(LintRule::PolicyIgnored, child.place,
                         text.isEmpty() ? u"<%1>"_s.arg(child.name.qualified)
                                        : u"<%1> is \"%2\""_s.arg(child.name.qualified, text));
        }
    }
}

/// Elements that restrict who gets an item.
constexpr char const* BOUNDS[] = {"channel", "hardwareRequirements", "minimumUpdateVersion", "minimumSystemVersion",
                                  "maximumSystemVersion"};

/// The consequence of an empty \a child of \a parent. Empty if \a child is not a restriction.
QString EffectOfEmpty(XmlElement const& parent, XmlElement const& child)
{
    bool const isOffer =
        std::any_of(std::begin(BOUNDS), std::end(BOUNDS), [&](char const* name) { return child.name.IsFeeds(name); });
    bool const isVersion = child.name.IsFeeds("minimumAutoupdateVersion") || child.name.IsFeeds("belowVersion") ||
                           (child.name.IsFeeds("version") && parent.name.IsFeeds("informationalUpdate"));
    return isOffer ? u"so everybody gets the item"_s : isVersion ? u"and has no effect"_s : QString();
}

QString EffectOfEmpty(XmlElement const& element, XmlName const& attribute)
{
    bool const isMachine = attribute.IsOwn("machine");
    bool const isVersion = element.name.IsFeeds("criticalUpdate") && attribute.IsFeeds("version");
    return isMachine ? u"so everybody gets the item"_s : isVersion ? u"and has no effect"_s : QString();
}

/// Empty restrictions in \a parent, probably from an unset variable of a script.
void CheckEmptyPolicies(XmlElement const& parent, LintFindings& findings)
{
    for (XmlElement const& child : parent.children)
    {
        auto const check = [&](QString const& text, QString const& name, QString const& effect)
        {
            if (text.trimmed().isEmpty() && !effect.isEmpty())
            {
                findings.Add(LintRule::PolicyUnreadable, child.place, u"%1 is empty, %2"_s.arg(name, effect));
            }
        };
        QString const name = u'<' + child.name.qualified + u'>';
        check(child.text, name, EffectOfEmpty(parent, child));
        for (XmlAttribute const& attribute : child.attributes)
        {
            check(attribute.value, u"%1 of %2"_s.arg(attribute.name.qualified, name),
                  EffectOfEmpty(child, attribute.name));
        }
        CheckEmptyPolicies(child, findings);
    }
}

bool IsVersion(QString const& text)
{
    return text.isEmpty() || VersionFromStringNoexcept(text).IsValid();
}

bool IsMachine(QString const& name)
{
    std::vector<std::string> names = Engine::MachineNames();
    names.insert(names.end(), {"arm64", "amd64"});
    return std::find(names.begin(), names.end(), name.toLower().toStdString()) != names.end();
}

/// Checks each single value in \a item that restricts its clients.
void CheckPolicyValues(LintItem const& lintItem, LintFindings& findings)
{
    CheckEmptyPolicies(*lintItem.full.element, findings);
    Engine::FeedItem const& item = *lintItem.full.item;
    Engine::ItemPolicy const& policy = item.policy;
    TextPlace const place = lintItem.full.element->place;
    auto const add = [&](QString const& what) { findings.Add(LintRule::PolicyUnreadable, place, what); };
    if (!policy.channel.isEmpty() && !Engine::IsChannelName(policy.channel))
    {
        add(u"no application can enable the channel \"%1\""_s.arg(policy.channel));
    }
    for (QString const& machine : policy.machines + policy.hardware)
    {
        if (!IsMachine(machine))
        {
            add(u"no client runs on the machine \"%1\""_s.arg(machine));
        }
    }
    for (QString const& version : QStringList{policy.criticalBelow, policy.informationalBelow,
                                              policy.minimumUpdateVersion, policy.minimumAutoupdateVersion} +
                                      policy.informationalFor)
    {
        if (!IsVersion(version))
        {
            add(u"\"%1\" is not a version and has no effect"_s.arg(version));
        }
    }
}

void CheckStaging(LintItem const& lintItem, LintFindings& findings)
{
    Engine::FeedItem const& item = *lintItem.full.item;
    for (XmlElement const& child : lintItem.full.element->children)
    {
        if (child.name.IsFeeds("phasedRolloutInterval") && item.policy.rolloutSeconds == 0)
        {
            findings.Add(LintRule::PolicyUnreadable, child.place,
                         u"\"%1\" is not a number of seconds from 1 to ten years"_s.arg(child.text.trimmed()));
        }
    }
    QDateTime const date = Engine::FeedTime(item.dateString);
    bool const isInFuture = date.isValid() && date > QDateTime::currentDateTimeUtc();
    if (item.policy.rolloutSeconds != 0 && (!date.isValid() || isInFuture))
    {
        findings.Add(isInFuture ? LintRule::StagedInFuture : LintRule::StagedWithoutDate, lintItem.full.element->place,
                     u"the date of %1 is \"%2\""_s.arg(NameOf(item), item.dateString));
    }
    if (item.policy.isInformational && item.infoUrl.isEmpty() && item.releaseNotesUrl.isEmpty())
    {
        findings.Add(LintRule::InformationalWithoutPage, lintItem.full.element->place, NameOf(item));
    }
}

/// Packages of other systems and formats that are offered to clients for Linux.
void CheckPackage(LintItem const& item, LintFindings& findings)
{
    constexpr char const* ENDINGS[] = {".dmg", ".pkg", ".mpkg", ".exe",      ".msi", ".msix",    ".apk", ".ipa",
                                       ".deb", ".rpm", ".snap", ".appimage", ".run", ".flatpak", ".7z",  ".rar"};
    QString const name = item.full.item->fileUrl.fileName();
    if (EndsWithOneOf(name, ENDINGS))
    {
        findings.Add(LintRule::ForeignPackage, item.full.Place(), name);
    }
}

/// \a machine: only items for this machine lead from one version to another.
void CheckTrust(std::vector<LintItem> items, QString const& machine, LintFindings& findings)
{
    items.erase(std::remove_if(items.begin(), items.end(),
                               [&machine](LintItem const& item)
                               { return !Engine::SuitsMachine(item.full.item->policy.machines, machine); }),
                items.end());
    std::vector<Engine::KeyedVersion> all;
    for (LintItem const& item : items)
    {
        all.push_back(Engine::KeysOf(*item.full.item));
    }
    std::vector<QStringList> stranded(items.size());
    for (Engine::KeyedVersion const& older : all)
    {
        std::optional<std::vector<Engine::KeyedVersion>> stones;
        for (std::size_t i = 0; i < items.size(); ++i)
        {
            Engine::FeedItem const& newer = *items[i].full.item;
            if (Engine::SignatureFor(newer, older.trusted) || OrderOfTexts(older.version, newer.versionString) >= 0)
            {
                continue;
            }
            stones = stones ? stones : SteppingStonesFrom(older, all, OrderOfTexts);
            if (!IsReached(all[i], *stones, OrderOfTexts))
            {
                stranded[i].append(older.version);
            }
        }
    }
    for (std::size_t i = 0; i < items.size(); ++i)
    {
        if (!stranded[i].isEmpty())
        {
            findings.Add(
                LintRule::KeyNotTrusted, items[i].full.Place(),
                u"%1 is signed by the key %2. These versions do not trust it, and no version between brings it: %3"_s
                    .arg(NameOf(*items[i].full.item), all[i].signers.join(u" and "_s), stranded[i].join(u", "_s)));
        }
    }
}

/// The machines that \a items name; one empty name, for any machine, if they name none.
QStringList MachinesOf(std::vector<LintItem> const& items)
{
    QStringList machines;
    for (LintItem const& item : items)
    {
        machines += item.full.item->policy.machines;
    }
    machines.removeDuplicates();
    return machines.isEmpty() ? QStringList{QString()} : machines;
}

/// Reported once: a feed with several lines of versions may do this deliberately.
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
                         u"%1 has the date %2, but the older %3 has %4"_s.arg(
                             newer.item->full.item->versionString, newer.date.toString(Qt::ISODate),
                             older.item->full.item->versionString, older.date.toString(Qt::ISODate)));
            return;
        }
    }
}

} // namespace

void CheckOffers(LintSubject const& subject, LintFindings& findings)
{
    for (XmlElement const* item : subject.itemElements)
    {
        CheckPolicies(*item, findings);
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        for (QString const& machine : MachinesOf(platform.items))
        {
            CheckTrust(platform.items, machine, findings);
        }
        CheckDates(platform.items, findings);
        for (LintItem const& item : platform.items)
        {
            CheckPolicyValues(item, findings);
            CheckStaging(item, findings);
            if (platform.system == Engine::FeedPlatform::Linux)
            {
                CheckPackage(item, findings);
            }
        }
    }
}

} // namespace Pelnar::Publisher
