// SafeUrl.h: applies the rule for links (Engine/core/notes/ReleaseNotesLink.h) to QUrl. Pure functions.
#pragma once

#include <QUrl>

namespace Pelnar::Engine
{

/// \a address in normal form; empty if it must not be followed.
[[nodiscard]] QUrl SafeUrl(QUrl const& address);

} // namespace Pelnar::Engine
