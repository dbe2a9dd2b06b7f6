#include "Publisher/lint/FetchRules.h"

#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/payload/Ed25519Signature.h"
#include "Publisher/Progress.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

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
        // What has no address or length was reported by its own rule.
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
        return QStringLiteral("%1 %2 %3")
            .arg(item.fileUrl.toString(QUrl::FullyEncoded), QString::number(item.contentLength), item.edSignature);
    }

    void CheckFile(LintDownload const& download)
    {
        QString const path = download.item->fileUrl.toLocalFile();
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        {
            Report(LintRule::ArchiveUnreachable, download, path + QStringLiteral(" cannot be read"));
        }
        else if (quint64(file.size()) != download.item->contentLength)
        {
            Report(LintRule::ArchiveLength, download,
                   QStringLiteral("%1 has %2 bytes, the feed says %3")
                       .arg(path)
                       .arg(file.size())
                       .arg(download.item->contentLength));
        }
        else
        {
            CheckSignature(download, file.handle());
        }
    }

    void Fetch(LintDownload const& download)
    {
        Engine::FeedItem const& item = *download.item;
        Engine::DownloadRequest request;
        request.url = item.fileUrl;
        request.declaredBytes = item.contentLength;
        request.signature = item.edSignature;
        request.folder = m_folder.path();
        // Deliberate: plain http has its own rule; here the question is what stands at the address, wherever that is.
        request.feedReach = Engine::AddressReach::ThisComputer;
        request.insecureHttp = Engine::InsecureHttp::Anywhere;
        Engine::ArchiveDownload archive(request);
        Progress progress(m_console.err, item.fileUrl.fileName());
        Engine::DownloadOutcome outcome;
        QEventLoop loop;
        archive.Start([&](Engine::DownloadProgress const& now)
                      { progress.Show(qint64(now.doneBytes), qint64(now.totalBytes)); },
                      [&](Engine::DownloadOutcome finished)
                      {
                          outcome = std::move(finished);
                          loop.quit();
                      });
        loop.exec();
        if (outcome.error)
        {
            ReportError(download, *outcome.error);
        }
        else
        {
            CheckSignature(download, outcome.archive.Get());
        }
    }

    void ReportError(LintDownload const& download, Engine::EngineError const& error)
    {
        bool const isLength = error.cause == ErrorCause::DownloadLengthDiffers;
        QString sentence = error.sentence.English();
        sentence.chop(sentence.endsWith(QLatin1Char('.')) ? 1 : 0);
        Report(isLength ? LintRule::ArchiveLength : LintRule::ArchiveUnreachable, download,
               QStringLiteral("%1, of %2 bytes by the feed: %3")
                   .arg(download.item->fileUrl.toString(QUrl::FullyEncoded))
                   .arg(download.item->contentLength)
                   .arg(sentence));
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
                   QStringLiteral("%1 was not signed so").arg(download.item->fileUrl.toString(QUrl::FullyEncoded)));
        }
    }

    void Report(LintRule rule, LintDownload const& download, QString const& what)
    {
        m_findings.Add(rule, download.Place(), what);
    }

    std::vector<std::string> const& m_publicKeys;
    Console const& m_console;
    LintFindings& m_findings;
    QTemporaryDir m_folder;
    std::set<QString> m_checked;
};

} // namespace

std::vector<LintFinding> CheckArchives(LintSubject const& subject, std::vector<std::string> const& publicKeys,
                                       Console const& console)
{
    LintFindings findings;
    ArchiveCheck check(publicKeys, console, findings);
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            check.Check(item.full);
            for (LintDownload const& delta : item.deltas)
            {
                check.Check(delta);
            }
        }
    }
    return findings.Sorted();
}

} // namespace Pelnar::Publisher
