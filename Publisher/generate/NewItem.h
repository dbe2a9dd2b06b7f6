// NewItem.h: an item that a feed is to get, and its text in the feed.
// Thread: any. Ownership: values only.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "HostFramework/Version.h"
#include "Publisher/generate/FolderScan.h"
#include "Publisher/keys/SigningKey.h"

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
    std::int64_t changedAt = 0;   ///< of the archive, in seconds since 1970
    std::optional<QString> notes; ///< HTML
    ArchiveSignature signature;
    std::vector<NewDelta> deltas;
};

/// Where the files of the feed's folder are published.
class DownloadAddress
{
public:
    /// Throws Refusal unless \a prefix is the address of a folder that clients download from.
    explicit DownloadAddress(QString const& prefix);

    QUrl Of(QString const& fileName) const;

private:
    QString m_prefix; ///< ends in "/"
};

/// The item's text, without blanks before it and after it, its lines indented below \a indentation. \a feedPrefix is
/// bound to the feed's namespace where the item will stand.
QString ItemText(NewItem const& item, DownloadAddress const& address, QString const& feedPrefix,
                 QString const& indentation);

/// A whole feed without items.
QString EmptyFeedText(QString const& title, QString const& link);

} // namespace Pelnar::Publisher
