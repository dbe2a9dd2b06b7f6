#include "Publisher/edit/FeedEdit.h"

#include "Publisher/FeedSource.h"
#include "Publisher/Refusal.h"
#include "Publisher/choice/ClientInstallation.h"

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

constexpr Engine::FeedPlatform PLATFORMS[] = {Engine::FeedPlatform::Linux, Engine::FeedPlatform::MacOS};

bool IsSame(QString const& a, QString const& b)
{
    Core::Version const version = WholeVersion(a);
    return version.IsValid() ? version == WholeVersion(b) : a == b;
}

} // namespace

FeedEdit::FeedEdit(QString name, QByteArray const& bytes)
    : m_name(std::move(name)), m_text(m_name, bytes), m_document(ReadFeedDocument(bytes))
{
    for (XmlElement const* const element : ItemElements(m_document))
    {
        m_items.push_back({element, {}});
    }
    for (Engine::FeedPlatform const platform : PLATFORMS)
    {
        for (Engine::FeedItem const& item :
             ParseAsClient(m_name, bytes, {}, platform, u"correct the feed first"_s).items)
        {
            auto const known = std::find_if(m_items.begin(), m_items.end(),
                                            [&item](EditedItem const& each) { return each.element->IsSourceOf(item); });
            if (known != m_items.end() && known->item.versionString.isEmpty())
            {
                known->item = item;
            }
        }
    }
}

std::vector<EditedItem const*> FeedEdit::ItemsOf(QString const& version) const
{
    std::vector<EditedItem const*> items;
    for (EditedItem const& item : m_items)
    {
        if (IsSame(item.item.versionString, version))
        {
            items.push_back(&item);
        }
    }
    if (items.empty())
    {
        QStringList versions;
        std::transform(m_items.begin(), m_items.end(), std::back_inserter(versions),
                       [](EditedItem const& item) { return item.item.versionString; });
        versions.removeDuplicates();
        constexpr int MOST_NAMED = 10;
        throw Refusal({m_name, u"has no item with the version \"%1\""_s.arg(version),
                       versions.isEmpty()
                           ? u"add versions with \"generate\" first"_s
                           : u"give a version that it has, such as "_s + versions.mid(0, MOST_NAMED).join(u", "_s)});
    }
    return items;
}

int FeedEdit::FirstPlaceIn(EditedItem const& item) const
{
    std::vector<XmlElement> const& children = item.element->children;
    return children.empty() ? item.element->content.end : children.front().range.start;
}

void FeedEdit::InsertLine(int place, QString const& line)
{
    QString const& text = m_text.Original();
    int const lineStart = text.lastIndexOf(u'\n', place - 1) + 1;
    QString const before = text.mid(lineStart, place - lineStart);
    m_text.Insert(place, before.trimmed().isEmpty() ? line + m_text.LineEnd() + before : line);
}

void FeedEdit::Remove(TextRange const& range)
{
    QString const& text = m_text.Original();
    int start = range.start;
    while (start > 0 && (text.at(start - 1) == u' ' || text.at(start - 1) == u'\t'))
    {
        --start;
    }
    bool const isLine = start > 0 && text.at(start - 1) == u'\n';
    if (isLine)
    {
        start -= start > 1 && text.at(start - 2) == u'\r' ? 2 : 1;
    }
    m_text.Replace({isLine ? start : range.start, range.end}, QString());
}

} // namespace Pelnar::Publisher
