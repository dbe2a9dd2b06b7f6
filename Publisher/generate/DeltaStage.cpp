#include "Publisher/generate/DeltaStage.h"

#include "Engine/core/feed/ReleasePolicy.h"
#include "Publisher/Refusal.h"
#include "Publisher/delta/DeltaFile.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

bool IsBundleForLinux(NewItem const& item)
{
    // The container is this engine's own: no client on another system reads it.
    return item.kind == ArchiveKind::Bundle && item.platform == Engine::FeedPlatform::Linux;
}

/// A tenth is the least for which a feed names one file more.
bool SavesEnough(std::uint64_t deltaBytes, std::uint64_t archiveBytes)
{
    return deltaBytes <= archiveBytes && archiveBytes - deltaBytes >= (archiveBytes + 9) / 10;
}

bool HasDeltaFrom(NewItem const& item, QString const& baseVersion)
{
    return std::any_of(item.deltas.begin(), item.deltas.end(),
                       [&baseVersion](NewDelta const& delta)
                       { return WholeVersion(delta.baseVersion) == WholeVersion(baseVersion); });
}

} // namespace

void DeltaStage::AddTo(std::vector<NewItem>& items, DeltaChoice const& choice)
{
    m_bases = FindBases(items);
    TakeGiven(items);
    NewItem* const newest = NewestItem(items);
    if (!newest)
    {
        return;
    }
    for (Base const& base : BasesFor(*newest, choice))
    {
        if (!HasDeltaFrom(*newest, base.versionText))
        {
            Make(*newest, base, choice.effort);
        }
    }
    // Newest base first, no matter in which order they came.
    for (NewItem& item : items)
    {
        std::stable_sort(item.deltas.begin(), item.deltas.end(),
                         [](NewDelta const& a, NewDelta const& b)
                         { return WholeVersion(b.baseVersion) < WholeVersion(a.baseVersion); });
    }
}

std::vector<DeltaStage::Base> DeltaStage::FindBases(std::vector<NewItem> const& items) const
{
    std::vector<Base> bases;
    for (NewItem const& item : items)
    {
        if (IsBundleForLinux(item))
        {
            bases.push_back({item.fileName, item.versionText, item.version});
        }
    }
    for (FolderArchive const& archive : m_archives)
    {
        Engine::FeedItem const* const item =
            archive.kind == ArchiveKind::Bundle ? m_workplace.FindPublished(m_feed, archive.fileName) : nullptr;
        for (PublishedItem const& published : m_feed.Items())
        {
            bool const isForLinux = published.platforms.count(Engine::FeedPlatform::Linux) != 0;
            if (item == &published.item && isForLinux && published.version.IsValid())
            {
                bases.push_back({archive.fileName, item->versionString, published.version});
            }
        }
    }
    std::stable_sort(bases.begin(), bases.end(), [](Base const& a, Base const& b) { return b.version < a.version; });
    return bases;
}

std::vector<DeltaStage::Base> DeltaStage::BasesFor(NewItem const& newest, DeltaChoice const& choice) const
{
    std::vector<Base> bases;
    std::copy_if(m_bases.begin(), m_bases.end(), std::back_inserter(bases),
                 [&newest](Base const& base) { return base.version < newest.version; });
    if (!choice.clients.empty())
    {
        std::vector<Base> chosen;
        for (ClientShare const& client : choice.clients)
        {
            auto const base = std::find_if(bases.begin(), bases.end(),
                                           [&client](Base const& other) { return other.version == client.version; });
            if (base != bases.end())
            {
                chosen.push_back(*base);
            }
        }
        bases = std::move(chosen);
    }
    bases.resize(std::min(bases.size(), static_cast<std::size_t>(choice.count)));
    return bases;
}

NewItem* DeltaStage::NewestItem(std::vector<NewItem>& items) const
{
    NewItem* newest = nullptr;
    for (NewItem& item : items)
    {
        if (IsBundleForLinux(item) && (!newest || newest->version < item.version))
        {
            newest = &item;
        }
    }
    bool const isNewest =
        newest && std::none_of(m_feed.Items().begin(), m_feed.Items().end(),
                               [newest](PublishedItem const& published)
                               {
                                   return published.platforms.count(Engine::FeedPlatform::Linux) != 0 &&
                                          Engine::SuitsMachine(published.item.policy.machines, newest->machine) &&
                                          newest->version < published.version;
                               });
    return isNewest ? newest : nullptr;
}

void DeltaStage::TakeGiven(std::vector<NewItem>& items)
{
    for (FolderArchive const& archive : m_archives)
    {
        if (archive.kind != ArchiveKind::Delta || m_workplace.FindPublished(m_feed, archive.fileName))
        {
            continue;
        }
        QString const path = m_workplace.PathOf(archive.fileName);
        Engine::DeltaManifest manifest;
        AsContent([&] { manifest = ReadDeltaFile(OpenInputFile(path)); });
        QString const target = QString::fromStdString(manifest.targetVersion);
        auto const item = std::find_if(items.begin(), items.end(),
                                       [&target](NewItem const& other)
                                       { return IsBundleForLinux(other) && other.versionText == target; });
        if (item == items.end())
        {
            m_workplace.Warn(
                path, QStringLiteral("left out: makes version %1, which gets no new item").arg(Printable(target)),
                QStringLiteral("remove it; deltas are published together with the version they make"));
            continue;
        }
        TakeGiven(*item, archive.fileName, QString::fromStdString(manifest.baseVersion));
    }
}

void DeltaStage::TakeGiven(NewItem& item, QString const& fileName, QString const& baseVersion)
{
    QString const path = m_workplace.PathOf(fileName);
    auto const base = std::find_if(m_bases.begin(), m_bases.end(),
                                   [&baseVersion](Base const& other) { return other.versionText == baseVersion; });
    if (base == m_bases.end() || !(base->version < item.version))
    {
        m_workplace.Warn(path,
                         QStringLiteral("left out: starts from version %1, whose archive is not in the folder")
                             .arg(Printable(baseVersion)),
                         QStringLiteral("put that archive into the folder, so that the delta can be proved"));
        return;
    }
    if (HasDeltaFrom(item, baseVersion))
    {
        throw Refusal({path, 0, 0, QStringLiteral("is a second delta from %1 to %2").arg(baseVersion, item.versionText),
                       QStringLiteral("keep one of them")});
    }
    AsContent(
        [&] {
            ProveDelta(OpenInputFile(path), m_workplace.Unpack(base->fileName), TreeOf(item), m_workplace.console.err);
        });
    ArchiveSignature const signature = m_workplace.Sign(fileName);
    if (!SavesEnough(signature.length, item.signature.length))
    {
        m_workplace.Warn(path, QStringLiteral("left out: saves less than a tenth of the whole archive"),
                         QStringLiteral("remove it; clients of that version take the archive"));
        return;
    }
    item.deltas.push_back({fileName, baseVersion, signature});
}

BundleTree const& DeltaStage::TreeOf(NewItem const& item)
{
    if (m_treeName != item.fileName)
    {
        m_tree.emplace(m_workplace.Unpack(item.fileName));
        m_treeName = item.fileName;
    }
    return *m_tree;
}

void DeltaStage::Make(NewItem& item, Base const& base, Engine::DeltaEffort effort)
{
    QString const fileName = QStringLiteral("%1-%2-%3.delta").arg(item.productName, base.versionText, item.versionText);
    BundleTree const before = m_workplace.Unpack(base.fileName);
    if (WholeVersion(QString::fromStdString(before.Information().version)) != base.version)
    {
        throw Refusal({m_workplace.PathOf(base.fileName), 0, 0,
                       QStringLiteral("holds version %1, but is published as %2")
                           .arg(QString::fromStdString(before.Information().version), base.versionText),
                       QStringLiteral("put the published archive back")},
                      RefusalCause::Content);
    }
    QString const path = m_workplace.PathOf(fileName);
    if (QFileInfo::exists(path))
    {
        throw Refusal({path, 0, 0, QStringLiteral("is there already"), QStringLiteral("remove it")});
    }
    auto file = std::make_unique<AtomicFile>(path);
    MakeDelta(before, TreeOf(item), *file, path, {m_workplace.console.err, effort});
    InputFile const made = file->ForReading();
    if (!SavesEnough(made.size, item.signature.length))
    {
        m_workplace.Warn(
            path, QStringLiteral("not published: saves less than a tenth of the whole archive"),
            QStringLiteral("nothing is to be done; clients of version %1 take the archive").arg(base.versionText));
        return;
    }
    item.deltas.push_back({fileName, base.versionText, m_workplace.Sign(made)});
    m_made.push_back(std::move(file));
}

void DeltaStage::Commit()
{
    for (std::unique_ptr<AtomicFile> const& file : m_made)
    {
        file->Commit(ExistingFile::Keep);
    }
    m_made.clear();
}

} // namespace Pelnar::Publisher
