#include "Publisher/generate/RecompressStage.h"

#include "Publisher/Progress.h"
#include "Publisher/Refusal.h"
#include "Publisher/late/LatePart.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>

namespace Pelnar::Publisher
{
namespace
{

constexpr char ENDING[] = ".tar.zst";

bool IsSame(BundleTree const& a, BundleTree const& b)
{
    return a.Name() == b.Name() && a.Digest() == b.Digest();
}

/// Runs \a work with a file that --recompress makes. A refusal also says so.
void AsDispensable(std::function<void()> const& work)
{
    try
    {
        work();
    }
    catch (Refusal const& refusal)
    {
        std::vector<Problem> problems = refusal.Reasons();
        for (Problem& problem : problems)
        {
            problem.mend += u", or remove it: --recompress makes it again"_s;
        }
        throw Refusal(problems, refusal.Cause());
    }
}

/// True if \a archive contains a bundle for Linux, and \a packed the same one. If only \a packed cannot be read, it is
/// added to \a refusals, and the result is true. Others are reported when they are published.
bool HaveSameBundle(Workplace const& place, QString const& archive, QString const& packed, RefusalList& refusals)
{
    RefusalList passedOver;
    std::shared_ptr<BundleTree const> first;
    std::shared_ptr<BundleTree const> second;
    bool const isForLinux =
        passedOver.Try([&] { first = place.Unpack(archive); }) && first->Platform() == Engine::FeedPlatform::Linux;
    bool const isRead = isForLinux && refusals.Try([&] { AsDispensable([&] { second = place.Unpack(packed); }); });
    return isForLinux && (!isRead || IsSame(*first, *second));
}

} // namespace

bool SavesEnough(std::uint64_t bytes, std::uint64_t archiveBytes)
{
    return bytes <= archiveBytes && archiveBytes - bytes >= (archiveBytes + 9) / 10;
}

void RemoveRecompressed(Workplace const& place, std::vector<FolderArchive>& fresh, RefusalList& refusals)
{
    auto const isMade = [&](FolderArchive const& archive)
    {
        return std::any_of(fresh.begin(), fresh.end(),
                           [&](FolderArchive const& other)
                           {
                               return other.kind == ArchiveKind::Bundle && other.fileName != archive.fileName &&
                                      other.stem + QLatin1String(ENDING) == archive.fileName &&
                                      HaveSameBundle(place, other.fileName, archive.fileName, refusals);
                           });
    };
    std::vector<FolderArchive> rest;
    std::copy_if(fresh.begin(), fresh.end(), std::back_inserter(rest), std::not_fn(isMade));
    fresh = std::move(rest);
}

void RecompressStage::AddTo(std::vector<NewItem>& items)
{
    for (NewItem& item : items)
    {
        auto const archive =
            std::find_if(m_archives.begin(), m_archives.end(),
                         [&item](FolderArchive const& each) { return each.fileName == item.fileName; });
        if (!IsBundleForLinux(item) || archive == m_archives.end() || item.fileName.endsWith(QLatin1String(ENDING)))
        {
            continue;
        }
        QString const fileName = archive->stem + QLatin1String(ENDING);
        if (!Exists(m_workplace.PathOf(fileName)))
        {
            Pack(item, fileName);
        }
        else if (!TakeExisting(item, fileName))
        {
            throw Refusal({m_workplace.PathOf(fileName), u"saves less than a tenth of %1"_s.arg(item.fileName),
                           u"remove it, or leave out --recompress"_s},
                          RefusalCause::Content);
        }
    }
}

bool RecompressStage::TakeExisting(NewItem& item, QString const& fileName) const
{
    std::optional<InputFile> file;
    AsDispensable([&] { file = m_workplace.Open(fileName); });
    return Take(item, fileName, *file);
}

void RecompressStage::Pack(NewItem& item, QString const& fileName)
{
    QString const path = m_workplace.PathOf(fileName);
    std::unique_ptr<AtomicFile> file = m_workplace.MakeFile(fileName);
    {
        std::shared_ptr<BundleTree const> const bundle = m_workplace.Unpack(item.fileName);
        Progress bar(m_workplace.console.err, u"Packing "_s + fileName);
        LoadLatePart().writeZstdTar(*bundle, item.publishedAt, file->Descriptor(), path, std::ref(bar));
    }
    if (!Take(item, fileName, file->ForReading()))
    {
        m_workplace.Warn(path, u"not published: saves less than a tenth of the archive"_s,
                         u"no action is needed; clients download the archive"_s);
        return;
    }
    m_made.push_back(std::move(file));
}

bool RecompressStage::Take(NewItem& item, QString const& fileName, InputFile const& archive) const
{
    // Clients must get exactly the bundle that was judged.
    std::shared_ptr<BundleTree const> const bundle = m_workplace.Unpack(item.fileName);
    if (!SavesEnough(archive.size, item.signature.length))
    {
        return false;
    }
    BundleTree const again = BundleTree::Unpack(archive, [](std::uint64_t, std::uint64_t) {});
    if (!IsSame(again, *bundle))
    {
        throw Refusal({archive.name, u"contains another bundle than %1"_s.arg(item.fileName),
                       u"remove it, or leave out --recompress"_s},
                      RefusalCause::Content);
    }
    item.recompressed = NewArchive{fileName, m_workplace.Sign(archive)};
    return true;
}

} // namespace Pelnar::Publisher
