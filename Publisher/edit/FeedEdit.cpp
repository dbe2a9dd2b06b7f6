#include "Publisher/edit/FeedEdit.h"

#include "Publisher/Refusal.h"
#include "Publisher/choice/ClientInstallation.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

constexpr char BYTE_ORDER_MARK[] = "\xEF\xBB\xBF";
constexpr Engine::FeedPlatform PLATFORMS[] = {Engine::FeedPlatform::Linux, Engine::FeedPlatform::MacOS};

bool IsSame(QString const& a, QString const& b)
{
    Core::Version const version = WholeVersion(a);
    return version.IsValid() ? version == WholeVersion(b) : a == b;
}

} // namespace

FeedEdit::FeedEdit(QString name, QByteArray bytes)
    : m_name(std::move(name))
    , m_text(QString::fromUtf8(bytes.constData(), bytes.size()))
    , m_hasMark(bytes.startsWith(BYTE_ORDER_MARK))
{
    TakePlaces();
    for (Engine::FeedPlatform const platform : PLATFORMS)
    {
        Engine::FeedParseResult const feed = Engine::ParseFeed(bytes, QUrl(), platform);
        if (!feed)
        {
            throw Refusal({m_name, feed.error().line, feed.error().column, feed.error().sentence.English(),
                           u"correct the feed first"_s});
        }
        for (Engine::FeedItem const& item : feed->items)
        {
            for (EditedItem& each : m_items)
            {
                bool const isThis = each.item.line == item.line && each.item.column == item.column;
                if (isThis && each.item.versionString.isEmpty())
                {
                    each.item = item;
                }
            }
        }
    }
    // UTF-16 without a mark could be UTF-8 too, but XML has no zero.
    if (Bytes() != bytes || bytes.contains('\0'))
    {
        throw Refusal(
            {m_name, 1, 0, u"is not UTF-8; only UTF-8 feeds can be changed"_s, u"convert the feed to UTF-8"_s});
    }
}

void FeedEdit::TakePlaces()
{
    QXmlStreamReader reader(m_text);
    int depth = 0;
    int itemDepth = 0; // of the current item; 0 outside items
    while (!reader.atEnd())
    {
        QXmlStreamReader::TokenType const token = reader.readNext();
        int const offset = int(reader.characterOffset());
        if (token == QXmlStreamReader::StartElement)
        {
            ++depth;
            int const start = m_text.lastIndexOf(u'<', offset - 1);
            if (itemDepth == 0 && reader.namespaceUri().isEmpty() && reader.name() == "item"_l)
            {
                itemDepth = depth;
                EditedItem& item = m_items.emplace_back();
                item.range.start = start;
                item.contentStart = offset;
                item.item.line = int(reader.lineNumber());
                item.item.column = int(reader.columnNumber()) + 1;
            }
            else if (itemDepth > 0 && depth == itemDepth + 1)
            {
                m_items.back().children.push_back(
                    {reader.namespaceUri().toString(), reader.name().toString(), {start, offset}});
            }
        }
        else if (token == QXmlStreamReader::EndElement)
        {
            if (itemDepth > 0 && depth == itemDepth + 1)
            {
                m_items.back().children.back().range.end = offset;
            }
            else if (depth == itemDepth)
            {
                m_items.back().range.end = offset;
                itemDepth = 0;
            }
            --depth;
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
        throw Refusal({m_name, u"has no item with the version \"%1\""_s.arg(version),
                       u"pelnar-appcast matrix shows the versions of a feed"_s});
    }
    return items;
}

int FeedEdit::FirstPlaceIn(EditedItem const& item) const
{
    return item.children.empty() ? m_text.lastIndexOf("</"_l, item.range.end - 1) : item.children.front().range.start;
}

void FeedEdit::InsertLine(int place, QString const& line)
{
    int const lineStart = m_text.lastIndexOf(u'\n', place - 1) + 1;
    QString const before = m_text.mid(lineStart, place - lineStart);
    bool const isBlank = std::all_of(before.begin(), before.end(), [](QChar c) { return c.isSpace(); });
    QString const lineEnd = m_text.contains("\r\n"_l) ? u"\r\n"_s : u"\n"_s;
    m_changes.push_back({{place, place}, isBlank ? line + lineEnd + before : line});
}

void FeedEdit::Remove(TextRange const& range)
{
    int start = range.start;
    while (start > 0 && (m_text.at(start - 1) == u' ' || m_text.at(start - 1) == u'\t'))
    {
        --start;
    }
    bool const isLine = start > 0 && m_text.at(start - 1) == u'\n';
    if (isLine)
    {
        start -= start > 1 && m_text.at(start - 2) == u'\r' ? 2 : 1;
    }
    m_changes.push_back({{isLine ? start : range.start, range.end}, QString()});
}

void FeedEdit::Replace(TextRange const& range, QString const& text)
{
    if (m_text.mid(range.start, range.end - range.start) != text)
    {
        m_changes.push_back({range, text});
    }
}

std::vector<FeedEdit::Change> FeedEdit::SortedChanges() const
{
    std::vector<Change> changes = m_changes;
    std::stable_sort(changes.begin(), changes.end(),
                     [](Change const& a, Change const& b) { return a.range.start < b.range.start; });
    return changes;
}

QStringList FeedEdit::Differences() const
{
    QStringList lines;
    for (Change const& change : SortedChanges())
    {
        QString const gone = m_text.mid(change.range.start, change.range.end - change.range.start).trimmed();
        for (auto const& [mark, text] : {std::pair("- ", gone), std::pair("+ ", change.text.trimmed())})
        {
            for (QString const& line : text.split(u'\n', Qt::SkipEmptyParts))
            {
                lines.append(QLatin1String(mark) + line.trimmed());
            }
        }
    }
    return lines;
}

QByteArray FeedEdit::Bytes() const
{
    QString result;
    int done = 0;
    for (Change const& change : SortedChanges())
    {
        result += m_text.midRef(done, change.range.start - done) + change.text;
        done = change.range.end;
    }
    result += m_text.midRef(done);
    return m_hasMark ? BYTE_ORDER_MARK + result.toUtf8() : result.toUtf8();
}

} // namespace Pelnar::Publisher
