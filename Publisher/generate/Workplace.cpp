#include "Publisher/generate/Workplace.h"

#include "Publisher/Progress.h"
#include "Publisher/Refusal.h"
#include "Publisher/keys/Signer.h"

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

/// A new version, and as many before it as get a delta to it by default, with one more.
constexpr std::size_t MOST_UNPACKED = 5;

bool IsSameFile(QUrl const& a, QUrl const& b)
{
    return a.scheme() == b.scheme() && a.host() == b.host() && a.port() == b.port() &&
           a.path(QUrl::FullyDecoded) == b.path(QUrl::FullyDecoded);
}

} // namespace

InputFile Workplace::Open(QString const& fileName) const
{
    InputFile file = OpenInputFile(PathOf(fileName));
    auto const [known, isNew] = marks.emplace(fileName, file.mark);
    if (known->second != file.mark)
    {
        RefuseChanged(file.name);
    }
    return file;
}

void Workplace::RefuseChangedFiles() const
{
    for (auto const& [fileName, mark] : marks)
    {
        static_cast<void>(Open(fileName));
    }
}

std::shared_ptr<BundleTree const> Workplace::Unpack(QString const& fileName) const
{
    auto const known =
        std::find_if(unpacked.begin(), unpacked.end(), [&](auto const& each) { return each.first == fileName; });
    if (known != unpacked.end())
    {
        std::rotate(unpacked.begin(), known, known + 1);
        return unpacked.front().second;
    }
    Progress bar(console.err, u"Unpacking "_s + fileName);
    unpacked.emplace_front(fileName,
                           std::make_shared<BundleTree const>(BundleTree::Unpack(Open(fileName), std::ref(bar))));
    unpacked.resize(std::min(unpacked.size(), MOST_UNPACKED));
    return unpacked.front().second;
}

std::unique_ptr<AtomicFile> Workplace::MakeFile(QString const& fileName) const
{
    if (Exists(PathOf(fileName)))
    {
        throw Refusal({PathOf(fileName), u"exists already"_s, u"remove it"_s});
    }
    return std::make_unique<AtomicFile>(PathOf(fileName));
}

ArchiveSignature Workplace::Sign(InputFile const& archive) const
{
    ArchiveSignature signature = key.Sign(archive);
    if (secondKey)
    {
        signature.all = {{KeyId(), signature.signature}, {KeyIds().last(), secondKey->Sign(archive).signature}};
    }
    return signature;
}

void Workplace::Warn(QString const& path, QString const& what, QString const& mend) const
{
    console.Warn({path, what, mend});
}

QString Workplace::KeyId() const
{
    return KeyIdOf(key.PublicKeyText().toStdString());
}

QStringList Workplace::KeyIds() const
{
    QStringList ids{KeyId()};
    if (secondKey)
    {
        ids.append(KeyIdOf(secondKey->PublicKeyText().toStdString()));
    }
    return ids;
}

Engine::FeedItem const* Workplace::FindPublished(PublishedFeed const& feed, QString const& fileName) const
{
    Engine::FeedItem const* sameName = nullptr;
    for (PublishedItem const& published : feed.Items())
    {
        QUrl const wanted = address.Of(fileName, published.item.versionString);
        std::vector<Engine::FeedItem const*> downloads{&published.item};
        for (std::vector<Engine::FeedItem> const* const more : {&published.item.recompressed, &published.item.deltas})
        {
            std::transform(more->begin(), more->end(), std::back_inserter(downloads),
                           [](Engine::FeedItem const& item) { return &item; });
        }
        for (Engine::FeedItem const* const download : downloads)
        {
            if (IsSameFile(download->fileUrl, wanted))
            {
                return download;
            }
            bool const hasName = download->fileUrl.fileName(QUrl::FullyDecoded) == fileName;
            sameName = hasName && !sameName ? download : sameName;
        }
    }
    return sameName;
}

} // namespace Pelnar::Publisher
