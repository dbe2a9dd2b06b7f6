// ArchiveIntake.h: makes the items of a feed from archives that are not published yet.
// Ownership: refers to the workplace and the feed, which outlive it.
#pragma once

#include "Engine/core/bundle/CheckBundle.h"
#include "Publisher/Refusal.h"
#include "Publisher/gate/GatedVersion.h"
#include "Publisher/generate/Workplace.h"

namespace Pelnar::Publisher
{

class ArchiveIntake
{
public:
    /// \a published: the versions that clients have. \a signature: of the feed that will be written.
    ArchiveIntake(Workplace const& workplace, PublishedFeed const& feed, FeedSignature signature,
                  std::vector<GatedVersion> published)
        : m_workplace(workplace), m_feed(feed), m_signature(signature), m_versions(std::move(published))
    {
    }

    /// Reads and judges the bundles and installers among \a archives. Adds to \a refusals what clients would refuse or
    /// confuse. The items are signed only if \a refusals stays empty.
    std::vector<NewItem> Take(std::vector<FolderArchive> const& archives, RefusalList& refusals);
    /// The published versions, and the new ones after them.
    std::vector<GatedVersion> const& Versions() const { return m_versions; }

private:
    NewItem TakeBundle(FolderArchive const& archive, RefusalList& refusals);
    NewItem TakeInstaller(FolderArchive const& archive, RefusalList& refusals);
    void TakeInstallerProgram(FolderArchive const& archive, NewItem& item, RefusalList& refusals);
    void CheckProduct(Engine::BundleInformation const& information, QString const& path);
    void WarnOf(GatedVersion const& version) const;
    /// Warns if an older version \a has something and \a version does not.
    void WarnOfLoss(GatedVersion const& version, bool (*has)(GatedBundle const&), QString const& what,
                    QString const& entry) const;
    void WarnOfSettings(Engine::BundleInformation const& information, GatedVersion const& version) const;
    void Complete(NewItem& item, FolderArchive const& archive);
    void CheckClash(NewItem const& item) const;
    void CheckMachines(RefusalList& refusals);
    void CheckAmongEachOther(RefusalList& refusals);
    void JudgeAgain(GatedVersion const& version, std::vector<GatedVersion> const& clients,
                    Engine::Machine const& machine, RefusalList& refusals) const;
    /// As the clients of \a version see the feed: it is signed by the first key alone.
    [[nodiscard]] FeedSignature SignatureFor(GatedVersion const& version) const;
    [[nodiscard]] bool IsNew(GatedVersion const& version) const;
    Engine::Machine MainMachine() const;
    Engine::Machine MachineFor(GatedVersion const& version) const;

    Workplace const& m_workplace;
    PublishedFeed const& m_feed;
    FeedSignature const m_signature;
    std::vector<GatedVersion> m_versions; ///< published ones, and new ones after them
    std::vector<NewItem> m_items;
    std::string m_identifier; ///< of the product, once a bundle has named it
    QString m_identifierSource;
};

} // namespace Pelnar::Publisher
