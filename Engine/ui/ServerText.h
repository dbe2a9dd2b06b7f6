// ServerText.h: text of a server made fit for a label.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <QString>

namespace Pelnar::Engine
{

/// \a text on one line, without control characters and marks that reorder text; what is longer than \a maxCharacters
/// ends in "…".
[[nodiscard]] QString OneLine(QString const& text, int maxCharacters);

/// For an application's name, a version, a title; the longest that a label shows.
[[nodiscard]] QString ShownName(QString const& name);
[[nodiscard]] QString ShownVersion(QString const& version);
[[nodiscard]] QString ShownSentence(QString const& sentence);

} // namespace Pelnar::Engine
