// FeedWalker.cpp: the XML reader behind the feed's limits.
#include "Engine/core/feed/FeedWalker.h"

#include "Engine/core/feed/FeedText_p.h"

#include <cstring>

namespace Pelnar::Engine
{

namespace
{

QString const FEED_NAMESPACE = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");
QLatin1String const FEED_PREFIX("sparkle:");
constexpr size_t MOST_KNOWN_NAMES = 32;

/// Inline, as this runs for every name of a feed.
bool IsEqual(QString const& a, QStringRef b)
{
    return a.size() == b.size() &&
           std::memcmp(a.constData(), b.constData(), static_cast<size_t>(a.size()) * sizeof(QChar)) == 0;
}

QString MakePropertyName(QStringRef namespaceUri, QStringRef name, QStringRef qualifiedName)
{
    if (IsFeedNamespace(namespaceUri))
    {
        return FEED_PREFIX + name;
    }
    if (qualifiedName.startsWith(FEED_PREFIX))
    {
        return QLatin1Char('{') + namespaceUri + QLatin1Char('}') + name;
    }
    return qualifiedName.toString();
}

/// It names the line first.
Sentence SentenceOf(FeedErrorKind kind, int line, FeedLimits const& limits)
{
    QString const lineText = QString::number(line);
    switch (kind)
    {
    case FeedErrorKind::None:
        return {};
    case FeedErrorKind::Malformed:
        return Sentence(QT_TRANSLATE_NOOP("PelnarEngine_Errors", "Line %1 of the feed is not well-formed XML."),
                        {lineText});
    case FeedErrorKind::DocumentType:
        return Sentence(QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                          "Line %1 of the feed has a document type declaration, which is not allowed."),
                        {lineText});
    case FeedErrorKind::TooDeep:
        return Sentence(
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "Line %1 of the feed nests elements more than %2 levels deep."),
            {lineText, QString::number(limits.maxDepth)});
    case FeedErrorKind::TooManyAttributes:
        return Sentence(
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "Line %1 of the feed has a tag with more than %2 attributes."),
            {lineText, QString::number(limits.maxAttributes)});
    case FeedErrorKind::TagTooLong:
        return Sentence(
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "Line %1 of the feed has a tag of more than %2 bytes."),
            {lineText, QString::number(limits.maxTagBytes)});
    case FeedErrorKind::TooMuchMarkup:
        return Sentence(QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                          "Line %1 of the feed exceeds the limit of %2 elements and attributes."),
                        {lineText, QString::number(limits.maxMarkup)});
    case FeedErrorKind::TooManyItems:
        return Sentence(QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                          "Line %1 of the feed has item number %2, but only %3 are allowed."),
                        {lineText, QString::number(limits.maxItems + 1), QString::number(limits.maxItems)});
    case FeedErrorKind::TooManyNamespaces:
        return Sentence(
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "Line %1 of the feed has more than %2 namespaces declared."),
            {lineText, QString::number(limits.maxNamespaces)});
    case FeedErrorKind::NotAFeed:
        return Sentence(
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "Line %1 of the feed begins a web page instead of a feed."),
            {lineText});
    }
    return Sentence(QT_TRANSLATE_NOOP("PelnarEngine_Errors", "Line %1 of the feed has an unknown error."), {lineText});
}

} // namespace

bool IsFeedNamespace(QStringRef namespaceUri)
{
    return IsEqual(FEED_NAMESPACE, namespaceUri);
}

FeedParseError MakeFeedError(FeedErrorKind kind, int line, int column, FeedLimits const& limits)
{
    FeedParseError error;
    error.kind = kind;
    error.line = line;
    error.column = column;
    error.sentence = SentenceOf(kind, line, limits);
    return error;
}

FeedWalker::FeedWalker(QByteArray const& utf8, QString const& text, FeedLimits const& documentLimits)
    : limits(documentLimits), isUtf8(text.isNull())
{
    knownNames.reserve(MOST_KNOWN_NAMES);
    if (isUtf8)
    {
        reader.addData(utf8);
    }
    else
    {
        reader.addData(text);
    }
}

QXmlStreamReader::TokenType FeedWalker::Advance()
{
    if (error.kind != FeedErrorKind::None)
    {
        return QXmlStreamReader::Invalid;
    }
    QXmlStreamReader::TokenType const token = reader.readNext();
    switch (token)
    {
    case QXmlStreamReader::Invalid:
        if (reader.hasError())
        {
            Refuse(FeedErrorKind::Malformed);
            // The reader quotes the character that it met.
            error.detail = CleanFeedText(reader.errorString(), FeedTextKind::SingleLine);
        }
        break;
    case QXmlStreamReader::DTD:
        Refuse(FeedErrorKind::DocumentType);
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
            // What the reader would see from here on is not what was scanned.
            Refuse(FeedErrorKind::Malformed);
            error.detail = QStringLiteral("The XML declaration is ambiguous.");
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
    return error.kind == FeedErrorKind::None ? token : QXmlStreamReader::Invalid;
}

void FeedWalker::CheckStart()
{
    if (depth > limits.maxDepth)
    {
        Refuse(FeedErrorKind::TooDeep);
        return;
    }
    int const attributes = reader.attributes().size();
    hasAttributes = attributes > 0;
    markup += 1 + attributes;
    if (markup > limits.maxMarkup)
    {
        Refuse(FeedErrorKind::TooMuchMarkup);
        return;
    }
    int const declared = reader.namespaceDeclarations().size();
    if (declared > 0)
    {
        namespacesInScope += declared;
        namespacesByDepth.emplace_back(depth, declared);
        if (namespacesInScope > limits.maxNamespaces)
        {
            Refuse(FeedErrorKind::TooManyNamespaces);
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
                // A copy of just this text. Appending would reserve room for more, which seldom comes, and toString()
                // may share the reader's own buffer with all the room that it has.
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

void FeedWalker::Refuse(FeedErrorKind kind)
{
    error = MakeFeedError(kind, Line(), Column(), limits);
}

QString const& FeedWalker::PropertyName(QStringRef namespaceUri, QStringRef name, QStringRef qualifiedName)
{
    // Items are alike: the name that came next last time most often comes next again.
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
    // Most names need one text only: they are shown as written, in no namespace or in the feed's.
    knownNames.push_back({IsEqual(otherName, qualifiedName) ? otherName : qualifiedName.toString(),
                          IsFeedNamespace(namespaceUri) ? FEED_NAMESPACE : namespaceUri.toString(), otherName});
    return knownNames.back().propertyName;
}

} // namespace Pelnar::Engine
