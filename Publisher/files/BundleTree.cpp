#include "Publisher/files/BundleTree.h"

#include "Engine/core/payload/PropertyList.h"
#include "Engine/core/payload/TreeManifest.h"
#include "Engine/core/payload/UpdateFault.h"
#include "Engine/core/unpack/UnpackArchive.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/FaultText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Publisher
{
namespace
{

namespace fs = std::filesystem;

constexpr char MAC_INFORMATION_PATH[] = "Contents/Info.plist";

Engine::UniqueFd OpenFolder(fs::path const& path)
{
    return Engine::UniqueFd(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    QByteArray path = QFile::encodeName(QDir::tempPath()) + "/pelnar-appcast-XXXXXX";
    if (!::mkdtemp(path.data()))
    {
        RefuseFile(QDir::tempPath(), QStringLiteral("no folder for temporary files can be made there"), errno,
                   QStringLiteral("name another folder in TMPDIR"));
    }
    m_path = path.toStdString();
    m_parent = OpenFolder(m_path.parent_path());
    m_folder = OpenFolder(m_path);
}

TemporaryFolder::~TemporaryFolder()
{
    // What cannot be removed stays in the system's folder for temporary files, where it is found.
    static_cast<void>(Engine::RemoveTree(m_parent.Get(), m_path.filename().string()));
}

BundleTree BundleTree::Open(QString const& path, ByteProgress const& progress)
{
    QFileInfo const info(path);
    if (!info.isDir())
    {
        return Unpack(OpenInputFile(path), progress);
    }
    return BundleTree(nullptr, QFile::encodeName(info.absoluteFilePath()).toStdString(), path);
}

BundleTree BundleTree::Unpack(InputFile const& archive, ByteProgress const& progress)
{
    auto folder = std::make_unique<TemporaryFolder>();
    try
    {
        Engine::UnpackedBundle const bundle =
            Engine::UnpackArchive(archive.descriptor.Get(), folder->Descriptor(), progress);
        fs::path const path = folder->Path() / bundle.name;
        return BundleTree(std::move(folder), path, archive.name);
    }
    catch (Engine::UpdateRefusal const& refusal)
    {
        throw Refusal(ProblemOf(refusal, archive.name));
    }
}

BundleTree::BundleTree(std::unique_ptr<TemporaryFolder> temporary, fs::path path, QString const& shownName)
    : m_temporary(std::move(temporary)), m_path(std::move(path)), m_folder(OpenFolder(m_path))
{
    if (!m_folder)
    {
        RefuseFile(shownName, QStringLiteral("cannot be read"), errno, {});
    }
    ReadInformation(shownName);
}

void BundleTree::ReadInformation(QString const& shownName)
{
    Engine::TreeAccess const tree(Descriptor());
    Engine::UniqueFd file = tree.OpenFile(Engine::INFORMATION_PATH);
    char const* path = Engine::INFORMATION_PATH;
    if (!file)
    {
        path = MAC_INFORMATION_PATH;
        file = tree.OpenFile(path);
        m_platform = Engine::FeedPlatform::MacOS;
    }
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    {
        throw Refusal(ProblemOf(Engine::UpdateFault::InformationMissing, 0, shownName));
    }
    QString const shownPath = shownName + QLatin1Char('/') + QLatin1String(path);
    InputFile const input{std::move(file), shownPath, static_cast<std::uint64_t>(status.st_size), 0};
    QByteArray const text =
        ReadInputFile(input, Engine::PROPERTY_LIST_MAX_BYTES, QStringLiteral("keep it below 1 MiB"));
    try
    {
        m_information =
            Engine::ParseBundleInformation({text.constData(), static_cast<std::size_t>(text.size())}, Name());
    }
    catch (Engine::UpdateRefusal const& refusal)
    {
        throw Refusal(ProblemOf(refusal, shownPath));
    }
}

} // namespace Pelnar::Publisher
