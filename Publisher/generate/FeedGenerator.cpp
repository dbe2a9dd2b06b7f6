#include "Publisher/generate/FeedGenerator.h"

#include "Publisher/FeedSource.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/files/FolderLock.h"
#include "Publisher/gate/FeedLength.h"
#include "Publisher/gate/PrivateKeys.h"
#include "Publisher/generate/ArchiveIntake.h"
#include "Publisher/generate/DeltaStage.h"
#include "Publisher/generate/PublishedArchives.h"
#include "Publisher/generate/RecompressStage.h"
#include "Publisher/lint/KeyStatementRules.h"
#include "Publisher/lint/LintReport.h"
#include "Publisher/signfeed/FeedSigner.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <set>

namespace Pelnar::Publisher
{
namespace
{

constexpr char FEED_FILE[] = "appcast.xml";
QString const FEED_PREFIX = u"sparkle"_s;

/// The time of a reproducible build, otherwise now. Never the time of an archive, because a checkout or a copy changes
/// it. Throws Refusal.
std::int64_t MomentOfPublication()
{
    QByteArray const text = qgetenv("SOURCE_DATE_EPOCH");
    bool isNumber = false;
    qint64 const seconds = text.toLongLong(&isNumber);
    constexpr qint64 LAST_MOMENT = 253402300799; // of the year 9999: no date has more digits
    if (!text.isEmpty() && (!isNumber || seconds < 0 || seconds > LAST_MOMENT))
    {
        throw Refusal({u"SOURCE_DATE_EPOCH is \"%1\""_s.arg(QString::fromLocal8Bit(text)),
                       u"give the seconds since 1970, or unset it"_s});
    }
    constexpr qint64 A_DAY = 86400;
    if (seconds > QDateTime::currentSecsSinceEpoch() + A_DAY)
    {
        throw Refusal({u"SOURCE_DATE_EPOCH is %1, which is in the future"_s.arg(
                           QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate)),
                       u"give the seconds since 1970, or set the clock"_s});
    }
    return text.isEmpty() ? QDateTime::currentSecsSinceEpoch() : seconds;
}

DownloadAddress AddressOf(GenerateRequest const& request)
{
    if (request.urlTemplate.empty() && request.urlPrefix.empty())
    {
        throw Refusal(
            {u"--url-prefix is required"_s, u"give it, or --url-template; see pelnar-appcast generate --help"_s});
    }
    return request.urlTemplate.empty() ? DownloadAddress::UnderPrefix(QString::fromStdString(request.urlPrefix))
                                       : DownloadAddress::ByPattern(QString::fromStdString(request.urlTemplate));
}

std::vector<ClientShare> ClientsOf(GenerateRequest const& request)
{
    return request.clientsFile.empty() ? std::vector<ClientShare>()
                                       : ReadClientShares(QString::fromStdString(request.clientsFile));
}

/// The published feed, or an empty one.
FeedContent ReadPublished(QString const& feedFile, ISigner const& key)
{
    if (!Exists(feedFile))
    {
        return {};
    }
    return ReadFeedContent(feedFile, ReadFeedFile(feedFile), key, ChangedFeed::Refused);
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
            text.insert(u"<item"_s.size(), u" xmlns:%1=\"%2\""_s.arg(prefix, QLatin1String(Engine::FEED_NAMESPACE)));
        }
        additions.push_back({item.version, text});
    }
    return additions;
}

void Report(Console const& console, QString const& feedFile, std::vector<NewItem> const& items, std::size_t kept)
{
    for (NewItem const& item : items)
    {
        console.Print(u"added %1, version %2, %3 bytes"_s.arg(item.fileName, item.versionText,
                                                              QString::number(item.signature.length)));
        if (item.recompressed)
        {
            console.Print(u"  and as %1, %2 bytes"_s.arg(item.recompressed->fileName,
                                                         QString::number(item.recompressed->signature.length)));
        }
        for (NewDelta const& delta : item.deltas)
        {
            console.Print(u"  with %1, from version %2, %3 bytes"_s.arg(delta.fileName, delta.baseVersion,
                                                                        QString::number(delta.signature.length)));
        }
    }
    console.Print(u"%1: %2 added, %3 kept"_s.arg(feedFile, CountOf(items.size(), u"item"_s), QString::number(kept)));
}

/// With \a made, the archives that the feed names.
void WriteFeed(QString const& feedFile, QByteArray const& bytes, QUrl const& address,
               std::vector<std::unique_ptr<AtomicFile>> const& made)
{
    PublishedFeed const proof(feedFile, bytes, address);
    AtomicFile file(feedFile);
    file.Write(bytes);
    AtomicFile::CommitTogether(made, file);
}

/// The text of a finding, without the lines that move when items are added.
std::pair<LintRule, QString> KindOf(LintFinding const& finding)
{
    static QRegularExpression const LINE(u"line [0-9]+"_s);
    return {finding.rule, QString(finding.what).replace(LINE, u"line"_s)};
}

/// Throws Refusal for errors that the feed did not have before.
void RefuseNewErrors(QString const& feedFile, std::vector<LintFinding> const& before,
                     std::vector<LintFinding> const& after)
{
    std::set<std::pair<LintRule, QString>> known;
    for (LintFinding const& finding : before)
    {
        known.insert(KindOf(finding));
    }
    RefusalList refusals;
    for (LintFinding const& finding : after)
    {
        LintRuleEntry const& entry = EntryOf(finding.rule);
        if (entry.severity == Severity::Error && known.count(KindOf(finding)) == 0)
        {
            refusals.Add({feedFile, finding.place.line, finding.place.column,
                          u"%1: %2"_s.arg(QLatin1String(entry.name), finding.what), QString::fromLatin1(entry.mend)});
        }
    }
    refusals.ThrowIfAny();
}

/// One run for a folder that it has locked.
class FeedRun
{
public:
    FeedRun(GenerateRequest const& request, ISigner const& key, ISigner const* secondKey, Console const& console)
        : m_request(request)
        , m_key(key)
        , m_console(console)
        , m_workplace{QString::fromStdString(request.folder),
                      AddressOf(request),
                      key,
                      secondKey,
                      console,
                      request.machines,
                      MomentOfPublication(),
                      request.publicKeys}
        , m_feedFile(request.feedFile.empty() ? m_workplace.PathOf(QLatin1String(FEED_FILE))
                                              : QString::fromStdString(request.feedFile))
        , m_address(m_workplace.address.OfFeed(QFileInfo(m_feedFile).fileName()))
        , m_isNew(!Exists(m_feedFile))
    {
    }

    QString const& FeedFile() const { return m_feedFile; }

    ExitStatus Run()
    {
        std::vector<FolderArchive> const archives = ScanFolder(m_workplace.folder);
        m_published = ReadPublished(m_feedFile, m_key);
        PublishedFeed feed = OpenFeed(QString::fromStdString(m_request.title));
        std::vector<NewItem> items = TakeNew(feed, archives);
        RecompressStage recompressed(m_workplace, archives);
        if (m_request.isRecompressed)
        {
            recompressed.AddTo(items);
        }
        DeltaStage deltas(m_workplace, feed, archives);
        deltas.AddTo(items, {m_request.deltaCount, QString::fromStdString(m_request.clientsFile), ClientsOf(m_request),
                             m_request.deltaEffort});
        std::stable_sort(items.begin(), items.end(),
                         [](NewItem const& a, NewItem const& b) { return b.version < a.version; });
        if (items.empty() && m_isNew)
        {
            QStringList const ignored = IgnoredFiles(m_workplace.folder, archives, m_feedFile);
            throw Refusal(
                {m_workplace.folder,
                 ignored.isEmpty() ? u"contains no archive"_s : u"contains no archive, only "_s + ignored.join(u", "_s),
                 u"put zip or tar archives of bundles there, or installers with .sparkle_guided. or .sparkle_interactive. in their names"_s});
        }
        std::size_t const kept = feed.Items().size();
        QByteArray const bytes = FeedWith(items, feed);
        AsContent(
            [&] {
                CheckFeedLength({m_feedFile, m_workplace.folder, bytes, m_published.bytes.size()}, m_console);
            });
        std::vector<LintFinding> const findings = LintAsPublished(bytes, m_address);
        RefuseNewErrors(m_feedFile,
                        m_isNew ? std::vector<LintFinding>() : LintAsPublished(m_published.bytes, m_address), findings);
        m_workplace.RefuseChangedFiles();
        if (m_terms || bytes != m_published.bytes)
        {
            std::vector<std::unique_ptr<AtomicFile>> made = std::move(recompressed.Made());
            std::move(deltas.Made().begin(), deltas.Made().end(), std::back_inserter(made));
            WriteFeed(m_feedFile, bytes, m_address, made);
        }
        Report(m_console, m_feedFile, items, kept);
        TellIgnored(archives, items);
        TellOtherNotes(feed, archives);
        TellUnreadable(archives);
        return Judge(findings);
    }

private:
    PublishedFeed OpenFeed(QString const& title) const
    {
        QString const link = m_request.link.empty() ? LinkOfFiles() : QString::fromStdString(m_request.link);
        QByteArray bytes = m_isNew ? EmptyFeedText(title, link).toUtf8() : m_published.bytes;
        if (!m_request.keyStatementFile.empty())
        {
            bytes = WithKeyStatement(m_feedFile, bytes, QString::fromStdString(m_request.keyStatementFile), m_key);
        }
        return PublishedFeed(m_feedFile, bytes, m_address);
    }

    QString LinkOfFiles() const
    {
        return m_request.urlTemplate.empty() ? QString::fromStdString(m_request.urlPrefix)
                                             : m_address.resolved(QUrl(u"."_s)).toString();
    }

    std::vector<NewItem> TakeNew(PublishedFeed const& feed, std::vector<FolderArchive> const& archives)
    {
        RefusalList refusals;
        PublishedArchives published(m_workplace, feed);
        std::vector<FolderArchive> fresh = published.FindNew(archives, refusals);
        if (m_request.isRecompressed)
        {
            RemoveRecompressed(m_workplace, fresh, refusals);
        }
        bool const hasNewVersion =
            std::any_of(fresh.begin(), fresh.end(),
                        [](FolderArchive const& archive) { return archive.kind != ArchiveKind::Delta; });
        std::vector<NewItem> items;
        if (hasNewVersion)
        {
            bool const isSigned = m_request.isFeedSigned || m_published.isSigned;
            ArchiveIntake intake(m_workplace, feed, isSigned ? FeedSignature::Present : FeedSignature::Missing,
                                 published.Versions(refusals));
            items = intake.Take(fresh, refusals);
            CheckFolder(intake.Versions(), refusals);
        }
        else
        {
            CheckFolder(VersionsOf(feed), refusals);
        }
        refusals.ThrowIfAny();
        return items;
    }

    /// As the feed describes them.
    static std::vector<GatedVersion> VersionsOf(PublishedFeed const& feed)
    {
        std::vector<GatedVersion> versions;
        for (PublishedItem const& published : feed.Items())
        {
            versions.push_back(VersionOf(published.item, *published.platforms.begin(), feed.Name()));
        }
        return versions;
    }

    void CheckFolder(std::vector<GatedVersion> const& versions, RefusalList& refusals) const
    {
        std::set<QString> ids = KnownKeyIds(versions);
        for (QString const& id : m_workplace.KeyIds())
        {
            ids.insert(id);
        }
        refusals.Try([&] { CheckFolderForKeys(m_workplace.folder, ids, refusals); });
    }

    /// The feed with \a items, signed if needed.
    QByteArray FeedWith(std::vector<NewItem> const& items, PublishedFeed& feed)
    {
        if (m_request.title.empty() && !items.empty())
        {
            feed = OpenFeed(items.front().productName); // the product's name is known only now
        }
        QByteArray const bytes = feed.With(AdditionsOf(items, feed, m_workplace.address));
        bool const isNewlySigned = m_request.isFeedSigned && !m_published.isSigned;
        if (!isNewlySigned && (!m_published.isSigned || bytes == m_published.bytes))
        {
            return bytes;
        }
        SignedFeedBytes signedFeed = SignFeed(m_feedFile, bytes, m_key, m_request.terms, m_console);
        m_terms = signedFeed.terms;
        return signedFeed.bytes;
    }

    void TellIgnored(std::vector<FolderArchive> const& archives, std::vector<NewItem> const& items) const
    {
        QStringList ignored = IgnoredFiles(m_workplace.folder, archives, m_feedFile);
        for (NewItem const& item : items)
        {
            ignored.removeAll(item.recompressed ? item.recompressed->fileName : QString());
            for (NewDelta const& delta : item.deltas)
            {
                ignored.removeAll(delta.fileName);
            }
        }
        if (!ignored.isEmpty())
        {
            m_console.Print(u"ignored, because they are neither archives nor release notes of one: "_s +
                            ignored.join(u", "_s));
        }
    }

    /// Published items keep their notes: the files next to their archives may have changed since.
    void TellOtherNotes(PublishedFeed const& feed, std::vector<FolderArchive> const& archives) const
    {
        for (FolderArchive const& archive : archives)
        {
            Engine::FeedItem const* const item = m_workplace.FindPublished(feed, archive.fileName);
            NewItem written;
            RefusalList passedOver; // an unreadable archive does not belong to the release that is made now
            bool const isRead =
                passedOver.Try([&] { written.notes = ReadReleaseNotes(m_workplace.folder, archive.stem); });
            if (!item || item->isDelta || !item->releaseNotesUrl.isEmpty() || !isRead || written.notes.empty())
            {
                continue;
            }
            QString text = EmptyFeedText({}, {});
            text.insert(text.indexOf("</channel>"_l), ItemText(written, m_workplace.address, FEED_PREFIX, {}));
            std::vector<Engine::FeedItem> const read =
                Engine::ParseFeed(text.toUtf8(), m_address, written.platform).value_or(Engine::FeedContent()).items;
            if (!read.empty() && read.front().description != item->description)
            {
                m_workplace.Warn(
                    m_workplace.PathOf(archive.fileName),
                    u"the notes next to it differ from those of version %1 in the feed"_s.arg(item->versionString),
                    u"put them into the feed with \"edit-notes\", or ignore this"_s);
            }
        }
    }

    void TellUnreadable(std::vector<FolderArchive> const& archives) const
    {
        QStringList names{QFileInfo(m_feedFile).absoluteFilePath()};
        for (FolderArchive const& archive : archives)
        {
            names.append(archive.fileName);
        }
        QStringList const unreadable = UnreadableForOthers(m_workplace.folder, names);
        if (!unreadable.isEmpty())
        {
            m_workplace.Warn(unreadable.join(u", "_s),
                             u"cannot be read by all users, so perhaps not by the web server"_s,
                             u"use chmod 644 on the files to upload, and set the umask to 022"_s);
        }
    }

    /// The findings of lint for the whole feed, because published items may need a correction too.
    ExitStatus Judge(std::vector<LintFinding> const& findings) const
    {
        if (m_terms)
        {
            m_console.Print(u"%1: %2"_s.arg(m_feedFile, TextOf(*m_terms)));
        }
        if (!findings.empty())
        {
            PrintFindings(m_feedFile, findings, m_console);
        }
        return StatusOf(findings, Strictness::Everything);
    }

    GenerateRequest const& m_request;
    ISigner const& m_key;
    Console const& m_console;
    Workplace const m_workplace;
    QString const m_feedFile;
    QUrl const m_address;
    bool const m_isNew;
    FeedContent m_published;
    std::optional<Engine::FeedValidity> m_terms; ///< of the new signature
};

/// Null without one.
std::unique_ptr<ISigner> LoadSecondKey(GenerateRequest const& request, ISigner const& first)
{
    if (!request.secondSigner.IsGiven())
    {
        return nullptr;
    }
    std::unique_ptr<ISigner> second = LoadSigner(request.secondSigner);
    if (second->PublicKeyText() == first.PublicKeyText())
    {
        throw Refusal(
            {u"--second-key"_s, u"is the same key as the first"_s, u"give another key, or leave the option out"_s});
    }
    return second;
}

} // namespace

ExitStatus GenerateFeed(GenerateRequest const& request, Console const& console)
{
    std::unique_ptr<ISigner> const signer = LoadSigner(request.signer);
    std::unique_ptr<ISigner> const second = LoadSecondKey(request, *signer);
    FeedRun const preview(request, *signer, second.get(),
                          console); // bad options are reported before waiting for another run
    QString const folder = QString::fromStdString(request.folder);
    FolderLock const lock(folder, console);
    QString const feedFolder = QFileInfo(preview.FeedFile()).absolutePath();
    std::optional<FolderLock> feedLock;
    if (!lock.Holds(feedFolder))
    {
        feedLock.emplace(feedFolder, console);
    }
    return FeedRun(request, *signer, second.get(), console).Run();
}

} // namespace Pelnar::Publisher
