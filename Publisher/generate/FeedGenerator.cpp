#include "Publisher/generate/FeedGenerator.h"

#include "Engine/core/payload/Ed25519Signature.h"
#include "Publisher/Progress.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/generate/ArchiveIntake.h"
#include "Publisher/generate/DeltaStage.h"
#include "Publisher/lint/LintReport.h"
#include "Publisher/signfeed/FeedSigner.h"

#include <QFileInfo>

#include <algorithm>
#include <climits>

namespace Pelnar::Publisher
{
namespace
{

constexpr char FEED_FILE[] = "appcast.xml";
QString const FEED_PREFIX = QStringLiteral("sparkle");
QString const FEED_NAMESPACE = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");

Engine::UpdateFault CheckSignature(Workplace const& workplace, InputFile const& file, Engine::FeedItem const& item)
{
    Progress bar(workplace.console.err, QStringLiteral("Verifying"));
    bar.Show(0, 1); // the verdict comes at once
    return Engine::VerifyFileSignature(file.descriptor.Get(), item.edSignature.toStdString(),
                                       {workplace.key.PublicKeyText().toStdString()});
}

/// The archives that are not in the feed. Those that are must be what the feed says.
std::vector<FolderArchive> NewArchives(Workplace const& workplace, PublishedFeed const& feed,
                                       std::vector<FolderArchive> const& archives)
{
    std::vector<FolderArchive> fresh;
    for (FolderArchive const& archive : archives)
    {
        Engine::FeedItem const* const item = workplace.FindPublished(feed, archive.fileName);
        if (!item)
        {
            fresh.push_back(archive);
            continue;
        }
        QString const path = workplace.PathOf(archive.fileName);
        InputFile const file = OpenInputFile(path);
        if (file.size != item->contentLength)
        {
            throw Refusal(
                {path, 0, 0,
                 QStringLiteral("is of %1 bytes, but is published with %2 (line %3 of the feed)")
                     .arg(file.size)
                     .arg(item->contentLength)
                     .arg(item->line),
                 QStringLiteral("put the published file back, and give a changed one a new version and name")});
        }
        if (CheckSignature(workplace, file, *item) != Engine::UpdateFault::None)
        {
            workplace.Warn(path, QStringLiteral("does not bear the published signature of this key"),
                           QStringLiteral("right only for what another key signed; else put the published file back"));
        }
    }
    return fresh;
}

/// The feed that is published, or an empty one.
FeedContent ReadFeedFile(QString const& feedFile, SigningKey const& key)
{
    if (!QFileInfo::exists(feedFile))
    {
        return {};
    }
    QByteArray const bytes = ReadInputFile(OpenInputFile(feedFile), INT_MAX, QStringLiteral("drop old items"));
    return ReadFeedContent(feedFile, bytes, key, ChangedFeed::Refused);
}

PublishedFeed OpenFeed(GenerateRequest const& request, QString const& feedFile, QByteArray const& content,
                       QString const& title)
{
    QString const link = QString::fromStdString(request.link.empty() ? request.urlPrefix : request.link);
    QUrl const address = DownloadAddress(QString::fromStdString(request.urlPrefix)).Of(QFileInfo(feedFile).fileName());
    bool const isNew = !QFileInfo::exists(feedFile);
    return PublishedFeed(feedFile, isNew ? EmptyFeedText(title, link).toUtf8() : content, address);
}

std::vector<Addition> AdditionsOf(std::vector<NewItem> const& items, PublishedFeed const& feed,
                                  DownloadAddress const& address)
{
    QString const prefix = feed.FeedPrefix().isEmpty() ? FEED_PREFIX : feed.FeedPrefix();
    std::vector<Addition> additions;
    for (NewItem const& item : items)
    {
        QString text = ItemText(item, address, prefix, feed.Indentation());
        if (feed.FeedPrefix().isEmpty())
        {
            text.insert(QStringLiteral("<item").size(), QStringLiteral(" xmlns:%1=\"%2\"").arg(prefix, FEED_NAMESPACE));
        }
        additions.push_back({item.version, text});
    }
    return additions;
}

void Report(Console const& console, QString const& feedFile, std::vector<NewItem> const& items, std::size_t kept)
{
    for (NewItem const& item : items)
    {
        console.Print(QStringLiteral("added %1, version %2, %3 bytes")
                          .arg(item.fileName, item.versionText)
                          .arg(item.signature.length));
        for (NewDelta const& delta : item.deltas)
        {
            console.Print(QStringLiteral("  with %1, from version %2, %3 bytes")
                              .arg(delta.fileName, delta.baseVersion)
                              .arg(delta.signature.length));
        }
    }
    console.Print(
        QStringLiteral("%1: %2 added, %3 kept").arg(feedFile, CountOf(items.size(), QStringLiteral("item"))).arg(kept));
}

QUrl FeedAddressOf(Workplace const& workplace, QString const& feedFile)
{
    return workplace.address.Of(QFileInfo(feedFile).fileName());
}

void WriteFeed(QString const& feedFile, QByteArray const& bytes, QUrl const& address)
{
    PublishedFeed const proof(feedFile, bytes, address);
    AtomicFile file(feedFile);
    file.Write(bytes);
    file.Commit(ExistingFile::Replace);
}

/// What lint says of the whole feed, for what was published before may need mending as well.
ExitStatus Judge(Console const& console, QString const& feedFile, QByteArray const& bytes, QUrl const& address)
{
    std::vector<LintFinding> const findings = LintFeed(bytes, address).findings;
    if (!findings.empty())
    {
        PrintFindings(feedFile, findings, console);
    }
    return StatusOf(findings, Strictness::Everything);
}

} // namespace

ExitStatus GenerateFeed(GenerateRequest const& request, Console const& console)
{
    SigningKey const key = SigningKey::Load(QString::fromStdString(request.keyFile));
    QString const folder = QString::fromStdString(request.folder);
    Workplace const workplace{folder, DownloadAddress(QString::fromStdString(request.urlPrefix)), key, console};
    QString const feedFile = request.feedFile.empty() ? workplace.PathOf(QLatin1String(FEED_FILE))
                                                      : QString::fromStdString(request.feedFile);
    std::vector<FolderArchive> const archives = ScanFolder(folder);
    QString title = QString::fromStdString(request.title);
    FeedContent const published = ReadFeedFile(feedFile, key);
    PublishedFeed feed = OpenFeed(request, feedFile, published.bytes, title);

    std::vector<NewItem> items = ArchiveIntake(workplace, feed).Take(NewArchives(workplace, feed, archives));
    DeltaStage(workplace, feed, archives).AddTo(items, request.deltaCount);
    std::stable_sort(items.begin(), items.end(),
                     [](NewItem const& a, NewItem const& b) { return b.version < a.version; });
    if (items.empty() && !QFileInfo::exists(feedFile))
    {
        throw Refusal({folder, 0, 0, QStringLiteral("holds no archive"),
                       QStringLiteral("put zip or tar archives of bundles there, or installers whose names are marked "
                                      ".sparkle_guided. or .sparkle_interactive.")});
    }
    if (title.isEmpty() && !items.empty())
    {
        // Only now is the product's name known.
        feed = OpenFeed(request, feedFile, published.bytes, items.front().productName);
    }
    QByteArray bytes = feed.With(AdditionsOf(items, feed, workplace.address));
    bool const isNewlySigned = request.isFeedSigned && !published.isSigned;
    std::optional<SignedFeedBytes> signedFeed;
    if (isNewlySigned || (published.isSigned && !items.empty()))
    {
        signedFeed = SignFeed(feedFile, bytes, key, {{}, request.validDays, QDateTime::currentDateTimeUtc()});
        bytes = signedFeed->bytes;
    }
    if (!items.empty() || signedFeed)
    {
        WriteFeed(feedFile, bytes, FeedAddressOf(workplace, feedFile));
    }
    Report(console, feedFile, items, feed.Items().size());
    if (signedFeed)
    {
        console.Print(QStringLiteral("%1: %2").arg(feedFile, TextOf(signedFeed->terms)));
    }
    return Judge(console, feedFile, bytes, FeedAddressOf(workplace, feedFile));
}

} // namespace Pelnar::Publisher
