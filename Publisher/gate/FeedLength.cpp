#include "Publisher/gate/FeedLength.h"

#include "Engine/core/archive/Archive.h"
#include "Engine/core/bundle/BundleInformation.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/bundle/PropertyList.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/fetch/FetchRules.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/gate/GatedVersion.h"

#include <QDir>

#include <ostream>
#include <set>

namespace Pelnar::Publisher
{
namespace
{

/// The names of the archives of whole bundles that \a feed offers for Linux. The framework of macOS has no limit.
std::set<QString> BundleFilesOf(NewFeed const& feed)
{
    std::set<QString> names;
    std::vector<std::string> machines = Engine::MachineNames();
    machines.emplace_back(); // any
    for (std::string const& machine : machines)
    {
        Engine::FeedTarget const target{Engine::FeedPlatform::Linux, QString::fromStdString(machine)};
        for (Engine::FeedItem const& item :
             Engine::ParseFeed(feed.bytes, QUrl::fromLocalFile(feed.folder + u'/'), target)
                 .value_or(Engine::FeedContent())
                 .items)
        {
            if (VersionOf(item, target.platform, feed.file).HasClients())
            {
                names.insert(item.fileUrl.fileName(QUrl::FullyDecoded));
            }
        }
    }
    return names;
}

/// The name of the bundle whose information file is at \a path; empty for another file, and for a bundle inside it.
std::string BundleOf(std::string const& path)
{
    std::size_t const start = path.compare(0, 2, "./") == 0 ? 2 : 0;
    std::size_t const slash = path.find('/', start);
    bool const isInformation =
        slash != std::string::npos && path.compare(slash + 1, std::string::npos, Engine::INFORMATION_PATH) == 0;
    return isInformation ? path.substr(start, slash - start) : std::string();
}

/// What the clients of the bundle in the archive \a path accept; empty if nobody can tell. The archive is not judged,
/// and read only up to the information file.
std::optional<qint64> LimitIn(QString const& path)
{
    try
    {
        InputFile const file = OpenInputFile(path);
        Engine::ArchiveContainer const container = Engine::InspectContainer(file.descriptor.Get());
        Engine::Archive archive(file.descriptor.Get(), container);
        while (auto const entry = archive.Next())
        {
            std::string const bundle = BundleOf(entry->path);
            if (!bundle.empty() && entry->size <= Engine::PROPERTY_LIST_MAX_BYTES)
            {
                std::string text;
                archive.ReadContents(entry->size,
                                     [&text](Engine::Bytes piece) { text.append(piece.begin(), piece.end()); });
                return MaximumFeedBytesOf(Engine::ParseBundleInformation(text, bundle));
            }
        }
    }
    catch (Engine::UpdateRefusal const&)
    {
        return std::nullopt;
    }
    catch (Refusal const&)
    {
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

void CheckFeedLength(NewFeed const& feed, Console const& console)
{
    qint64 const usual = Engine::FetchLimits().maxBodyBytes;
    qint64 const length = feed.bytes.size();
    bool isUncertain = length > usual;
    if (length > feed.bytesBefore)
    {
        std::set<QString> const names = BundleFilesOf(feed);
        RefusalList refusals;
        std::size_t known = 0;
        for (QString const& name : names)
        {
            QString const path = QDir(feed.folder).filePath(name);
            std::optional<qint64> const limit = name.isEmpty() ? std::nullopt : LimitIn(path);
            known += limit ? 1 : 0;
            refusals.Try([&] { limit ? CheckFeedSize(path, *limit, length) : void(); });
        }
        isUncertain = isUncertain && (names.empty() || known < names.size());
        if (isUncertain && feed.bytesBefore <= usual)
        {
            refusals.Add(
                {feed.file,
                 u"would have %1 bytes, but clients accept at most %2, unless their bundles say otherwise"_s.arg(
                     QString::number(length), QString::number(usual)),
                 u"remove old items with \"prune\", or shorten the notes; if all bundles have a greater PelnarMaximumFeedBytes, put their archives next to the feed"_s});
        }
        refusals.ThrowIfAny();
    }
    if (isUncertain)
    {
        console.Warn({feed.file,
                      u"has %1 bytes, and clients refuse more than %2, unless their bundles say otherwise"_s.arg(
                          QString::number(length), QString::number(usual)),
                      u"remove old items with \"prune\", or shorten the notes"_s});
    }
}

void ReplaceFeed(NewFeed const& feed, Console const& console)
{
    CheckFeedLength(feed, console);
    ReplaceFile(feed.file, feed.bytes);
}

} // namespace Pelnar::Publisher
