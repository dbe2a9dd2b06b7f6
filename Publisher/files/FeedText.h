// FeedText.h: the text of a feed, in which single places are changed and every other byte is kept.
#pragma once

#include "Publisher/files/FeedDocument.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace Pelnar::Publisher
{

class FeedText
{
public:
    /// Throws Refusal if \a bytes are not UTF-8. Messages call the feed \a name.
    FeedText(QString const& name, QByteArray const& bytes);

    /// The text without changes.
    QString const& Original() const { return m_text; }
    /// A carriage return and a line feed if the text has both together, otherwise a line feed.
    QString LineEnd() const;
    /// Ranges that are replaced do not overlap. Texts at the same place are in the order of the calls.
    void Replace(TextRange const& range, QString const& text);
    void Insert(int place, QString const& text) { Replace({place, place}, text); }

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

    QString m_text;
    bool m_hasMark;                ///< of the byte order, before the text
    std::vector<Change> m_changes; ///< by place
};

} // namespace Pelnar::Publisher
