// FeedText_p.h: single values of a feed: cleaned texts, lengths, versions from file names, addresses.
#pragma once

#include <QString>
#include <QStringRef>
#include <QUrl>

namespace Pelnar::Engine
{

enum class FeedTextKind
{
    SingleLine, ///< outer blanks dropped, no line break or tab left
    Block,      ///< as written, line breaks and tabs kept
};

/// \a text without hidden characters (SafeText.h), which could forge a log line, control a terminal or change the
/// writing direction. Each becomes a blank, so that two parts of a version are not joined.
[[nodiscard]] QString CleanFeedText(QString text, FeedTextKind kind);

/// The number of bytes in \a text; 0 if it is not decimal digits or is more than \a most.
[[nodiscard]] quint64 FeedLength(QStringRef text, quint64 most);

/// The part of the address's file name after its last underscore, without extensions; empty without an underscore.
[[nodiscard]] QString VersionInFileName(QUrl const& url);

/// \a text relative to \a base, as Foundation keeps it. Empty for an empty text, an invalid address or one that is too
/// long.
[[nodiscard]] QUrl FeedAddress(QString const& text, QUrl const& base);

} // namespace Pelnar::Engine
