// ReleaseRules.h: for which installations an item of a feed is meant. Clients and the publisher's tool ask the same
// functions; docs/guide/publishing.md tells a publisher what they do.
#pragma once

#include "Engine/core/feed/KeyPaths.h"

#include <QDateTime>

#include <functional>
#include <vector>

namespace Pelnar::Engine
{

/// The groups of a staged rollout; the first gets an item at once, and each of the others one interval later.
constexpr int ROLLOUT_GROUPS = 7;

/// What is known of the application that asks.
struct Installation
{
    QString version;      ///< empty when it is not known: no item is left out for it
    QString machine;      ///< as OwnMachineName(); empty when it does not count
    QStringList channels; ///< that it lists
    /// The group, from 0, in which it gets an item of that version. Empty for a person who asks: staged items are
    /// theirs at once.
    std::function<int(QString const& version)> rolloutGroup;
    QDateTime now;
    QStringList trustedKeys;          ///< ids; empty when they are not known: no item is left out for them
    std::vector<KeyedVersion> stones; ///< that it takes one after the other; see SteppingStonesOf
};

/// The first reason why an item is not like any other for an installation, in the order of the tests.
enum class PolicyVerdict
{
    Withdrawn,
    OtherArchitecture,
    OtherChannel,
    KeyNotTrusted, ///< and no version of the feed leads to the key
    NeedsAnotherVersionFirst,
    NotYetRolledOut,
    Informational, ///< offered as a link only: everything before it is not offered at all
    Plain,
};

/// A name that stays, such as "other-channel"; empty for Plain.
[[nodiscard]] char const* NameOf(PolicyVerdict verdict);

[[nodiscard]] constexpr bool IsLeftOut(PolicyVerdict verdict)
{
    return verdict < PolicyVerdict::Informational;
}

/// The verdict on \a item, or a delta. Lets exceptions of \a order through, which is asked only about versions that the
/// item names.
[[nodiscard]] PolicyVerdict JudgePolicy(FeedItem const& item, Installation const& installation,
                                        VersionOrder const& order);

/// Why \a verdict was given, for a log or a publisher: what the item says and what the installation is.
[[nodiscard]] QString ReasonOf(PolicyVerdict verdict, FeedItem const& item, Installation const& installation);

/// The versions of \a items that \a installation takes one after the other, where one of them bears no signature that
/// it can verify; else none. Lets exceptions of \a order through.
[[nodiscard]] std::vector<KeyedVersion> SteppingStonesOf(std::vector<FeedItem> const& items,
                                                         Installation const& installation, VersionOrder const& order);

/// Whether \a item is critical for the installed version. Lets exceptions of \a order through.
[[nodiscard]] bool IsCriticalFor(FeedItem const& item, Installation const& installation, VersionOrder const& order);

/// Whether the verdict on \a item may depend on the installed version.
[[nodiscard]] bool DependsOnVersion(FeedItem const& item);

/// Removes what is not meant for \a installation from \a items and their deltas, each with a record in the log, and
/// settles what is critical, informational and to be asked for there, and which signature it verifies. Lets exceptions
/// of \a order through.
void LeaveOut(std::vector<FeedItem>& items, Installation const& installation, VersionOrder const& order);

/// Whether a setting can list a channel of that name, and a feed name it.
[[nodiscard]] bool IsChannelName(QString const& name);

/// The machine that this program was built for, as feeds name it: "x86_64", "aarch64".
[[nodiscard]] QString OwnMachineName();

/// Whether a program for one of \a machines runs on \a machine. True when there are none, or it is empty.
[[nodiscard]] bool SuitsMachine(QStringList const& machines, QString const& machine);

/// Whether some machine takes what is for \a a and what is for \a b.
[[nodiscard]] bool ShareMachine(QStringList const& a, QStringList const& b);

/// The part of a version that its rollout groups belong to: its first two components.
[[nodiscard]] QString VersionLine(QString const& version);

/// The moment of a date as RSS writes it; invalid for any other text.
[[nodiscard]] QDateTime FeedTime(QString text);

/// When an item that is staged reaches the group; invalid when it is not staged, or has no date that can be read.
[[nodiscard]] QDateTime RolloutTime(FeedItem const& item, int group);

} // namespace Pelnar::Engine
