// ServerText.h: prepares text from a server for a label.
// Thread: any, except sentences, which need the Qt main thread.
#pragma once

#include "Engine/core/faults/Sentence.h"

#include <QString>

namespace Pelnar::Engine
{

/// \a text on one line, without hidden characters (SafeText.h). Text longer than \a maxCharacters ends in "…".
[[nodiscard]] QString OneLine(QString const& text, int maxCharacters);

/// For an application's name, a version or a title, limited to the longest that a label shows.
[[nodiscard]] QString ShownName(QString const& name);
[[nodiscard]] QString ShownVersion(QString const& version);
/// \a sentence in the language of the windows, whose direction is \a direction. Inserted values are on one line,
/// shortened, and keep their own direction.
[[nodiscard]] QString ShownSentence(Sentence const& sentence, Qt::LayoutDirection direction);

} // namespace Pelnar::Engine
