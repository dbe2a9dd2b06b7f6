// RolloutSeed.h: the group of this installation in staged rollouts: drawn once for each line of versions, and known to
// this computer only. A file of random bytes in the state folder decides it; nothing of it is sent.
#pragma once

#include <QByteArray>
#include <QString>

namespace Pelnar::Engine
{

/// The random bytes of the installation whose state is in \a folder. They are drawn and stored at the first call.
/// Empty, with a line in the log, if they cannot be stored.
[[nodiscard]] QByteArray RolloutSeed(QString const& folder);

/// The group, from 0, for an item of the version \a version. The versions of one line have the same group, and each
/// line has a group of its own, so that nobody is always the first. Without a seed it is the last group.
[[nodiscard]] int RolloutGroup(QByteArray const& seed, QString const& version);

} // namespace Pelnar::Engine
