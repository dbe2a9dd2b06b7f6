// FeedItem.h: one item of a parsed feed, or one of its deltas, as plain values. Deltas belong to their item.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include <vector>

namespace Pelnar::Engine
{

/// The entries of \a inherited and of \a own; \a own has priority.
[[nodiscard]] inline QVariantMap OverlaidProperties(QVariantMap inherited, QVariantMap const& own)
{
    if (inherited.isEmpty())
    {
        return own;
    }
    for (auto entry = own.cbegin(); entry != own.cend(); ++entry)
    {
        inherited.insert(entry.key(), entry.value());
    }
    return inherited;
}

/// For which installations an item is meant; ReleaseRules.h judges it. A delta has the same values as its item.
struct ItemPolicy
{
    QString channel;              ///< empty: for all
    QStringList machines;         ///< of the enclosure; empty: for all
    QStringList hardware;         ///< that the item requires; empty: none
    QString criticalBelow;        ///< critical for versions before this one; empty: for all, if it is critical
    QStringList informationalFor; ///< installed versions
    QString informationalBelow;
    QString minimumUpdateVersion;     ///< older versions cannot be updated to it
    QString minimumAutoupdateVersion; ///< older versions are not updated to it without asking a person
    qint64 rolloutSeconds = 0;        ///< from one group of a staged rollout to the next; 0: not staged
    bool isInformational = false;     ///< for every version, unless informationalFor or informationalBelow names some
    bool isToBeAsked = false;         ///< set by LeaveOut: it is not downloaded before a person has agreed
    bool isWithdrawn = false;
};

/// A signature of an item's download, and the id of the key that made it.
struct FeedSignature
{
    QString keyId;
    QString signature;
};

struct FeedItem
{
    QString title;
    QString dateString;
    QString description;
    QString descriptionFormat; ///< as written; empty if the feed does not name it
    QString minimumSystemVersion;
    QString maximumSystemVersion;
    QUrl releaseNotesUrl;      ///< absolute; empty when absent
    QUrl infoUrl;              ///< absolute; empty when absent
    QUrl fileUrl;              ///< absolute; empty when absent
    quint64 contentLength = 0; ///< in bytes; 0 if it is missing, zero, negative, too large or not decimal
    QString versionString;
    QString displayVersionString; ///< empty if the feed has none
    QString edSignature;
    QString signerKey;                     ///< id of the key of edSignature; empty if the feed does not name it
    std::vector<FeedSignature> signatures; ///< the enclosure's other signatures, each with the id of its key
    QStringList trustedKeys;  ///< ids of the keys that this version trusts; empty if the feed does not name them
    QString installationType; ///< empty if the feed does not name it
    QString deltaFrom;        ///< the version that this delta starts from; deltas only
    bool isDelta = false;
    bool isCritical = false;
    ItemPolicy policy;
    /// Every child element by its qualified name, then the item's attributes if the name is free. Names of the feed's
    /// namespace have the prefix "sparkle:", whichever prefix the feed uses; a foreign name with the prefix "sparkle"
    /// becomes "{namespace}name". Text is a QString. An element with attributes or children is a QVariantMap of both,
    /// with its text, if any, under "#text". A repeated name holds a QVariantList. A delta has only the values of its
    /// own tag.
    QVariantMap properties;
    /// Deltas only: the properties of the item, shared with it, so that many deltas of a large item need no copies.
    /// AllProperties() joins the two.
    QVariantMap inheritedProperties;
    std::vector<FeedItem> deltas;
    std::vector<FeedItem> recompressed; ///< at most one: the same bundle in a smaller archive; only its download is set
    int line = 0;                       ///< the end of the item's (or the delta's) start tag, from 1
    int column = 0;                     ///< from 1

    /// The properties that a reader of the item sees. For a delta: the item's entries, replaced by its own where both
    /// exist.
    [[nodiscard]] QVariantMap AllProperties() const { return OverlaidProperties(inheritedProperties, properties); }
};

} // namespace Pelnar::Engine
