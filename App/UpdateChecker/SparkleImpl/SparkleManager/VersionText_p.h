// VersionText_p.h: versions from the texts of a feed, for callers to whom malformed text is ordinary. Plain C++,
// private to the session. Thread: any.
#pragma once

#include "HostFramework/Version.h"

#include <QString>

namespace Pelnar::App::Session
{

/// What the host's parser makes of \a text, with "." between the components; the invalid version for text that it
/// refuses and, without asking it, for empty text. Never throws and never logs.
Core::Version VersionFromStringNoexcept(QString const& text) noexcept;

} // namespace Pelnar::App::Session
