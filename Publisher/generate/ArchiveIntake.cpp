#include "Publisher/generate/ArchiveIntake.h"

#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Engine/core/fetch/FetchRules.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/gate/ReleaseGate.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

Refusal ContentRefusal(Problem problem)
{
    return Refusal(std::move(problem), RefusalCause::Content);
}

bool IsInstaller(ArchiveKind kind)
{
    return kind == ArchiveKind::GuidedInstaller || kind == ArchiveKind::InteractiveInstaller;
}

/// True if \a published competes with \a item: the same version, the same kind of update, a common system.
bool Clashes(NewItem const& item, PublishedItem const& published)
{
    bool const isInstaller = UpdateTypeOf(published.item) == App::Session::UpdateType::INSTALLER;
    return published.version.IsValid() && published.version == item.version && isInstaller == IsInstaller(item.kind) &&
           published.platforms.count(item.platform) != 0 &&
           Engine::ShareMachine(published.item.policy.machines, item.machines);
}

bool Clashes(NewItem const& item, NewItem const& other)
{
    return other.version == item.version && IsInstaller(other.kind) == IsInstaller(item.kind) &&
           other.platform == item.platform && Engine::ShareMachine(other.machines, item.machines);
}

constexpr char const* MAC_PACKAGE_ENDINGS[] = {".pkg", ".mpkg"};
constexpr char MAC_IMAGE_ENDING[] = ".dmg";

bool HasMacEnding(QString const& fileName)
{
    return fileName.endsWith(QLatin1String(MAC_IMAGE_ENDING), Qt::CaseInsensitive) ||
           EndsWithOneOf(fileName, MAC_PACKAGE_ENDINGS);
}

/// The bytes of an installer for macOS must match its name: a package has a mark at its start, an image at its end.
void CheckMacInstaller(InputFile const& file)
{
    constexpr char PACKAGE_MARK[] = {'x', 'a', 'r', '!'};
    constexpr char IMAGE_MARK[] = {'k', 'o', 'l', 'y'};
    constexpr std::uint64_t IMAGE_TRAILER_BYTES = 512;
    bool const isImage = file.name.endsWith(QLatin1String(MAC_IMAGE_ENDING), Qt::CaseInsensitive);
    std::uint64_t const offset = isImage && file.size > IMAGE_TRAILER_BYTES ? file.size - IMAGE_TRAILER_BYTES : 0;
    char mark[4] = {};
    bool const isRead = Engine::ReadUpTo(file.descriptor.Get(), offset, mark, sizeof mark) == sizeof mark;
    bool const isSame = std::equal(std::begin(mark), std::end(mark), isImage ? IMAGE_MARK : PACKAGE_MARK);
    if (file.size > 0 && !(isRead && isSame)) // an empty file is reported when it is signed
    {
        throw ContentRefusal({file.name, isImage ? u"is not a disk image"_s : u"is not an installer package"_s,
                              u"give it the file name ending of its real type"_s});
    }
}

void CheckPurpose(Engine::BundleInformation const& information, Engine::BundlePurpose purpose, QString const& path)
{
    if (information.purpose == purpose)
    {
        return;
    }
    bool const isBundle = purpose == Engine::BundlePurpose::Application;
    throw ContentRefusal({path,
                          isBundle ? u"it is named as a bundle, but its PelnarPayloadKind is another"_s
                                   : u"it is named as an installer, but its information file does not say so"_s,
                          isBundle ? u"remove PelnarPayloadKind from the bundle's information file, or mark the "
                                     "name of an installer with .sparkle_guided. or .sparkle_interactive."_s
                                   : u"write PelnarPayloadKind = installer into the information file of a bundle "
                                     "that installs the new version, or remove the mark from the name"_s});
}

} // namespace

std::vector<NewItem> ArchiveIntake::Take(std::vector<FolderArchive> const& archives, RefusalList& refusals)
{
    for (FolderArchive const& archive : archives)
    {
        if (archive.kind == ArchiveKind::Delta)
        {
            continue;
        }
        refusals.Try(
            [&]
            {
                NewItem item =
                    IsInstaller(archive.kind) ? TakeInstaller(archive, refusals) : TakeBundle(archive, refusals);
                CheckClash(item);
                m_items.push_back(std::move(item));
            });
    }
    CheckMachines(refusals);
    CheckAmongEachOther(refusals);
    CheckTrust(m_versions, refusals);
    for (GatedVersion const& version : m_versions)
    {
        refusals.Try([&] { CheckFeedSignature(version, SignatureFor(version)); });
    }
    if (!refusals.IsEmpty())
    {
        return {};
    }
    // Signed last, so that problems of other archives are reported before the long work.
    for (NewItem& item : m_items)
    {
        item.signature = m_workplace.Sign(m_workplace.Open(item.fileName));
        item.signerId = m_workplace.KeyId();
    }
    return std::move(m_items);
}

/// Versions of one run are clients of each other too. Each was checked before all of them were known.
void ArchiveIntake::CheckAmongEachOther(RefusalList& refusals)
{
    std::vector<GatedVersion> fresh;
    for (GatedVersion const& version : m_versions)
    {
        if (IsNew(version))
        {
            fresh.push_back(version);
        }
    }
    bool const hasInstaller =
        std::any_of(fresh.begin(), fresh.end(), [](GatedVersion const& version) { return !version.HasClients(); });
    bool const isOneName =
        std::all_of(fresh.begin(), fresh.end(),
                    [&](GatedVersion const& version) { return version.bundle->name == fresh.front().bundle->name; });
    if ((isOneName && !hasInstaller) || !refusals.IsEmpty())
    {
        return; // all that clients compare, except the name of the folder, is already compared
    }
    for (GatedVersion const& version : fresh)
    {
        JudgeAgain(version, fresh, MachineFor(version), refusals);
    }
}

/// A program for a machine for which the release is not made.
void ArchiveIntake::CheckMachines(RefusalList& refusals)
{
    for (GatedVersion const& version : m_versions)
    {
        QString const own = QString::fromStdString(Engine::NameOf(MainMachine()));
        auto const isBeside = [&](GatedVersion const& other)
        {
            return other.version == version.version && other.platform == version.platform &&
                   other.kind == version.kind && Engine::SuitsMachine(other.machines, own);
        };
        std::vector<std::string> const& named = m_workplace.machines;
        bool const isMeant =
            named.empty()
                ? std::any_of(m_versions.begin(), m_versions.end(), isBeside)
                : std::any_of(named.begin(), named.end(),
                              [&](std::string const& name)
                              { return Engine::SuitsMachine(version.machines, QString::fromStdString(name)); });
        if (IsNew(version) && !isMeant)
        {
            JudgeAgain(version, m_versions, MainMachine(), refusals);
        }
    }
}

FeedSignature ArchiveIntake::SignatureFor(GatedVersion const& version) const
{
    Engine::TrustedKeys const keys = version.bundle ? version.bundle->clientKeys : Engine::TrustedKeys();
    bool const isKnown = !keys.Texts().empty();
    return isKnown && !keys.HasId(m_workplace.KeyId().toStdString()) ? FeedSignature::Missing : m_signature;
}

bool ArchiveIntake::IsNew(GatedVersion const& version) const
{
    return version.bundle &&
           std::any_of(m_items.begin(), m_items.end(),
                       [&](NewItem const& item) { return m_workplace.PathOf(item.fileName) == version.path; });
}

Engine::Machine ArchiveIntake::MainMachine() const
{
    return m_workplace.machines.empty() ? Engine::OwnMachine() : *Engine::MachineOfName(m_workplace.machines.front());
}

Engine::Machine ArchiveIntake::MachineFor(GatedVersion const& version) const
{
    return version.machines.isEmpty() ? MainMachine() : *Engine::MachineOfName(version.machines.first().toStdString());
}

void ArchiveIntake::JudgeAgain(GatedVersion const& version, std::vector<GatedVersion> const& clients,
                               Engine::Machine const& machine, RefusalList& refusals) const
{
    std::shared_ptr<BundleTree const> const bundle = m_workplace.Unpack(QFileInfo(version.path).fileName());
    CheckBundleForClients(*bundle, version, clients, machine, refusals);
}

NewItem ArchiveIntake::TakeBundle(FolderArchive const& archive, RefusalList& refusals)
{
    QString const path = m_workplace.PathOf(archive.fileName);
    std::shared_ptr<BundleTree const> const unpacked = m_workplace.Unpack(archive.fileName);
    BundleTree const& bundle = *unpacked;
    Engine::BundleInformation const& information = bundle.Information();
    CheckPurpose(information, Engine::BundlePurpose::Application, path);
    CheckProduct(information, path);
    NewItem item;
    item.platform = bundle.Platform();
    QString const bundleName = QString::fromStdString(bundle.Name());
    item.productName = Printable(bundleName.left(bundleName.lastIndexOf(u'.')));
    item.versionText = QString::fromStdString(information.version);
    item.displayVersion = Printable(QString::fromStdString(information.displayVersion));
    item.minimumSystemVersion = QString::fromStdString(information.minimumSystemVersion);
    if (!item.minimumSystemVersion.isEmpty() && !WholeVersion(item.minimumSystemVersion).IsValid())
    {
        throw ContentRefusal(
            {path, u"the bundle's LSMinimumSystemVersion \"%1\" is not a version"_s.arg(item.minimumSystemVersion),
             u"write one to four numbers separated by dots"_s});
    }
    Complete(item, archive);
    GatedVersion version = VersionOf(bundle, path, Engine::PayloadKind::WholeBundle);
    version.signerIds = m_workplace.KeyIds();
    item.trustedIds = version.trustedIds;
    BelieveStatement(version, m_feed.With({}));
    CheckBundleForClients(bundle, version, m_versions, MachineFor(version), refusals);
    CheckContent(bundle, version, m_versions, m_workplace.console, refusals);
    WarnOf(version);
    WarnOfSettings(information, version);
    item.machines = version.machines;
    m_versions.push_back(std::move(version));
    return item;
}

/// Accepted by clients, but probably not intended by the publisher.
void ArchiveIntake::WarnOf(GatedVersion const& version) const
{
    auto const newer =
        std::find_if(m_versions.begin(), m_versions.end(),
                     [&](GatedVersion const& other) { return !IsNew(other) && IsOffered(other, version); });
    if (newer != m_versions.end())
    {
        m_workplace.Warn(version.path,
                         u"has the version %1, but clients take the published version %2 instead"_s.arg(
                             version.versionText, newer->versionText),
                         u"give it a greater version, unless it is for clients that cannot take the newer one"_s);
    }
    WarnOfLoss(
        version, [](GatedBundle const& bundle) { return !bundle.rootKey.empty(); },
        u"has no root key, although version %1 has one; no key statement can protect its clients from a stolen key"_s,
        u"PelnarRootPublicEDKey"_s);
    WarnOfLoss(
        version, [](GatedBundle const& bundle) { return bundle.requiresSignedFeed; },
        u"does not require a signed feed, although version %1 does; its clients accept forged and outdated feeds"_s,
        u"PelnarRequiresSignedFeed = YES"_s);
    WarnOfLoss(
        version, [](GatedBundle const& bundle) { return bundle.hasFeedAddress; },
        u"has no SUFeedURL, although version %1 has one; its clients find no update unless the application says where"_s,
        u"SUFeedURL"_s);
}

void ArchiveIntake::WarnOfLoss(GatedVersion const& version, bool (*has)(GatedBundle const&), QString const& what,
                               QString const& entry) const
{
    auto const older = std::find_if(m_versions.begin(), m_versions.end(),
                                    [&](GatedVersion const& other)
                                    { return other.bundle && has(*other.bundle) && IsOffered(version, other); });
    if (older != m_versions.end() && !has(*version.bundle))
    {
        m_workplace.Warn(version.path, what.arg(older->versionText),
                         u"write %1 into the bundle's information file"_s.arg(entry));
    }
}

/// Settings with which clients never get another update. A host may give another address, or disable updates on
/// purpose.
void ArchiveIntake::WarnOfSettings(Engine::BundleInformation const& information, GatedVersion const& version) const
{
    if (version.platform != Engine::FeedPlatform::Linux)
    {
        return;
    }
    QUrl const address(QString::fromStdString(information.feedUrl));
    bool const isUsable =
        Engine::JudgeFeedAddress(address, information.allowsInsecureFeeds ? Engine::InsecureHttp::Anywhere
                                                                          : Engine::InsecureHttp::LoopbackOnly)
            .has_value();
    if (!information.feedUrl.empty() && !isUsable)
    {
        m_workplace.Warn(version.path,
                         u"has the feed address %1, which its clients refuse"_s.arg(
                             Printable(QString::fromStdString(information.feedUrl))),
                         u"write an https address as SUFeedURL into the bundle's information file"_s);
    }
    if (information.feedPlatform == "macos")
    {
        m_workplace.Warn(version.path,
                         u"has PelnarFeedPlatform = macos, so its clients never get an update for Linux"_s,
                         u"remove it from the bundle's information file"_s);
    }
    if (information.disablesUpdates)
    {
        m_workplace.Warn(version.path, u"has PelnarUpdatesDisabled, so its clients never get another update"_s,
                         u"remove it from the bundle's information file, unless that is intended"_s);
    }
}

void ArchiveIntake::CheckProduct(Engine::BundleInformation const& information, QString const& path)
{
    if (information.identifier.empty())
    {
        throw ContentRefusal({path, u"the bundle has no CFBundleIdentifier, so clients refuse it"_s,
                              u"write it into the bundle's information file"_s});
    }
    if (!m_identifier.empty() && m_identifier != information.identifier)
    {
        throw ContentRefusal({path,
                              u"belongs to the product %1, but %2 belongs to %3"_s.arg(
                                  QString::fromStdString(information.identifier), m_identifierSource,
                                  QString::fromStdString(m_identifier)),
                              u"give each product a folder of its own"_s});
    }
    m_identifier = information.identifier;
    m_identifierSource = path;
}

NewItem ArchiveIntake::TakeInstaller(FolderArchive const& archive, RefusalList& refusals)
{
    NewItem item;
    int const underscore = archive.stem.lastIndexOf(u'_');
    bool const isForMac = HasMacEnding(archive.fileName);
    if (!isForMac && !archive.isNamedAsContainer)
    {
        throw ContentRefusal(
            {m_workplace.PathOf(archive.fileName), u"is not an installer that clients of any system take"_s,
             u"for macOS give it a name that ends in .pkg, .mpkg or .dmg; for Linux pack the bundle whose program installs the new version as a zip or a tar"_s});
    }
    item.kind = archive.kind;
    item.platform = isForMac ? Engine::FeedPlatform::MacOS : Engine::FeedPlatform::Linux;
    item.productName = Printable(archive.stem.left(underscore));
    item.versionText = underscore < 0 ? QString() : archive.stem.mid(underscore + 1);
    Complete(item, archive);
    isForMac ? CheckMacInstaller(m_workplace.Open(archive.fileName)) : TakeInstallerProgram(archive, item, refusals);
    return item;
}

void ArchiveIntake::TakeInstallerProgram(FolderArchive const& archive, NewItem& item, RefusalList& refusals)
{
    QString const path = m_workplace.PathOf(archive.fileName);
    std::shared_ptr<BundleTree const> const unpacked = m_workplace.Unpack(archive.fileName);
    BundleTree const& bundle = *unpacked;
    Engine::BundleInformation const& information = bundle.Information();
    if (bundle.Platform() != Engine::FeedPlatform::Linux)
    {
        throw ContentRefusal({path, u"contains a bundle for macOS, where installers are packages and images"_s,
                              u"publish a .pkg, .mpkg or .dmg for macOS"_s});
    }
    CheckPurpose(information, Engine::BundlePurpose::InstallerProgram, path);
    CheckProduct(information, path);
    if (information.version != item.versionText.toStdString())
    {
        throw ContentRefusal({path,
                              u"is named after version %1, but installs \"%2\""_s.arg(
                                  item.versionText, QString::fromStdString(information.version)),
                              u"name it after the CFBundleVersion in its information file"_s});
    }
    GatedVersion version = VersionOf(bundle, path, Engine::PayloadKind::Installer);
    version.signerIds = m_workplace.KeyIds();
    CheckBundleForClients(bundle, version, m_versions, MachineFor(version), refusals);
    CheckContent(bundle, version, m_versions, m_workplace.console, refusals);
    item.machines = version.machines;
    m_versions.push_back(std::move(version));
}

void ArchiveIntake::Complete(NewItem& item, FolderArchive const& archive)
{
    QString const path = m_workplace.PathOf(archive.fileName);
    item.fileName = archive.fileName;
    item.version = WholeVersion(item.versionText);
    if (!item.version.IsValid())
    {
        bool const isBundle = item.kind == ArchiveKind::Bundle;
        throw ContentRefusal(
            {path, u"\"%1\" is not a version"_s.arg(item.versionText),
             isBundle
                 ? u"write one to four numbers separated by dots into the bundle's CFBundleVersion"_s
                 : u"name an installer NAME_VERSION.sparkle_guided.ENDING, where the version is one to four numbers separated by dots"_s});
    }
    item.publishedAt = m_workplace.publishedAt;
    item.notes = ReadReleaseNotes(m_workplace.folder, archive.stem);
}

void ArchiveIntake::CheckClash(NewItem const& item) const
{
    QString const mend = u"give one of them a newer version, or take it out of the folder"_s;
    for (NewItem const& other : m_items)
    {
        if (Clashes(item, other))
        {
            throw ContentRefusal({m_workplace.PathOf(item.fileName),
                                  u"has the version %1, and so has %2"_s.arg(item.versionText, other.fileName), mend});
        }
    }
    for (PublishedItem const& published : m_feed.Items())
    {
        if (Clashes(item, published))
        {
            throw ContentRefusal(
                {m_workplace.PathOf(item.fileName),
                 u"has the version %1, which is already published as %2 (line %3 of the feed)"_s.arg(
                     item.versionText, published.item.fileUrl.toString(), QString::number(published.item.line)),
                 mend});
        }
    }
}

} // namespace Pelnar::Publisher
