// NewItem.h: a new item of a feed, and its text in the feed.
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
    QString displayVersion;       ///< empty if the bundle has none
    QString minimumSystemVersion; ///< empty if the bundle has none
    QStringList machines;         ///< for which its program is made; empty for every one
    std::int64_t publishedAt = 0; ///< in seconds since 1970
    std::vector<ReleaseNotes> notes;
    ArchiveSignature signature;
    QString signerId;                       ///< of the key that signed
    QStringList trustedIds;                 ///< of the keys that the bundle trusts
    std::optional<NewArchive> recompressed; ///< the same bundle in a smaller archive
    std::vector<NewDelta> deltas;

    /// The bytes of a download without a delta.
    std::uint64_t LeastBytes() const { return recompressed ? recompressed->signature.length : signature.length; }
};

/// Only these clients read deltas and archives packed by zstd.
inline bool IsBundleForLinux(NewItem const& item)
{
    return item.kind == ArchiveKind::Bundle && item.platform == Engine::FeedPlatform::Linux;
}

/// The place where the files of the feed's folder are published.
class DownloadAddress
{
public:
    /// From a folder's address. Throws Refusal unless clients can download from \a prefix.
    static DownloadAddress UnderPrefix(QString const& prefix);
    /// \a pattern contains "{file}" once, and "{version}" in the place of the item's version. Throws Refusal.
    static DownloadAddress ByPattern(QString const& pattern);

    QUrl Of(QString const& fileName, QString const& version) const;
    /// The address of a feed with that name, as far as the pattern says. Relative addresses are relative to it.
    QUrl OfFeed(QString const& fileName) const;

private:
    DownloadAddress(QString option, QString pattern);

    QString m_pattern;
};

/// The element for \a notes.
QString DescriptionText(ReleaseNotes const& notes);

/// The item's text, without outer blanks. Its lines are indented below \a indentation. \a feedPrefix is bound to the
/// feed's namespace at the item's place.
QString ItemText(NewItem const& item, DownloadAddress const& address, QString const& feedPrefix,
                 QString const& indentation);

/// A whole feed without items.
QString EmptyFeedText(QString const& title, QString const& link);

} // namespace Pelnar::Publisher
