// SafeUrl.h: the rule for links (Engine/core/notes/ReleaseNotesLink.h) on Qt's addresses.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <QUrl>

namespace Pelnar::Engine
{

/// \a address in normal form; empty when it must not be followed.
[[nodiscard]] QUrl SafeUrl(QUrl const& address);

} // namespace Pelnar::Engine
