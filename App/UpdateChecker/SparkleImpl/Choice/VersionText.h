// VersionText.h: versions from the texts of a feed, for callers that expect malformed text. Plain C++, private to the
// session.
#pragma once

#include "HostFramework/Version.h"

#include <QString>

namespace Pelnar::App::Session
{

/// The host parser's result for \a text, with "." between the components. The invalid version for text that it refuses
/// and, without calling it, for empty text. Never throws and never logs.
Core::Version VersionFromStringNoexcept(QString const& text) noexcept;

} // namespace Pelnar::App::Session
