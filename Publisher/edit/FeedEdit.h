// FeedEdit.h: a published feed whose items are changed at single places, with every other byte as it was.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace Pelnar::Publisher
{

/// A piece of the text, from its first character to the one behind it.
struct TextRange
{
    int start = 0;
    int end = 0;
};

struct EditedChild
{
    QString namespaceUri;
    QString name;
    TextRange range; ///< with its tags
};

struct EditedItem
{
    Engine::FeedItem item; ///< as the first platform that takes it reads it
    TextRange range;       ///< with its tags
    int contentStart = 0;  ///< behind its start tag
    std::vector<EditedChild> children;
};

class FeedEdit
{
public:
    /// Throws Refusal for what clients cannot read, for what is not UTF-8, and for items that have no end tag.
    FeedEdit(QString name, QByteArray bytes);

    QString const& Name() const { return m_name; }
    std::vector<EditedItem> const& Items() const { return m_items; }
    /// The items of \a version, in any spelling of it. Throws Refusal if there are none.
    std::vector<EditedItem const*> ItemsOf(QString const& version) const;

    /// Puts \a line on a line of its own before the text at \a place, indented like it.
    void InsertLine(int place, QString const& line);
    /// Takes \a range out, with the blanks before it and the end of the line before.
    void Remove(TextRange const& range);
    void Replace(TextRange const& range, QString const& text);
    /// Where the first child stands, or the end tag.
    int FirstPlaceIn(EditedItem const& item) const;

    [[nodiscard]] bool HasChanges() const { return !m_changes.empty(); }
    /// "-" and what goes, "+" and what comes, in the order of the feed.
    QStringList Differences() const;
    QByteArray Bytes() const;

private:
    struct Change
    {
        TextRange range;
        QString text;
    };

    void TakePlaces();
    std::vector<Change> SortedChanges() const;

    QString m_name;
    QString m_text;
    bool m_hasMark = false; ///< of the byte order, before the text
    std::vector<EditedItem> m_items;
    std::vector<Change> m_changes;
};

} // namespace Pelnar::Publisher
