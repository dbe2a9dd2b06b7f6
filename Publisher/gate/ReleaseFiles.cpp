#include "Publisher/gate/ReleaseFiles.h"

#include "Engine/core/bundle/TrustedKeys.h"
#include "Publisher/Progress.h"
#include "Publisher/Refusal.h"
#include "Publisher/late/LatePart.h"

#include <QDir>
#include <QFile>

#include <algorithm>

#include <sys/stat.h>

namespace Pelnar::Publisher
{

Engine::DownloadOutcome FetchDownload(Engine::FeedItem const& item, QString const& folder, Console const& console)
{
    Engine::DownloadRequest request;
    request.url = item.fileUrl;
    request.declaredBytes = item.contentLength;
    request.signature = item.edSignature;
    request.folder = folder;
    // Deliberate: http addresses are allowed here, because another rule reports them.
    request.feedReach = Engine::AddressReach::ThisComputer;
    request.insecureHttp = Engine::InsecureHttp::Anywhere;
    Progress progress(console.err, u"Fetching "_s + item.fileUrl.fileName());
    return LoadLatePart().download(request, [&](Engine::DownloadProgress const& now)
                                   { progress(now.doneBytes, now.totalBytes); });
}

std::optional<std::string> SignerOf(InputFile const& file, QString const& signature,
                                    std::vector<std::string> const& publicKeys)
{
    auto const signer =
        std::find_if(publicKeys.begin(), publicKeys.end(),
                     [&](std::string const& key)
                     {
                         return Engine::VerifyFileSignature(file.descriptor.Get(), signature.toStdString(), {key}) ==
                                Engine::UpdateFault::None;
                     });
    return signer == publicKeys.end() ? std::optional<std::string>() : *signer;
}

void CheckLength(InputFile const& file, Engine::FeedItem const& item)
{
    if (file.size != item.contentLength)
    {
        throw Refusal(
            {file.name,
             u"has %1 bytes, but the feed says %2 (line %3)"_s.arg(file.size).arg(item.contentLength).arg(item.line),
             u"put the published file back, and give a changed one a new version and name"_s},
            RefusalCause::Content);
    }
}

ReleaseFiles::ReleaseFiles(QString folder, Console const& console) : m_folder(std::move(folder)), m_console(console) {}

std::optional<InputFile> ReleaseFiles::Open(Engine::FeedItem const& item)
{
    if (m_folder.isEmpty())
    {
        return Fetch(item);
    }
    QString const path = QDir(m_folder).filePath(item.fileUrl.fileName(QUrl::FullyDecoded));
    return Exists(path) && !item.fileUrl.fileName().isEmpty() ? OpenInputFile(path) : std::optional<InputFile>();
}

InputFile ReleaseFiles::Fetch(Engine::FeedItem const& item)
{
    QString const name = item.fileUrl.toString(QUrl::FullyEncoded);
    Engine::DownloadOutcome outcome = FetchDownload(item, QFile::decodeName(m_fetched.Path().c_str()), m_console);
    if (!outcome)
    {
        throw Refusal(
            {name,
             u"cannot be fetched as the feed describes it: "_s + WithoutFullStop(outcome.error().sentence.English()),
             u"upload exactly the file that was signed, before the feed"_s},
            RefusalCause::Content);
    }
    struct stat status;
    if (::fstat(outcome->Get(), &status) != 0)
    {
        RefuseReading(name, errno);
    }
    return {*std::move(outcome), name, static_cast<std::uint64_t>(status.st_size)};
}

} // namespace Pelnar::Publisher
