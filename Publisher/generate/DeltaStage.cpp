#include "Publisher/generate/DeltaStage.h"

#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/Refusal.h"
#include "Publisher/delta/DeltaFile.h"
#include "Publisher/generate/RecompressStage.h"

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

bool HasDeltaFrom(NewItem const& item, QString const& baseVersion)
{
    return std::any_of(item.deltas.begin(), item.deltas.end(),
                       [&baseVersion](NewDelta const& delta)
                       { return WholeVersion(delta.baseVersion) == WholeVersion(baseVersion); });
}

/// Throws Refusal, which also says that the release needs no delta that cannot be read.
Engine::DeltaManifest ReadGiven(Workplace const& place, QString const& fileName)
{
    try
    {
        return ReadDeltaFile(place.Open(fileName));
    }
    catch (Refusal const& refusal)
    {
        Problem problem = refusal.Reason();
        problem.mend += u", or "_s + MEND_OF_DELTA;
        throw Refusal(problem, RefusalCause::Content);
    }
}

} // namespace

void DeltaStage::AddTo(std::vector<NewItem>& items, DeltaChoice const& choice)
{
    m_bases = FindBases(items);
    TakeGiven(items);
    for (NewItem& item : items)
    {
        std::vector<Base> const bases = IsNewest(item, items) ? BasesFor(item, choice) : std::vector<Base>();
        for (Base const& base : bases)
        {
            bool const isDeclined = m_declined.count({item.fileName, base.fileName}) != 0;
            if (!isDeclined && !HasDeltaFrom(item, base.versionText))
            {
                Make(item, base, choice.effort);
            }
        }
    }
    TellMissing(choice);
    // Newest base first, in any order of addition.
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
            bases.push_back({item.fileName, item.versionText, item.version, item.machines});
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
                bases.push_back({archive.fileName, item->versionString, published.version, item->policy.machines});
            }
        }
    }
    std::stable_sort(bases.begin(), bases.end(), [](Base const& a, Base const& b) { return b.version < a.version; });
    return bases;
}

std::vector<DeltaStage::Base> DeltaStage::BasesFor(NewItem const& newest, DeltaChoice const& choice)
{
    std::vector<Base> bases;
    std::copy_if(m_bases.begin(), m_bases.end(), std::back_inserter(bases),
                 [&newest](Base const& base)
                 { return base.version < newest.version && Engine::ShareMachine(base.machines, newest.machines); });
    auto const most = static_cast<std::size_t>(choice.count);
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
            else if (chosen.size() < most && client.version != newest.version)
            {
                m_missing.insert(client.versionText);
            }
        }
        bases = std::move(chosen);
    }
    bases.resize(std::min(bases.size(), most));
    return bases;
}

void DeltaStage::TellMissing(DeltaChoice const& choice) const
{
    constexpr int MOST_NAMED = 5;
    QStringList const names(m_missing.begin(), m_missing.end());
    if (!names.isEmpty())
    {
        bool const areMore = names.size() > MOST_NAMED;
        m_workplace.Warn(
            choice.clientsFile,
            u"no delta is made from %1: the folder has no published archive of an older version with that number"_s.arg(
                names.mid(0, MOST_NAMED).join(u", "_s) +
                (areMore ? u" and %1 more"_s.arg(names.size() - MOST_NAMED) : QString())),
            u"put the archives that were published back into the folder, or correct the list"_s);
    }
}

bool DeltaStage::IsNewest(NewItem const& item, std::vector<NewItem> const& items) const
{
    return IsBundleForLinux(item) &&
           std::none_of(items.begin(), items.end(),
                        [&](NewItem const& other)
                        {
                            return IsBundleForLinux(other) && item.version < other.version &&
                                   Engine::ShareMachine(item.machines, other.machines);
                        }) &&
           std::none_of(m_feed.Items().begin(), m_feed.Items().end(),
                        [&](PublishedItem const& other)
                        {
                            return other.platforms.count(Engine::FeedPlatform::Linux) != 0 &&
                                   item.version < other.version &&
                                   Engine::ShareMachine(item.machines, other.item.policy.machines);
                        });
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
        Engine::DeltaManifest const manifest = ReadGiven(m_workplace, archive.fileName);
        QString const target = QString::fromStdString(manifest.targetVersion);
        QString const start = QString::fromStdString(manifest.baseVersion);
        bool hasTarget = false;
        bool isTaken = false;
        RefusalList refusals; // a version may have bundles for several machines, and the delta is for one of them
        for (NewItem& item : items)
        {
            bool const isTarget = IsBundleForLinux(item) && item.versionText == target;
            hasTarget = hasTarget || isTarget;
            auto const base = std::find_if(m_bases.begin(), m_bases.end(),
                                           [&](Base const& each)
                                           {
                                               return each.versionText == start && each.version < item.version &&
                                                      Engine::ShareMachine(each.machines, item.machines);
                                           });
            if (isTarget && !isTaken && base != m_bases.end())
            {
                isTaken = refusals.Try([&] { TakeGiven(item, *base, archive.fileName); });
            }
        }
        if (!isTaken)
        {
            refusals.ThrowIfAny();
            m_workplace.Warn(path,
                             hasTarget
                                 ? u"ignored: starts from version %1, whose archive is not in the folder"_s.arg(start)
                                 : u"ignored: makes version %1, which gets no new item"_s.arg(target),
                             hasTarget ? u"put that archive into the folder, so that the delta can be verified"_s
                                       : u"remove it; a delta is published together with the version that it makes"_s);
        }
    }
}

void DeltaStage::TakeGiven(NewItem& item, Base const& base, QString const& fileName)
{
    QString const path = m_workplace.PathOf(fileName);
    AsContent(
        [&]
        {
            ProveDelta(m_workplace.Open(fileName), *m_workplace.Unpack(base.fileName),
                       *m_workplace.Unpack(item.fileName), m_workplace.console.err);
        });
    if (HasDeltaFrom(item, base.versionText))
    {
        throw Refusal({path, u"is a second delta from %1 to %2"_s.arg(base.versionText, item.versionText),
                       u"keep one of them"_s});
    }
    ArchiveSignature const signature = m_workplace.Sign(m_workplace.Open(fileName));
    if (!SavesEnough(signature.length, item.LeastBytes()))
    {
        m_workplace.Warn(path, u"ignored: saves less than a tenth of the whole archive"_s,
                         u"remove it; clients of that version download the archive"_s);
        m_declined.insert({item.fileName, base.fileName});
        return;
    }
    item.deltas.push_back({fileName, base.versionText, signature});
}

QString DeltaStage::DeltaName(NewItem const& item, Base const& base) const
{
    QString const name = u"%1-%2-%3"_s.arg(item.productName, base.versionText, item.versionText);
    bool const isForSome =
        std::any_of(m_bases.begin(), m_bases.end(),
                    [&item](Base const& other) {
                        return other.version == item.version && !Engine::ShareMachine(other.machines, item.machines);
                    }) ||
        std::any_of(m_feed.Items().begin(), m_feed.Items().end(),
                    [&item](PublishedItem const& other) {
                        return other.version == item.version &&
                               !Engine::ShareMachine(other.item.policy.machines, item.machines);
                    });
    return (isForSome ? name + u'-' + item.machines.first() : name) + u".delta"_s;
}

void DeltaStage::Make(NewItem& item, Base const& base, Engine::DeltaEffort effort)
{
    QString const fileName = DeltaName(item, base);
    std::shared_ptr<BundleTree const> const before = m_workplace.Unpack(base.fileName);
    QString const inside = QString::fromStdString(before->Information().version);
    if (WholeVersion(inside) != base.version)
    {
        throw Refusal({m_workplace.PathOf(base.fileName),
                       u"contains version %1, but is published as %2"_s.arg(inside, base.versionText),
                       u"put the published archive back"_s},
                      RefusalCause::Content);
    }
    QString const path = m_workplace.PathOf(fileName);
    std::unique_ptr<AtomicFile> file = m_workplace.MakeFile(fileName);
    MakeDelta(*before, *m_workplace.Unpack(item.fileName), *file, path, {m_workplace.console.err, effort});
    InputFile const made = file->ForReading();
    if (!SavesEnough(made.size, item.LeastBytes()))
    {
        m_workplace.Warn(path, u"not published: saves less than a tenth of the whole archive"_s,
                         u"no action is needed; clients of version %1 download the archive"_s.arg(base.versionText));
        return;
    }
    item.deltas.push_back({fileName, base.versionText, m_workplace.Sign(made)});
    m_made.push_back(std::move(file));
}

} // namespace Pelnar::Publisher
