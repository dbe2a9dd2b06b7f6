// FeedEdit.h: changes single places of a published feed and keeps every other byte.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace Pelnar::Publisher
{

/// A piece of the text, from its first character to the one after it.
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
    Engine::FeedItem item; ///< as the first platform with this item reads it
    TextRange range;       ///< with its tags
    int contentStart = 0;  ///< after its start tag
    std::vector<EditedChild> children;
};

class FeedEdit
{
public:
    /// Throws Refusal if clients cannot read it, if it is not UTF-8, and if an item has no end tag.
    FeedEdit(QString name, QByteArray bytes);

    QString const& Name() const { return m_name; }
    std::vector<EditedItem> const& Items() const { return m_items; }
    /// The items of \a version, in any spelling of it. Throws Refusal if there are none.
    std::vector<EditedItem const*> ItemsOf(QString const& version) const;

    /// Adds \a line as a new line before the text at \a place, with the same indentation.
    void InsertLine(int place, QString const& line);
    /// Removes \a range, the blanks before it, and the end of the line before.
    void Remove(TextRange const& range);
    void Replace(TextRange const& range, QString const& text);
    /// The place of the first child, or of the end tag.
    int FirstPlaceIn(EditedItem const& item) const;

    [[nodiscard]] bool HasChanges() const { return !m_changes.empty(); }
    /// Removed lines with "-" and added lines with "+", in the order of the feed.
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
