// FeedWalker.h: the XML reader behind the feed's limits: every step is checked, and the first refusal is kept.
// Thread: any, one at a time. Ownership: its own reader; the limits outlive it.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <QXmlStreamReader>

#include <optional>
#include <vector>

namespace Pelnar::Engine
{

class FeedWalker
{
public:
    /// \a text is read if it is not null, else \a utf8.
    FeedWalker(QByteArray const& utf8, QString const& text, FeedLimits const& limits);

    /// Steps to the next token. Invalid, from then on, after the end of the document or a refusal.
    QXmlStreamReader::TokenType Advance();
    /// Steps into the next child element of the one entered last, or past its end: then false. Text directly inside is
    /// appended to \a text, if there is one.
    [[nodiscard]] bool EnterChild(QString* text = nullptr);
    /// Refuses the document at the place reached, which exceeds \a limit.
    void Refuse(ErrorCause cause, int limit = 0);

    [[nodiscard]] std::optional<FeedParseError> const& Error() const { return error; }
    [[nodiscard]] QXmlStreamReader const& Reader() const { return reader; }
    [[nodiscard]] int Depth() const { return depth; }
    /// Of the tag just entered. Asking is cheap, the attributes themselves are not.
    [[nodiscard]] bool HasAttributes() const { return hasAttributes; }
    [[nodiscard]] int Line() const { return static_cast<int>(reader.lineNumber()); }
    [[nodiscard]] int Column() const { return static_cast<int>(reader.columnNumber()) + 1; }

    /// The element or attribute name as properties show it; \a qualifiedName is as written. Good until the next call.
    [[nodiscard]] QString const& PropertyName(QStringRef namespaceUri, QStringRef name, QStringRef qualifiedName);

private:
    /// A name met before: most feeds use a dozen, and a shared text costs nothing to keep once more.
    struct KnownName
    {
        QString qualifiedName;
        QString namespaceUri;
        QString propertyName;
    };

    void CheckStart();

    QXmlStreamReader reader;
    FeedLimits const& limits;
    bool isUtf8; ///< what was scanned and what is read are the same bytes
    std::optional<FeedParseError> error;
    int depth = 0;
    int markup = 0; ///< elements and attributes so far
    bool hasAttributes = false;
    int namespacesInScope = 0;
    std::vector<std::pair<int, int>> namespacesByDepth; ///< only the depths that declare some, with their number
    std::vector<KnownName> knownNames;
    size_t expectedName = 0; ///< where the last name was found
    QString otherName;       ///< the last one that found no room among them
};

/// An error at a place, with its sentence. \a limit is what the feed exceeds, if there is a limit.
[[nodiscard]] FeedParseError MakeParseError(ErrorCause cause, int line, int column, int limit);

/// Whether \a namespaceUri is the feed's own.
[[nodiscard]] bool IsFeedNamespace(QStringRef namespaceUri);

/// Equality, decided by the length most of the time and then without a call.
inline bool IsNamed(QStringRef name, QLatin1String text)
{
    return name.size() == text.size() && name == text;
}

} // namespace Pelnar::Engine
