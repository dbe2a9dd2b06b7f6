// FeedItem.h: one item of a parsed feed, or one of its deltas, as plain values.
// Thread: a plain value. Ownership: its own data; deltas belong to their item.
#pragma once

#include <QString>
#include <QUrl>
#include <QVariantMap>

#include <vector>

namespace Pelnar::Engine
{

struct FeedItem
{
    QString title;
    QString dateString;
    QString description;
    QString descriptionFormat; ///< as written; empty when the feed says nothing
    QString minimumSystemVersion;
    QString maximumSystemVersion;
    QUrl releaseNotesUrl; ///< absolute; empty when absent
    QUrl infoUrl;         ///< absolute; empty when absent
    QUrl fileUrl;         ///< absolute; empty when absent
    quint64 contentLength = 0; ///< bytes; 0 when missing, zero, negative, too large or not decimal
    QString versionString;
    QString displayVersionString; ///< empty when the feed gives none
    QString edSignature;
    QString installationType; ///< empty when the feed says nothing
    QString deltaFrom;        ///< the version text that this delta starts from; deltas only
    bool isDelta = false;
    bool isCritical = false;
    /// Every child element by its qualified name (feed namespace names under "sparkle:"), then attributes of the item
    /// where the name is free. Text is a QString, an element with attributes or children a QVariantMap or QVariantList.
    /// A delta has its parent's entries overlaid by its own.
    QVariantMap properties;
    std::vector<FeedItem> deltas;
    int line = 0;   ///< where the item's (or the delta's) start tag ends, from 1
    int column = 0; ///< from 1
};

} // namespace Pelnar::Engine
