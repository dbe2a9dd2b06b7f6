// FeedWalker.cpp: the XML reader with the feed's limits.
#include "Engine/core/feed/FeedWalker.h"

#include "Engine/core/feed/FeedText_p.h"

#include <cstring>

namespace Pelnar::Engine
{

namespace
{

QString const FEED_NAMESPACE_TEXT = QLatin1String(FEED_NAMESPACE);
QLatin1String const FEED_PREFIX("sparkle:");
constexpr size_t MOST_KNOWN_NAMES = 32;

/// Inline, because this runs for every name of a feed.
bool IsEqual(QString const& a, QStringRef b)
{
    return a.size() == b.size() &&
           std::memcmp(a.constData(), b.constData(), static_cast<size_t>(a.size()) * sizeof(QChar)) == 0;
}

QString MakePropertyName(QStringRef namespaceUri, QStringRef name, QStringRef qualifiedName)
{
    bool const hasFeedPrefix = qualifiedName.startsWith(FEED_PREFIX);
    if (IsFeedNamespace(namespaceUri) && !hasFeedPrefix)
    {
        return FEED_PREFIX + name;
    }
    if (!IsFeedNamespace(namespaceUri) && hasFeedPrefix)
    {
        return QLatin1Char('{') + namespaceUri + QLatin1Char('}') + name;
    }
    return qualifiedName.toString();
}

} // namespace

bool IsFeedNamespace(QStringRef namespaceUri)
{
    return IsEqual(FEED_NAMESPACE_TEXT, namespaceUri);
}

FeedParseError MakeParseError(ErrorCause cause, int line, int column, int limit)
{
    Sentence const sentence(EntryOf(cause).lineSentence,
                            {QString::number(line), QString::number(limit), QString::number(limit + 1)});
    return {cause, line, column, sentence, {}};
}

FeedWalker::FeedWalker(QByteArray const& utf8, QString const& text, FeedLimits const& documentLimits)
    : reader(text.isNull() ? QXmlStreamReader(utf8) : QXmlStreamReader(text))
    , limits(documentLimits)
    , isUtf8(text.isNull())
{
    knownNames.reserve(MOST_KNOWN_NAMES);
}

QXmlStreamReader::TokenType FeedWalker::Advance()
{
    if (error)
    {
        return QXmlStreamReader::Invalid;
    }
    QXmlStreamReader::TokenType const token = reader.readNext();
    switch (token)
    {
    case QXmlStreamReader::Invalid:
        if (reader.hasError())
        {
            Refuse(ErrorCause::FeedMalformed);
            // The reader's message contains the character that it found.
            error->detail = CleanFeedText(reader.errorString(), FeedTextKind::SingleLine);
        }
        break;
    case QXmlStreamReader::DTD:
        Refuse(ErrorCause::FeedDocumentType);
        break;
    case QXmlStreamReader::StartElement:
        ++depth;
        CheckStart();
        break;
    case QXmlStreamReader::EndElement:
        if (!namespacesByDepth.empty() && namespacesByDepth.back().first == depth)
        {
            namespacesInScope -= namespacesByDepth.back().second;
            namespacesByDepth.pop_back();
        }
        --depth;
        break;
    case QXmlStreamReader::StartDocument:
        if (isUtf8 && !reader.documentEncoding().isEmpty() &&
            reader.documentEncoding().compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) != 0)
        {
            // The reader would see other text than the scan from here on.
            Refuse(ErrorCause::FeedMalformed);
            error->detail = QStringLiteral("The XML declaration is ambiguous.");
        }
        break;
    case QXmlStreamReader::NoToken:
    case QXmlStreamReader::EndDocument:
    case QXmlStreamReader::Characters:
    case QXmlStreamReader::Comment:
    case QXmlStreamReader::EntityReference:
    case QXmlStreamReader::ProcessingInstruction:
        break;
    }
    return error ? QXmlStreamReader::Invalid : token;
}

void FeedWalker::CheckStart()
{
    if (depth > limits.maxDepth)
    {
        Refuse(ErrorCause::FeedTooDeep, limits.maxDepth);
        return;
    }
    int const attributes = reader.attributes().size();
    hasAttributes = attributes > 0;
    markup += 1 + attributes;
    if (markup > limits.maxMarkup)
    {
        Refuse(ErrorCause::FeedTooMuchMarkup, limits.maxMarkup);
        return;
    }
    int const declared = reader.namespaceDeclarations().size();
    if (declared > 0)
    {
        namespacesInScope += declared;
        namespacesByDepth.emplace_back(depth, declared);
        if (namespacesInScope > limits.maxNamespaces)
        {
            Refuse(ErrorCause::FeedTooManyNamespaces, limits.maxNamespaces);
        }
    }
}

bool FeedWalker::EnterChild(QString* text)
{
    for (;;)
    {
        switch (Advance())
        {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return false;
        case QXmlStreamReader::Characters:
            if (text != nullptr && text->isNull())
            {
                // A copy of just this text. Appending would reserve memory that is seldom used, and toString() may
                // share the reader's whole buffer.
                *text = QString(reader.text().constData(), reader.text().size());
            }
            else if (text != nullptr)
            {
                text->append(reader.text());
            }
            break;
        case QXmlStreamReader::NoToken:
        case QXmlStreamReader::StartDocument:
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        }
    }
}

void FeedWalker::Refuse(ErrorCause cause, int limit)
{
    error = MakeParseError(cause, Line(), Column(), limit);
}

QString const& FeedWalker::PropertyName(QStringRef namespaceUri, QStringRef name, QStringRef qualifiedName)
{
    // Items are similar: the name that came next last time usually comes next again.
    for (size_t tried = 0; tried < knownNames.size(); ++tried)
    {
        expectedName = expectedName + 1 < knownNames.size() ? expectedName + 1 : 0;
        KnownName const& known = knownNames[expectedName];
        if (IsEqual(known.qualifiedName, qualifiedName) && IsEqual(known.namespaceUri, namespaceUri))
        {
            return known.propertyName;
        }
    }
    otherName = MakePropertyName(namespaceUri, name, qualifiedName);
    if (knownNames.size() == MOST_KNOWN_NAMES)
    {
        return otherName;
    }
    // Most names need one text only: names without a namespace and the feed's own are shown as written.
    knownNames.push_back({IsEqual(otherName, qualifiedName) ? otherName : qualifiedName.toString(),
                          IsFeedNamespace(namespaceUri) ? FEED_NAMESPACE_TEXT : namespaceUri.toString(), otherName});
    return knownNames.back().propertyName;
}

} // namespace Pelnar::Engine
