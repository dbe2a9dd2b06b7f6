// StandardVersionComparison.h: the engine's own order of version texts.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <QString>

namespace Pelnar::Engine
{

/// Negative when \a a is older than \a b, positive when it is newer, 0 when neither. The rules stand at
/// SUStandardVersionComparator.
[[nodiscard]] int CompareVersionTexts(QString const& a, QString const& b);

} // namespace Pelnar::Engine
