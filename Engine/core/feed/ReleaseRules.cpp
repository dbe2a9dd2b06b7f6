// ReleaseRules.cpp: for which installations an item of a feed is meant.
#include "Engine/core/feed/ReleaseRules.h"

#include "Engine/core/faults/EngineError.h"

#include <QSysInfo>

#include <glog/logging.h>

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

/// One spelling for each machine.
QString MachineOf(QString const& word)
{
    static std::pair<QLatin1String, QLatin1String> const OTHER_NAMES[] = {
        {QLatin1String("arm64"), QLatin1String("aarch64")},
        {QLatin1String("amd64"), QLatin1String("x86_64")},
    };
    QString const machine = word.toLower();
    for (auto const& [other, name] : OTHER_NAMES)
    {
        if (machine == other)
        {
            return name;
        }
    }
    return machine;
}

bool IsOtherChannel(FeedItem const& item, Installation const& installation)
{
    return !item.policy.channel.isEmpty() && !installation.channels.contains(item.policy.channel);
}

/// True if both versions are known, and the installed one is older than \a bound.
bool IsBefore(QString const& bound, Installation const& installation, VersionOrder const& order)
{
    return !bound.isEmpty() && !installation.version.isEmpty() && order(installation.version, bound) < 0;
}

bool IsToWait(FeedItem const& item, Installation const& installation, VersionOrder const& order)
{
    if (!installation.rolloutGroup || item.policy.rolloutSeconds == 0)
    {
        return false;
    }
    QDateTime const time = RolloutTime(item, installation.rolloutGroup(item.versionString));
    return time.isValid() && installation.now < time && !IsCriticalFor(item, installation, order);
}

bool IsInformational(FeedItem const& item, Installation const& installation, VersionOrder const& order)
{
    ItemPolicy const& policy = item.policy;
    if (!policy.isInformational || (policy.informationalFor.isEmpty() && policy.informationalBelow.isEmpty()))
    {
        return policy.isInformational;
    }
    if (installation.version.isEmpty())
    {
        return false;
    }
    bool const isNamed = std::any_of(policy.informationalFor.begin(), policy.informationalFor.end(),
                                     [&](QString const& version) { return order(installation.version, version) == 0; });
    return isNamed || IsBefore(policy.informationalBelow, installation, order);
}

bool HasTrustedSignature(FeedItem const& item, Installation const& installation)
{
    return SignatureFor(item, installation.trustedKeys).has_value();
}

QString NamesOf(QStringList const& names)
{
    return names.isEmpty() ? QStringLiteral("none") : names.join(QStringLiteral(", "));
}

void LogLeftOut(FeedItem const& item, PolicyVerdict verdict, Installation const& installation)
{
    LOG(INFO) << "The feed's " << (item.isDelta ? "delta to " : "item ")
              << EscapedRemoteText(item.versionString).toStdString() << " is left out (" << NameOf(verdict)
              << "): " << EscapedRemoteText(ReasonOf(verdict, item, installation)).toStdString();
}

} // namespace

char const* NameOf(PolicyVerdict verdict)
{
    switch (verdict)
    {
    case PolicyVerdict::Withdrawn:
        return "withdrawn";
    case PolicyVerdict::OtherArchitecture:
        return "other-architecture";
    case PolicyVerdict::OtherChannel:
        return "other-channel";
    case PolicyVerdict::KeyNotTrusted:
        return "key-not-trusted";
    case PolicyVerdict::NeedsAnotherVersionFirst:
        return "needs-another-version-first";
    case PolicyVerdict::NotYetRolledOut:
        return "not-yet-rolled-out";
    case PolicyVerdict::Informational:
        return "informational";
    case PolicyVerdict::Plain:
        return "";
    }
    return "Unknown PolicyVerdict";
}

PolicyVerdict JudgePolicy(FeedItem const& item, Installation const& installation, VersionOrder const& order)
{
    if (item.policy.isWithdrawn)
    {
        return PolicyVerdict::Withdrawn;
    }
    if (!SuitsMachine(item.policy.machines, installation.machine) ||
        !SuitsMachine(item.policy.hardware, installation.machine))
    {
        return PolicyVerdict::OtherArchitecture;
    }
    if (IsOtherChannel(item, installation))
    {
        return PolicyVerdict::OtherChannel;
    }
    if (!HasTrustedSignature(item, installation) && !IsInformational(item, installation, order))
    {
        return IsBehindStone(KeysOf(item), installation.stones, order) ? PolicyVerdict::NeedsAnotherVersionFirst
                                                                       : PolicyVerdict::KeyNotTrusted;
    }
    if (IsBefore(item.policy.minimumUpdateVersion, installation, order))
    {
        return PolicyVerdict::NeedsAnotherVersionFirst;
    }
    if (IsToWait(item, installation, order))
    {
        return PolicyVerdict::NotYetRolledOut;
    }
    return IsInformational(item, installation, order) ? PolicyVerdict::Informational : PolicyVerdict::Plain;
}

QString ReasonOf(PolicyVerdict verdict, FeedItem const& item, Installation const& installation)
{
    switch (verdict)
    {
    case PolicyVerdict::Withdrawn:
        return QStringLiteral("the publisher has withdrawn it");
    case PolicyVerdict::OtherArchitecture:
        return QStringLiteral("it is for %1, this is %2")
            .arg(NamesOf(SuitsMachine(item.policy.machines, installation.machine) ? item.policy.hardware
                                                                                  : item.policy.machines),
                 installation.machine);
    case PolicyVerdict::OtherChannel:
        return QStringLiteral("channel %1, listed: %2").arg(item.policy.channel, NamesOf(installation.channels));
    case PolicyVerdict::KeyNotTrusted:
        return QStringLiteral("signed by the key %1, trusted: %2")
            .arg(NamesOf(SignersOf(item)), NamesOf(installation.trustedKeys));
    case PolicyVerdict::NeedsAnotherVersionFirst:
        if (!HasTrustedSignature(item, installation))
        {
            return QStringLiteral("signed by the key %1, which a version before it brings; trusted: %2")
                .arg(NamesOf(SignersOf(item)), NamesOf(installation.trustedKeys));
        }
        return QStringLiteral("installed %1 < %2, from which it can be updated")
            .arg(installation.version, item.policy.minimumUpdateVersion);
    case PolicyVerdict::NotYetRolledOut:
    {
        int const group = installation.rolloutGroup(item.versionString);
        return QStringLiteral("group %1 of %2 gets it at %3")
            .arg(group + 1)
            .arg(ROLLOUT_GROUPS)
            .arg(RolloutTime(item, group).toUTC().toString(Qt::ISODate));
    }
    case PolicyVerdict::Informational:
        return QStringLiteral("a link is shown, and nothing is downloaded");
    case PolicyVerdict::Plain:
        break;
    }
    return {};
}

bool IsCriticalFor(FeedItem const& item, Installation const& installation, VersionOrder const& order)
{
    QString const& bound = item.policy.criticalBelow;
    return item.isCritical &&
           (bound.isEmpty() || installation.version.isEmpty() || order(installation.version, bound) < 0);
}

bool DependsOnVersion(FeedItem const& item)
{
    ItemPolicy const& policy = item.policy;
    return !policy.minimumUpdateVersion.isEmpty() || (policy.rolloutSeconds != 0 && item.isCritical);
}

std::vector<KeyedVersion> SteppingStonesOf(std::vector<FeedItem> const& items, Installation const& installation,
                                           VersionOrder const& order)
{
    bool const isAllTrusted =
        installation.version.isEmpty() ||
        std::all_of(items.begin(), items.end(),
                    [&installation](FeedItem const& item) { return HasTrustedSignature(item, installation); });
    if (isAllTrusted)
    {
        return {};
    }
    Installation withoutKeys = installation;
    withoutKeys.trustedKeys.clear();
    withoutKeys.rolloutGroup = nullptr; // a staged item comes later
    std::vector<KeyedVersion> versions;
    for (FeedItem const& item : items)
    {
        if (JudgePolicy(item, withoutKeys, order) == PolicyVerdict::Plain)
        {
            versions.push_back(KeysOf(item));
        }
    }
    return SteppingStonesFrom({installation.version, {}, installation.trustedKeys}, versions, order);
}

namespace
{

/// Adds the number of removed items and deltas to \a leftOut.
void LeaveOutAmong(std::vector<FeedItem>& items, Installation const& installation, VersionOrder const& order,
                   int& leftOut)
{
    auto const isLeftOut = [&](FeedItem const& item)
    {
        PolicyVerdict const verdict = JudgePolicy(item, installation, order);
        if (IsLeftOut(verdict) && ++leftOut <= MAX_LOGGED_ITEMS)
        {
            LogLeftOut(item, verdict, installation);
        }
        return IsLeftOut(verdict);
    };
    items.erase(std::remove_if(items.begin(), items.end(), isLeftOut), items.end());
    for (FeedItem& item : items)
    {
        item.isCritical = IsCriticalFor(item, installation, order);
        item.policy.isInformational = IsInformational(item, installation, order);
        item.policy.isToBeAsked =
            item.policy.isInformational || IsBefore(item.policy.minimumAutoupdateVersion, installation, order);
        item.edSignature = SignatureFor(item, installation.trustedKeys).value_or(item.edSignature);
        for (FeedItem& recompressed : item.recompressed)
        {
            recompressed.edSignature =
                SignatureFor(recompressed, installation.trustedKeys).value_or(recompressed.edSignature);
        }
        LeaveOutAmong(item.deltas, installation, order, leftOut);
    }
}

} // namespace

void LeaveOut(std::vector<FeedItem>& items, Installation const& installation, VersionOrder const& order)
{
    Installation here = installation;
    here.stones = SteppingStonesOf(items, installation, order);
    int leftOut = 0;
    LeaveOutAmong(items, here, order, leftOut);
    LOG_IF(INFO, leftOut > MAX_LOGGED_ITEMS)
        << "The feed has " << leftOut - MAX_LOGGED_ITEMS << " more items that are left out";
}

bool IsChannelName(QString const& name)
{
    return !name.isEmpty() && std::none_of(name.begin(), name.end(),
                                           [](QChar character) {
                                               return character.isSpace() || character == QLatin1Char(',') ||
                                                      character.category() == QChar::Other_Control;
                                           });
}

QString OwnMachineName()
{
    return MachineOf(QSysInfo::buildCpuArchitecture());
}

bool SuitsMachine(QStringList const& machines, QString const& machine)
{
    return machines.isEmpty() || machine.isEmpty() ||
           std::any_of(machines.begin(), machines.end(),
                       [own = MachineOf(machine)](QString const& each) { return MachineOf(each) == own; });
}

bool ShareMachine(QStringList const& a, QStringList const& b)
{
    return a.isEmpty() ||
           std::any_of(a.begin(), a.end(), [&b](QString const& machine) { return SuitsMachine(b, machine); });
}

QString VersionLine(QString const& version)
{
    return version.section(QLatin1Char('.'), 0, 1);
}

QDateTime FeedTime(QString text)
{
    // Qt's reader of this form does not know the names of time zones.
    return QDateTime::fromString(text.replace(QLatin1String(" GMT"), QLatin1String(" +0000")), Qt::RFC2822Date);
}

QDateTime RolloutTime(FeedItem const& item, int group)
{
    QDateTime const published = item.policy.rolloutSeconds == 0 ? QDateTime() : FeedTime(item.dateString);
    return published.isValid() ? published.addSecs(group * item.policy.rolloutSeconds) : QDateTime();
}

} // namespace Pelnar::Engine
