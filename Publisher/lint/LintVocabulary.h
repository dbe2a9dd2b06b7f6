// LintVocabulary.h: the names of the feed's namespace, and which of them somebody may have meant.
#pragma once

#include <QString>

#include <optional>

namespace Pelnar::Publisher
{

/// The name that \a local was meant to be, when it is none of the feed's namespace and one or two letters from one.
std::optional<QString> MeantName(QString const& local);

} // namespace Pelnar::Publisher
