// ProgressText.h: sizes, rates and times as text, in the person's language and number format.
// Thread: the Qt main thread (translations).
#pragma once

#include "Engine/core/update/WindowContent.h"

#include <QString>

namespace Pelnar::Engine
{

[[nodiscard]] QString SizeText(quint64 bytes);
/// "12 MB of 40 MB"; only the first part if the total is unknown.
[[nodiscard]] QString AmountText(UpdateProgress const& progress);
/// "1.5 MB/s"; empty if unknown.
[[nodiscard]] QString RateText(UpdateProgress const& progress);
/// "About 3 minutes left"; empty if unknown or complete.
[[nodiscard]] QString TimeLeftText(UpdateProgress const& progress);
/// The completed part, in thousandths of \a progress's total; at most 1000. REQUIRES: the total is known.
[[nodiscard]] int DoneThousandths(UpdateProgress const& progress);

} // namespace Pelnar::Engine
