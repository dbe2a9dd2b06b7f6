#include "Publisher/generate/PublishedArchives.h"

#include "Engine/core/bundle/PayloadKind.h"
#include "Publisher/gate/ReleaseFiles.h"
#include "Publisher/keys/Signer.h"

#include <algorithm>

namespace Pelnar::Publisher
{

std::vector<FolderArchive> PublishedArchives::FindNew(std::vector<FolderArchive> const& archives, RefusalList& refusals)
{
    std::vector<FolderArchive> fresh;
    for (FolderArchive const& archive : archives)
    {
        if (Engine::FeedItem const* const item = m_workplace.FindPublished(m_feed, archive.fileName))
        {
            m_published.push_back({archive, item});
        }
        else
        {
            fresh.push_back(archive);
        }
    }
    for (Published const& published : m_published)
    {
        refusals.Try([&] { CheckUnchanged(published); });
    }
    return fresh;
}

void PublishedArchives::CheckUnchanged(Published const& published)
{
    Engine::FeedItem const& item = *published.item;
    QString const path = m_workplace.PathOf(published.archive.fileName);
    InputFile const file = m_workplace.Open(published.archive.fileName);
    CheckLength(file, item);
    std::vector<std::string> keys = m_workplace.publicKeys;
    keys.insert(keys.begin(), m_workplace.key.PublicKeyText().toStdString());
    std::optional<std::string> signer = SignerOf(file, item.edSignature, keys);
    if (!signer)
    {
        signer = SignerOf(file, item.edSignature, KeysAtHand());
    }
    if (!signer)
    {
        throw Refusal(
            {path,
             u"does not match the published signature (line %1 of the feed) with this key or any key that an available bundle trusts"_s
                 .arg(item.line),
             u"put the published file back, and give a changed one a new version and name; if another key signed it, give that key with --public-key"_s},
            RefusalCause::Content);
    }
    m_signerIds[published.archive.fileName] = KeyIdOf(*signer);
}

std::vector<std::string> PublishedArchives::KeysAtHand()
{
    std::vector<std::string> keys;
    RefusalList passedOver; // reported when the versions are asked for
    for (Published const& published : m_published)
    {
        if (std::optional<GatedVersion> const& version = BundleOf(published, passedOver))
        {
            std::vector<std::string> const& more = version->bundle->knownKeys;
            keys.insert(keys.end(), more.begin(), more.end());
        }
    }
    return keys;
}

std::optional<GatedVersion> const& PublishedArchives::BundleOf(Published const& published, RefusalList& refusals)
{
    QString const& name = published.archive.fileName;
    auto const known = m_bundles.find(name);
    if (known != m_bundles.end())
    {
        return known->second;
    }
    std::optional<GatedVersion> version;
    if (published.archive.kind == ArchiveKind::Bundle)
    {
        bool const isRead = refusals.Try(
            [&]
            {
                version =
                    VersionOf(*m_workplace.Unpack(name), m_workplace.PathOf(name), Engine::PayloadKind::WholeBundle);
                BelieveStatement(*version, m_feed.With({}));
            });
        if (!isRead)
        {
            static std::optional<GatedVersion> const NOTHING;
            return NOTHING;
        }
    }
    return m_bundles.emplace(name, version).first->second;
}

std::vector<GatedVersion> PublishedArchives::Versions(RefusalList& refusals)
{
    std::vector<GatedVersion> versions;
    for (PublishedItem const& published : m_feed.Items())
    {
        for (Engine::FeedPlatform const platform : published.platforms)
        {
            GatedVersion version = VersionOf(published.item, platform, m_feed.Name());
            // Deltas start from the item's own archive, so that is unpacked anyway.
            auto const find = [&](Engine::FeedItem const* wanted)
            {
                return std::find_if(m_published.begin(), m_published.end(),
                                    [wanted](Published const& each) { return each.item == wanted; });
            };
            auto const& more = published.item.recompressed;
            auto atHand = find(&published.item);
            atHand = atHand == m_published.end() && !more.empty() ? find(&more.front()) : atHand;
            if (atHand != m_published.end())
            {
                QString const plainId = m_signerIds[atHand->archive.fileName];
                if (!plainId.isEmpty() && !version.signerIds.contains(plainId))
                {
                    version.signerIds.append(plainId);
                }
                std::optional<GatedVersion> const& inside = BundleOf(*atHand, refusals);
                if (inside && inside->platform == platform)
                {
                    version.path = inside->path;
                    version.bundle = inside->bundle;
                    version.trustedIds = inside->trustedIds;
                }
            }
            versions.push_back(std::move(version));
        }
    }
    return versions;
}

} // namespace Pelnar::Publisher
