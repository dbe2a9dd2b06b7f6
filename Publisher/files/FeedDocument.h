// FeedDocument.h: a feed as it is written: every element with its place, including elements that the parser ignores.
// Ownership: a tree of values. Pointers into it are valid as long as the tree exists.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

struct TextPlace
{
    int line = 0;   ///< from 1
    int column = 0; ///< from 1
};

/// The name of an element or of an attribute.
struct XmlName
{
    QString namespaceUri;
    QString local;
    QString qualified; ///< as written

    /// True if it has no namespace and this local name.
    [[nodiscard]] bool IsPlain(char const* name) const;
    /// True if it is in the feed's namespace and has this local name.
    [[nodiscard]] bool IsFeeds(char const* name) const;
    /// In our own namespace and with this local name.
    [[nodiscard]] bool IsOwn(char const* name) const;
};

struct XmlAttribute
{
    XmlName name;
    QString value;
};

struct XmlNamespace
{
    QString prefix;
    QString uri;
};

/// A piece of the feed's text, from its first character to the one after it.
struct TextRange
{
    int start = 0;
    int end = 0;
};

struct XmlElement
{
    XmlName name;
    TextPlace place;   ///< of the tag's "<"
    TextRange range;   ///< with its tags
    TextRange content; ///< between its tags
    int parserLine = 0;
    int parserColumn = 0; ///< the parser's place for the element: the end of its start tag
    std::vector<XmlAttribute> attributes;
    std::vector<XmlNamespace> namespaces; ///< declared here
    QString text;                         ///< directly inside
    std::vector<XmlElement> children;

    /// The attribute's value; nothing if it is absent.
    std::optional<QString> PlainAttribute(char const* local) const;
    std::optional<QString> FeedAttribute(char const* local) const;
    std::optional<QString> OwnAttribute(char const* local) const;

    /// Returns the first child with this name, or null.
    XmlElement const* PlainChild(char const* local) const;
    XmlElement const* FeedChild(char const* local) const;
    XmlElement const* OwnChild(char const* local) const;

    /// True for "<a/>", which has no end tag.
    [[nodiscard]] bool IsSingleTag() const { return content.start == range.end; }
    /// True if the parser made \a item from this element.
    [[nodiscard]] bool IsSourceOf(Engine::FeedItem const& item) const;
};

/// True if a namespace is the feed's own.
[[nodiscard]] bool IsFeedNamespaceUri(QString const& uri);

/// REQUIRES: the parser accepts \a bytes.
XmlElement ReadFeedDocument(QByteArray const& bytes);

/// Every item below \a root, at any depth, in the order of the feed.
std::vector<XmlElement const*> ItemElements(XmlElement const& root);

} // namespace Pelnar::Publisher
