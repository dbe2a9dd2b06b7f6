#include "Publisher/generate/ArchiveIntake.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/UpdateType_p.h"
#include "Publisher/Refusal.h"
#include "Publisher/choice/FeedChoice.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

bool IsInstaller(ArchiveKind kind)
{
    return kind == ArchiveKind::GuidedInstaller || kind == ArchiveKind::InteractiveInstaller;
}

/// Whether \a published competes with \a item: one version, one way to update, a system in common.
bool Clashes(NewItem const& item, PublishedItem const& published)
{
    bool const isInstaller = UpdateTypeOf(published.item) == App::Session::UpdateType::INSTALLER;
    return published.version.IsValid() && published.version == item.version && isInstaller == IsInstaller(item.kind) &&
           published.platforms.count(item.platform) != 0;
}

bool Clashes(NewItem const& item, NewItem const& other)
{
    return other.version == item.version && IsInstaller(other.kind) == IsInstaller(item.kind) &&
           other.platform == item.platform;
}

std::optional<Engine::FeedPlatform> PlatformOfEnding(QString const& fileName)
{
    struct Ending
    {
        char const* text;
        Engine::FeedPlatform platform;
    };
    using Engine::FeedPlatform;
    constexpr Ending ENDINGS[] = {
        {".pkg", FeedPlatform::MacOS}, {".mpkg", FeedPlatform::MacOS}, {".dmg", FeedPlatform::MacOS},
        {".deb", FeedPlatform::Linux}, {".rpm", FeedPlatform::Linux},  {".run", FeedPlatform::Linux},
        {".sh", FeedPlatform::Linux},  {".bin", FeedPlatform::Linux},  {".AppImage", FeedPlatform::Linux},
    };
    for (Ending const& ending : ENDINGS)
    {
        if (fileName.endsWith(QLatin1String(ending.text), Qt::CaseInsensitive))
        {
            return ending.platform;
        }
    }
    return std::nullopt;
}

} // namespace

std::vector<NewItem> ArchiveIntake::Take(std::vector<FolderArchive> const& archives)
{
    for (FolderArchive const& archive : archives)
    {
        if (archive.kind != ArchiveKind::Delta)
        {
            NewItem item = IsInstaller(archive.kind) ? TakeInstaller(archive) : TakeBundle(archive);
            CheckClash(item);
            m_items.push_back(std::move(item));
        }
    }
    // Signed last: what is wrong with another archive is told before the long work.
    for (NewItem& item : m_items)
    {
        item.signature = m_workplace.Sign(item.fileName);
    }
    return std::move(m_items);
}

NewItem ArchiveIntake::TakeBundle(FolderArchive const& archive)
{
    QString const path = m_workplace.PathOf(archive.fileName);
    BundleTree const bundle = m_workplace.Unpack(archive.fileName);
    CheckBundle(bundle, path);
    Engine::BundleInformation const& information = bundle.Information();
    NewItem item;
    item.platform = bundle.Platform();
    QString const bundleName = QString::fromStdString(bundle.Name());
    item.productName = Printable(bundleName.left(bundleName.lastIndexOf(QLatin1Char('.'))));
    item.versionText = QString::fromStdString(information.version);
    item.displayVersion = Printable(QString::fromStdString(information.displayVersion));
    item.minimumSystemVersion = QString::fromStdString(information.minimumSystemVersion);
    if (!item.minimumSystemVersion.isEmpty() && !WholeVersion(item.minimumSystemVersion).IsValid())
    {
        throw Refusal(
            {path, 0, 0,
             QStringLiteral("the bundle's LSMinimumSystemVersion \"%1\" is no version").arg(item.minimumSystemVersion),
             QStringLiteral("write one to four numbers with dots between them")});
    }
    Complete(item, archive);
    return item;
}

void ArchiveIntake::CheckBundle(BundleTree const& bundle, QString const& path)
{
    Engine::BundleInformation const& information = bundle.Information();
    if (information.identifier.empty())
    {
        throw Refusal({path, 0, 0, QStringLiteral("the bundle has no CFBundleIdentifier, so that clients refuse it"),
                       QStringLiteral("write it into the bundle's information file")});
    }
    if (!m_identifier.empty() && m_identifier != information.identifier)
    {
        throw Refusal({path, 0, 0,
                       QStringLiteral("is of the product %1, while %2 is of %3")
                           .arg(QString::fromStdString(information.identifier), m_identifierSource,
                                QString::fromStdString(m_identifier)),
                       QStringLiteral("give each product a folder of its own")});
    }
    m_identifier = information.identifier;
    m_identifierSource = path;
    if (information.publicKey.empty())
    {
        throw Refusal({path, 0, 0, QStringLiteral("the bundle has no SUPublicEDKey and could never be updated again"),
                       QStringLiteral("add the entry that \"keys show\" prints to its information file")});
    }
    if (information.publicKey != m_workplace.key.PublicKeyText().toStdString())
    {
        m_workplace.Warn(path, QStringLiteral("the bundle trusts another key than the one that signs"),
                         QStringLiteral("right only when the key is being changed: this key must be the one that the "
                                        "version before trusts"));
    }
}

NewItem ArchiveIntake::TakeInstaller(FolderArchive const& archive)
{
    NewItem item;
    int const underscore = archive.stem.lastIndexOf(QLatin1Char('_'));
    item.kind = archive.kind;
    item.platform = PlatformOfInstaller(archive);
    item.productName = Printable(archive.stem.left(underscore));
    item.versionText = underscore < 0 ? QString() : archive.stem.mid(underscore + 1);
    Complete(item, archive);
    return item;
}

Engine::FeedPlatform ArchiveIntake::PlatformOfInstaller(FolderArchive const& archive) const
{
    if (std::optional<Engine::FeedPlatform> const platform = PlatformOfEnding(archive.fileName))
    {
        return *platform;
    }
    throw Refusal({m_workplace.PathOf(archive.fileName), 0, 0,
                   QStringLiteral("does not tell which system the installer is for"),
                   QStringLiteral("end its name with .pkg, .mpkg or .dmg for macOS; .deb, .rpm, .run, .sh, .bin or "
                                  ".AppImage for Linux")});
}

void ArchiveIntake::Complete(NewItem& item, FolderArchive const& archive)
{
    QString const path = m_workplace.PathOf(archive.fileName);
    item.fileName = archive.fileName;
    item.version = WholeVersion(item.versionText);
    if (!item.version.IsValid())
    {
        bool const isBundle = item.kind == ArchiveKind::Bundle;
        throw Refusal({path, 0, 0, QStringLiteral("\"%1\" is no version").arg(item.versionText),
                       isBundle ? QStringLiteral("write one to four numbers with dots between them into the bundle's "
                                                 "CFBundleVersion")
                                : QStringLiteral("name an installer NAME_VERSION.sparkle_guided.ENDING, the version "
                                                 "being one to four numbers with dots between them")});
    }
    item.changedAt = OpenInputFile(path).changedAt;
    item.notes = ReadReleaseNotes(m_workplace.folder, archive.stem);
}

void ArchiveIntake::CheckClash(NewItem const& item) const
{
    QString const mend = QStringLiteral("give one of them a newer version, or take it out of the folder");
    for (NewItem const& other : m_items)
    {
        if (Clashes(item, other))
        {
            throw Refusal({m_workplace.PathOf(item.fileName), 0, 0,
                           QStringLiteral("is of version %1, and so is %2").arg(item.versionText, other.fileName),
                           mend});
        }
    }
    for (PublishedItem const& published : m_feed.Items())
    {
        if (Clashes(item, published))
        {
            throw Refusal({m_workplace.PathOf(item.fileName), 0, 0,
                           QStringLiteral("is of version %1, which is published already as %2 (line %3 of the feed)")
                               .arg(item.versionText, published.item.fileUrl.toString())
                               .arg(published.item.line),
                           mend});
        }
    }
}

} // namespace Pelnar::Publisher
