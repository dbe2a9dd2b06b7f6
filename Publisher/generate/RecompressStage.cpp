#include "Publisher/generate/RecompressStage.h"

#include "Publisher/Progress.h"
#include "Publisher/Refusal.h"
#include "Publisher/late/LatePart.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

constexpr char ENDING[] = ".tar.zst";

} // namespace

bool SavesEnough(std::uint64_t bytes, std::uint64_t archiveBytes)
{
    return bytes <= archiveBytes && archiveBytes - bytes >= (archiveBytes + 9) / 10;
}

void RecompressStage::AddTo(std::vector<NewItem>& items)
{
    for (NewItem& item : items)
    {
        auto const archive =
            std::find_if(m_archives.begin(), m_archives.end(),
                         [&item](FolderArchive const& each) { return each.fileName == item.fileName; });
        if (IsBundleForLinux(item) && archive != m_archives.end() && !item.fileName.endsWith(QLatin1String(ENDING)))
        {
            Pack(item, archive->stem);
        }
    }
}

void RecompressStage::Pack(NewItem& item, QString const& stem)
{
    QString const fileName = stem + QLatin1String(ENDING);
    QString const path = m_workplace.PathOf(fileName);
    std::unique_ptr<AtomicFile> file = m_workplace.MakeFile(fileName);
    std::shared_ptr<BundleTree const> const unpacked = m_workplace.Unpack(item.fileName);
    BundleTree const& bundle = *unpacked;
    {
        Progress bar(m_workplace.console.err, u"Packing "_s + fileName);
        LoadLatePart().writeZstdTar(bundle, item.publishedAt, file->Descriptor(), path, std::ref(bar));
    }
    InputFile const made = file->ForReading();
    if (!SavesEnough(made.size, item.signature.length))
    {
        m_workplace.Warn(path, u"not published: saves less than a tenth of the archive"_s,
                         u"no action is needed; clients download the archive"_s);
        return;
    }
    // Clients must get exactly the bundle that was judged.
    BundleTree const again = BundleTree::Unpack(made, [](std::uint64_t, std::uint64_t) {});
    if (again.Name() != bundle.Name() || again.Digest() != bundle.Digest())
    {
        throw Refusal({path, u"contains another bundle than %1"_s.arg(item.fileName), u"leave out --recompress"_s});
    }
    item.recompressed = NewArchive{fileName, m_workplace.Sign(made)};
    m_made.push_back(std::move(file));
}

} // namespace Pelnar::Publisher
