// StandardVersionComparison.h: the engine's own order of version texts. Pure functions.
#pragma once

#include <QString>

namespace Pelnar::Engine
{

/// Negative if \a a is older than \a b, positive if it is newer, 0 if neither. The rules are documented at
/// SUStandardVersionComparator.
[[nodiscard]] int CompareVersionTexts(QString const& a, QString const& b);

} // namespace Pelnar::Engine
