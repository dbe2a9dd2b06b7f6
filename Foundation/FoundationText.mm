#include "Foundation/FoundationText.h"

namespace Pelnar::Foundation
{

QString ToQString(NSString* text)
{
    if (!text)
    {
        return QString();
    }
    // getCharacters:range: copies directly into the string. UTF8String would convert twice and leave an autoreleased
    // buffer.
    static_assert(sizeof(unichar) == sizeof(QChar), "both are UTF-16 code units");
    NSUInteger const length = [text length];
    QString result(static_cast<int>(length), Qt::Uninitialized);
    [text getCharacters:reinterpret_cast<unichar*>(result.data()) range:NSMakeRange(0, length)];
    return result;
}

NSString* ToNSString(QString const& text)
{
    if (!text.isValidUtf16())
    {
        // Foundation cannot make a string of unpaired surrogates; the round trip replaces them.
        return ToNSString(QString::fromUtf8(text.toUtf8()));
    }
    return [NSString stringWithCharacters:reinterpret_cast<unichar const*>(text.utf16())
                                   length:static_cast<NSUInteger>(text.length())];
}

std::string ToUtf8(NSString* text) { return ToQString(text).toStdString(); }

QUrl ToQUrl(NSURL* url) { return url ? QUrl(ToQString([url absoluteString])) : QUrl(); }

NSURL* ToNSURL(QUrl const& url)
{
    if (url.isEmpty() || !url.isValid())
    {
        return nil;
    }
    QUrl rooted = url;
    if (!url.host().isEmpty() && url.path().isEmpty() && (url.hasQuery() || url.hasFragment()))
    {
        // The same address. GNUstep refuses it without a path.
        rooted.setPath(QStringLiteral("/"));
    }
    return [NSURL URLWithString:ToNSString(QString::fromLatin1(rooted.toEncoded()))];
}

} // namespace Pelnar::Foundation
