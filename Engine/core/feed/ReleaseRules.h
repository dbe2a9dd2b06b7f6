// ReleaseRules.h: for which installations an item of a feed is meant. Clients and the publisher's tool call the same
// functions. docs/guide/publishing.md describes the rules for a publisher.
#pragma once

#include "Engine/core/feed/KeyPaths.h"

#include <QDateTime>

#include <functional>
#include <vector>

namespace Pelnar::Engine
{

/// The groups of a staged rollout. The first gets an item immediately, each other one an interval after the group
/// before.
constexpr int ROLLOUT_GROUPS = 7;

/// The known properties of the installation that asks.
struct Installation
{
    QString version;      ///< empty if not known: no item is left out because of it
    QString machine;      ///< as OwnMachineName(); empty if it does not count
    QStringList channels; ///< that it lists
    /// The group, from 0, in which it gets an item of that version. Empty for a person who asks: staged items are
    /// theirs at once.
    std::function<int(QString const& version)> rolloutGroup;
    QDateTime now;
    QStringList trustedKeys;          ///< ids; empty if not known: no item is left out because of them
    std::vector<KeyedVersion> stones; ///< that it installs one after another; see SteppingStonesOf
};

/// The first reason why an installation does not get an item like any other, in the order of the tests.
enum class PolicyVerdict
{
    Withdrawn,
    OtherArchitecture,
    OtherChannel,
    KeyNotTrusted, ///< and no version of the feed leads to the key
    NeedsAnotherVersionFirst,
    NotYetRolledOut,
    Informational, ///< offered as a link only; with all verdicts before this one the item is not offered
    Plain,
};

/// A permanent name, such as "other-channel"; empty for Plain.
[[nodiscard]] char const* NameOf(PolicyVerdict verdict);

[[nodiscard]] constexpr bool IsLeftOut(PolicyVerdict verdict)
{
    return verdict < PolicyVerdict::Informational;
}

/// The verdict on \a item, or a delta. Passes exceptions of \a order on. It is called only for versions that the item
/// names.
[[nodiscard]] PolicyVerdict JudgePolicy(FeedItem const& item, Installation const& installation,
                                        VersionOrder const& order);

/// The reason of \a verdict, for a log or a publisher: the item's value and the installation's.
[[nodiscard]] QString ReasonOf(PolicyVerdict verdict, FeedItem const& item, Installation const& installation);

/// The versions of \a items that \a installation installs one after another, if one of \a items has no signature that
/// it can verify; otherwise none. Passes exceptions of \a order on.
[[nodiscard]] std::vector<KeyedVersion> SteppingStonesOf(std::vector<FeedItem> const& items,
                                                         Installation const& installation, VersionOrder const& order);

/// True if \a item is critical for the installed version. Passes exceptions of \a order on.
[[nodiscard]] bool IsCriticalFor(FeedItem const& item, Installation const& installation, VersionOrder const& order);

/// True if the verdict on \a item may depend on the installed version.
[[nodiscard]] bool DependsOnVersion(FeedItem const& item);

/// At most so many items of one feed get log records of their own: a feed must not fill the log.
constexpr int MAX_LOGGED_ITEMS = 20;

/// Removes the items and deltas that are not meant for \a installation, and logs why. For the others it decides whether
/// they are critical, informational or to be asked for, and which signature is verified. Passes exceptions of \a order
/// on.
void LeaveOut(std::vector<FeedItem>& items, Installation const& installation, VersionOrder const& order);

/// True if \a name can be a channel of a feed and of the setting.
[[nodiscard]] bool IsChannelName(QString const& name);

/// The machine for which this program was built, as feeds name it: "x86_64", "aarch64".
[[nodiscard]] QString OwnMachineName();

/// True if a program for one of \a machines runs on \a machine. Also true if either is empty.
[[nodiscard]] bool SuitsMachine(QStringList const& machines, QString const& machine);

/// True if a machine takes programs for \a a and programs for \a b.
[[nodiscard]] bool ShareMachine(QStringList const& a, QStringList const& b);

/// The part of a version that determines its rollout groups: its first two components.
[[nodiscard]] QString VersionLine(QString const& version);

/// A date as RSS writes it; invalid for any other text.
[[nodiscard]] QDateTime FeedTime(QString text);

/// When a staged item reaches the group; invalid if it is not staged, or has no readable date.
[[nodiscard]] QDateTime RolloutTime(FeedItem const& item, int group);

} // namespace Pelnar::Engine
