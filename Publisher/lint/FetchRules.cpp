#include "Publisher/lint/FetchRules.h"

#include "Engine/core/bundle/TrustedKeys.h"
#include "Publisher/FeedSource.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/BundleTree.h"
#include "Publisher/gate/ReleaseFiles.h"

#include <QFile>
#include <QFileInfo>

#include <set>

namespace Pelnar::Publisher
{
namespace
{

using Engine::ErrorCause;
using Engine::UpdateFault;

class ArchiveCheck
{
public:
    ArchiveCheck(std::vector<std::string> const& publicKeys, Console const& console, LintFindings& findings)
        : m_publicKeys(publicKeys), m_console(console), m_findings(findings)
    {
    }

    void Check(LintDownload const& download)
    {
        Engine::FeedItem const& item = *download.item;
        // Another rule reports a missing address or length.
        if (item.fileUrl.isEmpty() || item.contentLength == 0 || !m_checked.insert(KeyOf(item)).second)
        {
            return;
        }
        if (item.fileUrl.isLocalFile())
        {
            CheckFile(download);
        }
        else
        {
            Fetch(download);
        }
    }

private:
    static QString KeyOf(Engine::FeedItem const& item)
    {
        return u"%1 %2 %3"_s.arg(item.fileUrl.toString(QUrl::FullyEncoded), QString::number(item.contentLength),
                                 item.edSignature);
    }

    void CheckFile(LintDownload const& download)
    {
        QString const path = download.item->fileUrl.toLocalFile();
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        {
            Report(LintRule::ArchiveUnreachable, download, path + u" cannot be read"_s);
        }
        else if (quint64(file.size()) != download.item->contentLength)
        {
            Report(LintRule::ArchiveLength, download,
                   u"%1 has %2 bytes, but the feed says %3"_s.arg(path, QString::number(file.size()),
                                                                  QString::number(download.item->contentLength)));
        }
        else
        {
            CheckSignature(download, file.handle());
            CheckVersion(download, OpenInputFile(path));
        }
    }

    void Fetch(LintDownload const& download)
    {
        Engine::DownloadOutcome outcome =
            FetchDownload(*download.item, QFile::decodeName(m_folder.Path().c_str()), m_console);
        if (!outcome)
        {
            ReportError(download, outcome.error());
        }
        else
        {
            CheckSignature(download, outcome->Get());
            CheckVersion(download,
                         {*std::move(outcome), download.item->fileUrl.fileName(), download.item->contentLength});
        }
    }

    void ReportError(LintDownload const& download, Engine::EngineError const& error)
    {
        bool const isLength = error.cause == ErrorCause::DownloadLengthDiffers;
        Report(isLength ? LintRule::ArchiveLength : LintRule::ArchiveUnreachable, download,
               u"%1, with %2 bytes by the feed: %3"_s.arg(download.item->fileUrl.toString(QUrl::FullyEncoded),
                                                          QString::number(download.item->contentLength),
                                                          WithoutFullStop(error.sentence.English())));
    }

    void CheckSignature(LintDownload const& download, int descriptor)
    {
        if (m_publicKeys.empty() || download.item->edSignature.isEmpty())
        {
            return;
        }
        if (Engine::VerifyFileSignature(descriptor, download.item->edSignature.toStdString(), m_publicKeys) !=
            UpdateFault::None)
        {
            Report(LintRule::ArchiveSignature, download,
                   u"the signature of %1 does not match"_s.arg(download.item->fileUrl.toString(QUrl::FullyEncoded)));
        }
    }

    /// Of a bundle. If an archive cannot be unpacked, check-release reports it.
    void CheckVersion(LintDownload const& download, InputFile const& archive)
    {
        if (download.item->isDelta)
        {
            return;
        }
        RefusalList passedOver;
        passedOver.Try(
            [&]
            {
                BundleTree const bundle = BundleTree::Unpack(archive, [](std::uint64_t, std::uint64_t) {});
                QString const inside = QString::fromStdString(bundle.Information().version);
                if (inside != download.item->versionString)
                {
                    Report(LintRule::ArchiveVersion, download,
                           u"%1 contains version %2, but the feed says %3"_s.arg(archive.name, Printable(inside),
                                                                                 download.item->versionString));
                }
            });
    }

    void Report(LintRule rule, LintDownload const& download, QString const& what)
    {
        m_findings.Add(rule, download.Place(), what);
    }

    std::vector<std::string> const& m_publicKeys;
    Console const& m_console;
    LintFindings& m_findings;
    TemporaryFolder const m_folder;
    std::set<QString> m_checked;
};

class NotesFetch
{
public:
    explicit NotesFetch(LintFindings& findings) : m_findings(findings) {}

    void Check(XmlElement const& item, QUrl const& feed)
    {
        for (XmlElement const& child : item.children)
        {
            bool const isLink = child.name.IsFeeds("releaseNotesLink") || child.name.IsFeeds("fullReleaseNotesLink");
            QUrl const address = isLink ? feed.resolved(QUrl(child.text.trimmed())) : QUrl();
            if (!address.isEmpty() && m_checked.insert(address.toString(QUrl::FullyEncoded)).second)
            {
                Fetch(child, address);
            }
        }
    }

private:
    void Fetch(XmlElement const& link, QUrl const& address)
    {
        // Deliberate: any address and any page is accepted. The only question is whether a page arrives.
        Engine::FetchOutcome const outcome = FetchAddress(address);
        if (outcome.error)
        {
            m_findings.Add(LintRule::NotesUnreachable, link.place,
                           u"%1: %2"_s.arg(address.toString(QUrl::FullyEncoded),
                                           WithoutFullStop(outcome.error->sentence.English())));
        }
    }

    LintFindings& m_findings;
    std::set<QString> m_checked;
};

} // namespace

std::vector<LintFinding> CheckArchives(LintSubject const& subject, std::vector<std::string> const& publicKeys,
                                       Console const& console)
{
    LintFindings findings;
    ArchiveCheck check(publicKeys, console, findings);
    NotesFetch notes(findings);
    for (XmlElement const* item : subject.itemElements)
    {
        notes.Check(*item, subject.address);
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            check.Check(item.full);
            for (Engine::FeedItem const& recompressed : item.full.item->recompressed)
            {
                check.Check({&recompressed, item.full.element, item.full.enclosure});
            }
            for (LintDownload const& delta : item.deltas)
            {
                check.Check(delta);
            }
        }
    }
    return findings.Sorted();
}

} // namespace Pelnar::Publisher
