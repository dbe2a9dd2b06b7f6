// AddressForms.h: forms of addresses as a feed writes them.
#pragma once

#include "Publisher/lint/LintSubject.h"

namespace Pelnar::Publisher
{

/// The url attribute without the blanks around it; empty if it is absent.
QString WrittenAddress(LintDownload const& download);

/// True for an address that only the publisher's computer can resolve, such as "file:///a", "/home/me/a" or "C:\a".
[[nodiscard]] bool IsOfThisDisk(QString const& text);

} // namespace Pelnar::Publisher
