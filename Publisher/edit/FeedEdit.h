// FeedEdit.h: the items of a published feed, and changes of single places in them.
#pragma once

#include "Publisher/files/FeedText.h"

namespace Pelnar::Publisher
{

struct EditedItem
{
    XmlElement const* element;
    Engine::FeedItem item; ///< as the first platform with this item reads it
};

class FeedEdit
{
public:
    /// Throws Refusal if clients cannot read the feed, and if it is not UTF-8.
    FeedEdit(QString name, QByteArray const& bytes);
    FeedEdit(FeedEdit const&) = delete;
    FeedEdit& operator=(FeedEdit const&) = delete;

    QString const& Name() const { return m_name; }
    /// With all changes.
    FeedText const& Text() const { return m_text; }
    std::vector<EditedItem> const& Items() const { return m_items; }
    /// The items of \a version, in any spelling of it. Throws Refusal if there are none.
    std::vector<EditedItem const*> ItemsOf(QString const& version) const;

    /// Adds \a line as a new line before the text at \a place, with the same indentation.
    void InsertLine(int place, QString const& line);
    /// Removes \a range, the blanks before it, and the end of the line before.
    void Remove(TextRange const& range);
    void Replace(TextRange const& range, QString const& text) { m_text.Replace(range, text); }
    /// The place of the first child, or of the end tag.
    int FirstPlaceIn(EditedItem const& item) const;

private:
    QString const m_name;
    FeedText m_text;
    XmlElement const m_document;
    std::vector<EditedItem> m_items;
};

} // namespace Pelnar::Publisher
