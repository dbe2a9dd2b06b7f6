// RolloutSeed.h: the group of this installation in staged rollouts. It is drawn once for each line of versions. A file
// of random bytes in the state folder determines it; it is never sent.
#pragma once

#include <QByteArray>
#include <QString>

namespace Pelnar::Engine
{

/// The random bytes of the installation whose state is in \a folder. They are drawn and stored at the first call.
/// Empty, with a line in the log, if they cannot be stored.
[[nodiscard]] QByteArray RolloutSeed(QString const& folder);

/// The group, from 0, for an item with the version \a version. All versions of one line have the same group. Each line
/// has its own group, so that no person is always the first. Without a seed it is the last group.
[[nodiscard]] int RolloutGroup(QByteArray const& seed, QString const& version);

} // namespace Pelnar::Engine
