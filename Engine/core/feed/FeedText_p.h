// FeedText_p.h: single values of a feed: cleaned texts, lengths, versions out of file names, addresses.
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

/// \a text without hidden characters (SafeText.h), which could forge a log line, drive a terminal or turn the writing
/// direction: each of them becomes a blank, so that no two parts of a version grow together.
[[nodiscard]] QString CleanFeedText(QString text, FeedTextKind kind);

/// The number of bytes that \a text gives; 0 for anything but decimal digits and for more than \a most.
[[nodiscard]] quint64 FeedLength(QStringRef text, quint64 most);

/// The part of the address's file name after its last underscore, without extensions; empty when there is none.
[[nodiscard]] QString VersionInFileName(QUrl const& url);

/// \a text resolved against \a base, as Foundation keeps it; empty for an empty text, for one that is no address and
/// for one that is longer than any address.
[[nodiscard]] QUrl FeedAddress(QString const& text, QUrl const& base);

} // namespace Pelnar::Engine
