// AddressForms.h: what an address in a feed looks like as it is written.
#pragma once

#include "Publisher/lint/LintSubject.h"

namespace Pelnar::Publisher
{

/// The url attribute, without blanks around it; empty when there is none.
QString WrittenAddress(LintDownload const& download);

/// "file:///a", "/home/me/a", "C:\a": an address that means something on the publisher's computer only.
[[nodiscard]] bool IsOfThisDisk(QString const& text);

} // namespace Pelnar::Publisher
