// FeedItem.h: one item of a parsed feed, or one of its deltas, as plain values.
// Thread: a plain value. Ownership: its own data; deltas belong to their item.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include <vector>

namespace Pelnar::Engine
{

/// The entries of \a inherited and those of \a own, which win.
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

/// What an item says of the installations that it is meant for: ReleaseRules.h. A delta has its parent's.
struct ItemPolicy
{
    QString channel;              ///< empty: for all
    QStringList machines;         ///< of the enclosure; empty: for all
    QStringList hardware;         ///< that the item requires; empty: none
    QString criticalBelow;        ///< critical for versions before this one; empty: for all, if it is critical
    QStringList informationalFor; ///< installed versions
    QString informationalBelow;
    QString minimumUpdateVersion;     ///< the oldest version that can be updated to it
    QString minimumAutoupdateVersion; ///< the oldest version that is updated to it without being asked
    qint64 rolloutSeconds = 0;        ///< from one group of a staged rollout to the next; 0: not staged
    bool isInformational = false;     ///< for every version, unless the two above name some
    bool isToBeAsked = false;         ///< settled by LeaveOut: it is not downloaded before a person has agreed
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
    QString descriptionFormat; ///< as written; empty when the feed says nothing
    QString minimumSystemVersion;
    QString maximumSystemVersion;
    QUrl releaseNotesUrl;      ///< absolute; empty when absent
    QUrl infoUrl;              ///< absolute; empty when absent
    QUrl fileUrl;              ///< absolute; empty when absent
    quint64 contentLength = 0; ///< bytes; 0 when missing, zero, negative, too large or not decimal
    QString versionString;
    QString displayVersionString; ///< empty when the feed gives none
    QString edSignature;
    QString signerKey;                     ///< id of the key that made edSignature; empty when the feed does not say
    std::vector<FeedSignature> signatures; ///< those that the enclosure has beside edSignature, each with its key's id
    QStringList trustedKeys;  ///< ids of the keys that this version's bundle trusts; empty when the feed does not say
    QString installationType; ///< empty when the feed says nothing
    QString deltaFrom;        ///< the version text that this delta starts from; deltas only
    bool isDelta = false;
    bool isCritical = false;
    ItemPolicy policy;
    /// Every child element by its qualified name (feed namespace names under "sparkle:", no matter which prefix the
    /// feed uses; a foreign name that is written with the prefix "sparkle" as "{namespace}name"), then attributes of
    /// the item where the name is free. Text is a QString; an element with attributes or children is a QVariantMap of
    /// both, with its text, if any, under "#text"; a name that stands more than once holds a QVariantList. A delta has
    /// here what its own tag says.
    QVariantMap properties;
    /// Deltas only: the parent's properties, shared with it. Kept apart so that many deltas of an item with many
    /// properties cost no copy each; AllProperties() overlays the two.
    QVariantMap inheritedProperties;
    std::vector<FeedItem> deltas;
    std::vector<FeedItem> recompressed; ///< at most one: the same bundle in a smaller archive, with its download alone
    int line = 0;   ///< where the item's (or the delta's) start tag ends, from 1
    int column = 0; ///< from 1

    /// What a reader of the item is shown: of a delta, its parent's entries overlaid by its own.
    [[nodiscard]] QVariantMap AllProperties() const { return OverlaidProperties(inheritedProperties, properties); }
};

} // namespace Pelnar::Engine
