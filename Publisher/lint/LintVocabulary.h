// LintVocabulary.h: the names of the feed's namespace, and the correction of misspelled ones.
#pragma once

#include <QString>

#include <optional>

namespace Pelnar::Publisher
{

/// The known name that differs from \a local by one or two letters; empty if \a local is known or differs more.
std::optional<QString> MeantName(QString const& local);

} // namespace Pelnar::Publisher
