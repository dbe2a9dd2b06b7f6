// NewItem.h: an item that a feed is to get, and its text in the feed.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "HostFramework/Version.h"
#include "Publisher/generate/FolderScan.h"
#include "Publisher/keys/Signer.h"

#include <QUrl>

#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

struct NewDelta
{
    QString fileName;
    QString baseVersion;
    ArchiveSignature signature;
};

struct NewArchive
{
    QString fileName;
    ArchiveSignature signature;
};

struct NewItem
{
    QString fileName;
    ArchiveKind kind = ArchiveKind::Bundle;
    Engine::FeedPlatform platform = Engine::FeedPlatform::Linux;
    QString productName;
    QString versionText;
    Core::Version version;        ///< of versionText, all four components present
    QString displayVersion;       ///< empty when the bundle gives none
    QString minimumSystemVersion; ///< empty when the bundle gives none
    QStringList machines;         ///< that its program is for; empty for every one
    std::int64_t publishedAt = 0; ///< in seconds since 1970
    std::vector<ReleaseNotes> notes;
    ArchiveSignature signature;
    QString signerId;                       ///< of the key that signed
    QStringList trustedIds;                 ///< of the keys that the bundle trusts
    std::optional<NewArchive> recompressed; ///< the same bundle in a smaller archive
    std::vector<NewDelta> deltas;

    /// Bytes that a client downloads without a delta.
    std::uint64_t LeastBytes() const { return recompressed ? recompressed->signature.length : signature.length; }
};

/// Where the files of the feed's folder are published.
class DownloadAddress
{
public:
    /// Of a folder. Throws Refusal unless \a prefix is the address of one that clients download from.
    static DownloadAddress UnderPrefix(QString const& prefix);
    /// \a pattern has "{file}" in it once, and "{version}" where the item's version stands. Throws Refusal.
    static DownloadAddress ByPattern(QString const& pattern);

    QUrl Of(QString const& fileName, QString const& version) const;
    /// Where a feed of that name lies, as far as the pattern tells: relative addresses begin there.
    QUrl OfFeed(QString const& fileName) const;

private:
    DownloadAddress(QString option, QString pattern);

    QString m_pattern;
};

/// The item's text, without blanks before it and after it, its lines indented below \a indentation. \a feedPrefix is
/// bound to the feed's namespace where the item will stand.
QString ItemText(NewItem const& item, DownloadAddress const& address, QString const& feedPrefix,
                 QString const& indentation);

/// A whole feed without items.
QString EmptyFeedText(QString const& title, QString const& link);

} // namespace Pelnar::Publisher
