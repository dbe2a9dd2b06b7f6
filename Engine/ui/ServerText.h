// ServerText.h: text of a server made fit for a label.
// Thread: any, but for sentences, which want the Qt main thread; no state. Ownership: values only.
#pragma once

#include "Engine/core/Sentence.h"

#include <QString>

namespace Pelnar::Engine
{

/// \a text on one line, without hidden characters (SafeText.h); what is longer than \a maxCharacters ends in "…".
[[nodiscard]] QString OneLine(QString const& text, int maxCharacters);

/// For an application's name, a version, a title; the longest that a label shows.
[[nodiscard]] QString ShownName(QString const& name);
[[nodiscard]] QString ShownVersion(QString const& version);
/// \a sentence in the language of the windows, whose direction is \a direction. What is put into it is on one line,
/// shortened, and keeps its own direction.
[[nodiscard]] QString ShownSentence(Sentence const& sentence, Qt::LayoutDirection direction);

} // namespace Pelnar::Engine
