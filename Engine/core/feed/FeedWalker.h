// FeedWalker.h: the XML reader with the feed's limits. It checks every step and keeps the first refusal. Thread: any,
// one at a time. Ownership: its own reader; the limits outlive it.
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

    /// Steps to the next token. After the end of the document or a refusal the token is always Invalid.
    QXmlStreamReader::TokenType Advance();
    /// Steps into the next child of the current element. After the last child, steps past the element's end and returns
    /// false. Text directly inside is appended to \a text, if it is not null.
    [[nodiscard]] bool EnterChild(QString* text = nullptr);
    /// Refuses the document at this place because it exceeds \a limit.
    void Refuse(ErrorCause cause, int limit = 0);
    /// Refuses the document at the place of \a refusal.
    void Refuse(FeedParseError refusal) { error = std::move(refusal); }

    [[nodiscard]] std::optional<FeedParseError> const& Error() const { return error; }
    [[nodiscard]] QXmlStreamReader const& Reader() const { return reader; }
    [[nodiscard]] int Depth() const { return depth; }
    /// Of the current tag. This call is cheap, reading the attributes is not.
    [[nodiscard]] bool HasAttributes() const { return hasAttributes; }
    [[nodiscard]] int Line() const { return static_cast<int>(reader.lineNumber()); }
    [[nodiscard]] int Column() const { return static_cast<int>(reader.columnNumber()) + 1; }

    /// The element or attribute name as properties show it; \a qualifiedName is as written. Valid until the next call.
    [[nodiscard]] QString const& PropertyName(QStringRef namespaceUri, QStringRef name, QStringRef qualifiedName);
    /// That of the current element.
    [[nodiscard]] QString const& PropertyName()
    {
        return PropertyName(reader.namespaceUri(), reader.name(), reader.qualifiedName());
    }

private:
    /// A name that was found before. Most feeds use about a dozen, and a shared text costs no copy.
    struct KnownName
    {
        QString qualifiedName;
        QString namespaceUri;
        QString propertyName;
    };

    void CheckStart();

    QXmlStreamReader reader;
    FeedLimits const& limits;
    bool isUtf8; ///< the scan and the reader see the same bytes
    std::optional<FeedParseError> error;
    int depth = 0;
    int markup = 0; ///< elements and attributes so far
    bool hasAttributes = false;
    int namespacesInScope = 0;
    std::vector<std::pair<int, int>> namespacesByDepth; ///< only the depths that declare some, with their number
    std::vector<KnownName> knownNames;
    size_t expectedName = 0; ///< where the last name was found
    QString otherName;       ///< the last one for which the table had no space
};

/// An error at a place, with its sentence. \a limit is the exceeded limit, if any.
[[nodiscard]] FeedParseError MakeParseError(ErrorCause cause, int line, int column, int limit);

/// Whether \a namespaceUri is the feed's own.
[[nodiscard]] bool IsFeedNamespace(QStringRef namespaceUri);

/// Equality. In most cases the length decides, without a call.
inline bool IsNamed(QStringRef name, QLatin1String text)
{
    return name.size() == text.size() && name == text;
}

} // namespace Pelnar::Engine
