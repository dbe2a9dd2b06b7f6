// ProgressText.h: sizes, rates and times in words, in the person's language and number format.
// Thread: the Qt main thread (translations). Ownership: values only.
#pragma once

#include "Engine/core/update/WindowContent.h"

#include <QString>

namespace Pelnar::Engine
{

[[nodiscard]] QString SizeText(quint64 bytes);
/// "12 MB of 40 MB"; the first alone when the total is unknown.
[[nodiscard]] QString AmountText(UpdateProgress const& progress);
/// "1.5 MB/s"; empty when unknown.
[[nodiscard]] QString RateText(UpdateProgress const& progress);
/// "About 3 minutes left"; empty when unknown or done.
[[nodiscard]] QString TimeLeftText(UpdateProgress const& progress);
/// What is done, in thousandths of \a progress' total; at most 1000. REQUIRES: the total is known.
[[nodiscard]] int DoneThousandths(UpdateProgress const& progress);

} // namespace Pelnar::Engine
