#include "Publisher/files/FeedDocument.h"

#include "Engine/core/feed/FeedEncoding.h"
#include "Engine/core/feed/FeedWalker.h"

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

std::optional<QString> ValueOf(std::vector<XmlAttribute> const& attributes, bool (XmlName::*matches)(char const*) const,
                               char const* local)
{
    for (XmlAttribute const& attribute : attributes)
    {
        if ((attribute.name.*matches)(local))
        {
            return attribute.value;
        }
    }
    return std::nullopt;
}

XmlElement const* ChildOf(XmlElement const& parent, bool (XmlName::*matches)(char const*) const, char const* local)
{
    auto const found = std::find_if(parent.children.begin(), parent.children.end(),
                                    [&](XmlElement const& child) { return (child.name.*matches)(local); });
    return found == parent.children.end() ? nullptr : &*found;
}

XmlElement ElementAt(Engine::FeedWalker const& walker)
{
    QXmlStreamReader const& reader = walker.Reader();
    XmlElement element;
    element.name = {reader.namespaceUri().toString(), reader.name().toString(), reader.qualifiedName().toString()};
    element.parserLine = walker.Line();
    element.parserColumn = walker.Column();
    for (QXmlStreamNamespaceDeclaration const& declaration : reader.namespaceDeclarations())
    {
        element.namespaces.push_back({declaration.prefix().toString(), declaration.namespaceUri().toString()});
    }
    for (QXmlStreamAttribute const& attribute : reader.attributes())
    {
        element.attributes.push_back(
            {{attribute.namespaceUri().toString(), attribute.name().toString(), attribute.qualifiedName().toString()},
             attribute.value().toString()});
    }
    return element;
}

class DocumentReader
{
public:
    explicit DocumentReader(Engine::FeedDocument const& document)
        : m_text(document.text.isNull() ? QString::fromUtf8(document.utf8) : document.text)
        , m_walker(document.utf8, document.text, m_limits)
    {
        // Lines end where the XML reader sees their end.
        for (int i = 0; i < m_text.size(); ++i)
        {
            bool const isLoneReturn = m_text.at(i) == u'\r' && (i + 1 == m_text.size() || m_text.at(i + 1) != u'\n');
            if (m_text.at(i) == u'\n' || isLoneReturn)
            {
                m_lineStarts.push_back(i + 1);
            }
        }
    }

    /// Reads the content of \a parent. The parser's depth limit bounds the recursion.
    void ReadChildren(XmlElement& parent)
    {
        while (m_walker.EnterChild(&parent.text))
        {
            XmlElement& child = parent.children.emplace_back(ElementAt(m_walker));
            child.content.start = Offset();
            child.range.start = TagBefore(child.content.start);
            child.place = PlaceOf(child.range.start);
            ReadChildren(child);
            child.range.end = Offset();
            child.content.end = child.IsSingleTag() ? child.range.end : TagBefore(child.range.end);
        }
    }

private:
    int Offset() const { return int(m_walker.Reader().characterOffset()); }

    /// The start of the tag that ends at \a end. A tag contains no other "<".
    int TagBefore(int end) const { return std::max(m_text.lastIndexOf(u'<', end - 1), 0); }

    TextPlace PlaceOf(int offset) const
    {
        auto const next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), offset);
        return {int(next - m_lineStarts.begin()), offset - *std::prev(next) + 1};
    }

    QString const m_text;
    std::vector<int> m_lineStarts{0};
    Engine::FeedLimits const m_limits;
    Engine::FeedWalker m_walker;
};

void CollectItems(XmlElement const& element, std::vector<XmlElement const*>& items)
{
    for (XmlElement const& child : element.children)
    {
        if (child.name.IsPlain("item"))
        {
            items.push_back(&child);
        }
        else
        {
            CollectItems(child, items);
        }
    }
}

} // namespace

bool IsFeedNamespaceUri(QString const& uri)
{
    return Engine::IsFeedNamespace(QStringRef(&uri));
}

bool XmlName::IsPlain(char const* name) const
{
    return namespaceUri.isEmpty() && local == QLatin1String(name);
}

bool XmlName::IsFeeds(char const* name) const
{
    return local == QLatin1String(name) && IsFeedNamespaceUri(namespaceUri);
}

bool XmlName::IsOwn(char const* name) const
{
    return namespaceUri == QLatin1String(Engine::OWN_FEED_NAMESPACE) && local == QLatin1String(name);
}

std::optional<QString> XmlElement::PlainAttribute(char const* local) const
{
    return ValueOf(attributes, &XmlName::IsPlain, local);
}

std::optional<QString> XmlElement::FeedAttribute(char const* local) const
{
    return ValueOf(attributes, &XmlName::IsFeeds, local);
}

std::optional<QString> XmlElement::OwnAttribute(char const* local) const
{
    return ValueOf(attributes, &XmlName::IsOwn, local);
}

XmlElement const* XmlElement::PlainChild(char const* local) const
{
    return ChildOf(*this, &XmlName::IsPlain, local);
}

XmlElement const* XmlElement::FeedChild(char const* local) const
{
    return ChildOf(*this, &XmlName::IsFeeds, local);
}

XmlElement const* XmlElement::OwnChild(char const* local) const
{
    return ChildOf(*this, &XmlName::IsOwn, local);
}

bool XmlElement::IsSourceOf(Engine::FeedItem const& item) const
{
    return parserLine == item.line && parserColumn == item.column;
}

XmlElement ReadFeedDocument(QByteArray const& bytes)
{
    XmlElement document;
    document.place = {1, 1};
    DocumentReader(Engine::DecodeFeed(bytes)).ReadChildren(document);
    return document;
}

std::vector<XmlElement const*> ItemElements(XmlElement const& root)
{
    std::vector<XmlElement const*> items;
    CollectItems(root, items);
    return items;
}

} // namespace Pelnar::Publisher
