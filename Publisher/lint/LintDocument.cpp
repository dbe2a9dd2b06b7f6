#include "Publisher/lint/LintDocument.h"

#include "Engine/core/feed/FeedEncoding.h"
#include "Engine/core/feed/FeedWalker.h"

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

std::optional<QString> ValueOf(std::vector<LintAttribute> const& attributes,
                               bool (LintName::*matches)(char const*) const, char const* local)
{
    for (LintAttribute const& attribute : attributes)
    {
        if ((attribute.name.*matches)(local))
        {
            return attribute.value;
        }
    }
    return std::nullopt;
}

LintElement const* ChildOf(LintElement const& parent, bool (LintName::*matches)(char const*) const, char const* local)
{
    auto const found = std::find_if(parent.children.begin(), parent.children.end(),
                                    [&](LintElement const& child) { return (child.name.*matches)(local); });
    return found == parent.children.end() ? nullptr : &*found;
}

LintElement StartElement(Engine::FeedWalker const& walker, LintPlace place)
{
    QXmlStreamReader const& reader = walker.Reader();
    LintElement element;
    element.name = {reader.namespaceUri().toString(), reader.name().toString(), reader.qualifiedName().toString()};
    element.place = place;
    element.parserLine = walker.Line();
    element.parserColumn = walker.Column();
    QXmlStreamNamespaceDeclarations const declarations = reader.namespaceDeclarations();
    for (QXmlStreamNamespaceDeclaration const& declaration : declarations)
    {
        element.namespaces.push_back({declaration.prefix().toString(), declaration.namespaceUri().toString()});
    }
    QXmlStreamAttributes const attributes = reader.attributes();
    for (QXmlStreamAttribute const& attribute : attributes)
    {
        element.attributes.push_back(
            {{attribute.namespaceUri().toString(), attribute.name().toString(), attribute.qualifiedName().toString()},
             attribute.value().toString()});
    }
    return element;
}

/// The feed's text by lines. Lines end where the XML reader sees their end.
class Lines
{
public:
    explicit Lines(QString const& text) : m_text(text)
    {
        m_starts.push_back(0);
        for (int i = 0; i < text.size(); ++i)
        {
            bool const isLoneReturn = text.at(i) == u'\r' && (i + 1 == text.size() || text.at(i + 1) != u'\n');
            if (text.at(i) == u'\n' || isLoneReturn)
            {
                m_starts.push_back(i + 1);
            }
        }
    }

    /// The start of the tag that ends at a place. A tag contains no other "<".
    LintPlace TagBefore(int line, int column) const
    {
        int const end = m_starts.at(std::size_t(line) - 1) + column - 1;
        int const begin = std::max(m_text.lastIndexOf(u'<', end - 1), 0);
        auto const next = std::upper_bound(m_starts.begin(), m_starts.end(), begin);
        return {int(next - m_starts.begin()), begin - *std::prev(next) + 1};
    }

private:
    QString const m_text;
    std::vector<int> m_starts;
};

/// Reads the content of \a parent. The parser's depth limit bounds the recursion.
void ReadChildren(Engine::FeedWalker& walker, Lines const& lines, LintElement& parent)
{
    for (;;)
    {
        switch (walker.Advance())
        {
        case QXmlStreamReader::StartElement:
            parent.children.push_back(StartElement(walker, lines.TagBefore(walker.Line(), walker.Column())));
            ReadChildren(walker, lines, parent.children.back());
            break;
        case QXmlStreamReader::Characters:
            parent.text += walker.Reader().text();
            break;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return;
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

void CollectItems(LintElement const& element, std::vector<LintElement const*>& items)
{
    for (LintElement const& child : element.children)
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

bool LintName::IsPlain(char const* name) const
{
    return namespaceUri.isEmpty() && local == QLatin1String(name);
}

bool LintName::IsFeeds(char const* name) const
{
    return local == QLatin1String(name) && IsFeedNamespaceUri(namespaceUri);
}

bool LintName::IsOwn(char const* name) const
{
    return namespaceUri == QLatin1String(Engine::OWN_FEED_NAMESPACE) && local == QLatin1String(name);
}

std::optional<QString> LintElement::PlainAttribute(char const* local) const
{
    return ValueOf(attributes, &LintName::IsPlain, local);
}

std::optional<QString> LintElement::FeedAttribute(char const* local) const
{
    return ValueOf(attributes, &LintName::IsFeeds, local);
}

std::optional<QString> LintElement::OwnAttribute(char const* local) const
{
    return ValueOf(attributes, &LintName::IsOwn, local);
}

LintElement const* LintElement::PlainChild(char const* local) const
{
    return ChildOf(*this, &LintName::IsPlain, local);
}

LintElement const* LintElement::FeedChild(char const* local) const
{
    return ChildOf(*this, &LintName::IsFeeds, local);
}

LintElement const* LintElement::OwnChild(char const* local) const
{
    return ChildOf(*this, &LintName::IsOwn, local);
}

LintElement ReadLintDocument(QByteArray const& bytes)
{
    Engine::FeedDocument const document = Engine::DecodeFeed(bytes);
    Engine::FeedLimits const limits;
    Engine::FeedWalker walker(document.utf8, document.text, limits);
    LintElement root;
    root.place = {1, 1};
    ReadChildren(walker, Lines(document.text.isNull() ? QString::fromUtf8(document.utf8) : document.text), root);
    return root;
}

std::vector<LintElement const*> ItemElements(LintElement const& root)
{
    std::vector<LintElement const*> items;
    CollectItems(root, items);
    return items;
}

} // namespace Pelnar::Publisher
