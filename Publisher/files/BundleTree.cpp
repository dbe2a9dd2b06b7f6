#include "Publisher/files/BundleTree.h"

#include "Engine/core/archive/Archive.h"
#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/archive/UnpackArchive.h"
#include "Engine/core/base/TreeAccess.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/bundle/PropertyList.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/FaultText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace Pelnar::Publisher
{
namespace
{

namespace fs = std::filesystem;

constexpr char TEMPORARY_PREFIX[] = "pelnar-appcast-";
/// Of a folder that its process, whose number is in the name, has not locked yet.
constexpr char UNHELD_PREFIX[] = "pelnar-appcast.new-";
constexpr char MAC_INFORMATION_PATH[] = "Contents/Info.plist";

Engine::UniqueFd OpenFolder(fs::path const& path)
{
    return Engine::UniqueFd(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

/// True if there is a process with that number.
bool IsRunning(QString const& number)
{
    return ::kill(pid_t(number.toInt()), 0) == 0 || errno != ESRCH;
}

/// Removes the folders of killed runs: this user's folders without a lock. A folder that was just created and is about
/// to be locked stays.
void RemoveAbandoned()
{
    constexpr int YOUNG_SECONDS = 60;
    QDir const place(QDir::tempPath());
    QStringList const names = place.entryList(
        {QLatin1String(TEMPORARY_PREFIX) + u'*', QLatin1String(UNHELD_PREFIX) + u'*'}, QDir::Dirs | QDir::NoSymLinks);
    Engine::UniqueFd const parent = OpenFolder(QFile::encodeName(place.path()).toStdString());
    for (QString const& name : names)
    {
        Engine::UniqueFd const folder(::openat(parent.Get(), QFile::encodeName(name).constData(),
                                               O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        struct stat status;
        bool const isOwn = folder && ::fstat(folder.Get(), &status) == 0 && status.st_uid == ::geteuid();
        bool const isHeldSoon = name.startsWith(QLatin1String(UNHELD_PREFIX)) && IsRunning(name.section(u'-', 2, 2)) &&
                                ::time(nullptr) - status.st_ctime <= YOUNG_SECONDS;
        if (isOwn && !isHeldSoon && ::flock(folder.Get(), LOCK_EX | LOCK_NB) == 0)
        {
            static_cast<void>(Engine::RemoveTree(parent.Get(), QFile::encodeName(name).toStdString()));
        }
    }
}

/// True if every gzip member of the file has the checksum and the length that it states: the library that reads
/// archives does not compare them. Bytes after the last member are ignored, as in gunzip. Leaves the descriptor at the
/// file's start.
bool IsIntactGzip(int descriptor)
{
    constexpr unsigned PIECE_BYTES = 256 << 10;
    int const copy = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    gzFile const file = copy >= 0 && ::lseek(copy, 0, SEEK_SET) == 0 ? ::gzdopen(copy, "rb") : nullptr;
    if (!file)
    {
        ::close(copy);
        return false;
    }
    std::vector<char> unpacked(PIECE_BYTES);
    int count = 0;
    do
    {
        count = ::gzread(file, unpacked.data(), PIECE_BYTES);
    } while (count > 0);
    bool const isGzip = count == 0 && ::gzdirect(file) == 0;
    bool const isWhole = ::gzclose_r(file) == Z_OK; // a member may end too early
    return isGzip && isWhole && ::lseek(descriptor, 0, SEEK_SET) == 0;
}

/// The refusal, and every other entry of the archive that is refused.
std::vector<Problem> ProblemsOf(Engine::UpdateRefusal const& refusal, InputFile const& archive)
{
    constexpr std::size_t MOST = 20;
    std::vector<Problem> problems;
    try
    {
        for (Engine::EntryRefusal const& entry : Engine::FindRefusedEntries(archive.descriptor.Get(), MOST))
        {
            problems.push_back(ProblemOf(Engine::UpdateRefusal(entry.fault, 0, entry.path), archive.name));
        }
    }
    catch (Engine::UpdateRefusal const&)
    {
        problems.clear(); // it says no more than the refusal
    }
    if (problems.empty())
    {
        problems = {ProblemOf(refusal, archive.name)};
    }
    if (refusal.Fault() == Engine::UpdateFault::BundleNotAlone)
    {
        problems.front().mend +=
            u"; to omit the \"__MACOSX\" and \"._\" files of macOS, use COPYFILE_DISABLE=1 tar, or zip -X"_s;
    }
    return problems;
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    RemoveAbandoned();
    QByteArray const place = QFile::encodeName(QDir::tempPath()) + '/';
    QByteArray unheld = place + UNHELD_PREFIX + QByteArray::number(qint64(::getpid())) + "-XXXXXX";
    m_leftover.emplace(
        [&]
        {
            bool isMade = ::mkdtemp(unheld.data()) != nullptr;
            QByteArray const path = place + TEMPORARY_PREFIX + unheld.right(6);
            if (isMade)
            {
                m_folder = OpenFolder(unheld.toStdString());
                static_cast<void>(::flock(m_folder.Get(), LOCK_EX | LOCK_NB)); // without locks no run removes it
                isMade = ::rename(unheld.constData(), path.constData()) == 0;
            }
            if (!isMade)
            {
                int const errorNumber = errno;
                ::rmdir(unheld.constData());
                RefuseFile(QDir::tempPath(), u"no folder for temporary files can be made there"_s, errorNumber,
                           u"name another folder in TMPDIR"_s);
            }
            m_path = path.toStdString();
            return path.toStdString();
        });
    m_parent = OpenFolder(m_path.parent_path());
}

TemporaryFolder::~TemporaryFolder()
{
    if (!Engine::RemoveTree(m_parent.Get(), m_path.filename().string()))
    {
        m_leftover->LeaveToTheEnd();
    }
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
        int const descriptor = archive.descriptor.Get();
        if (Engine::InspectContainer(descriptor).kind == Engine::ContainerKind::TarGzip && !IsIntactGzip(descriptor))
        {
            throw Engine::UpdateRefusal(Engine::UpdateFault::ContainerDamaged);
        }
        fs::path const path = folder->Path() / bundle.name;
        return BundleTree(std::move(folder), path, archive.name);
    }
    catch (Engine::UpdateRefusal const& refusal)
    {
        throw Refusal(ProblemsOf(refusal, archive), CauseOf(refusal.Fault()));
    }
}

BundleTree::BundleTree(std::unique_ptr<TemporaryFolder> temporary, fs::path path, QString const& shownName)
    : m_temporary(std::move(temporary)), m_path(std::move(path)), m_shownName(shownName), m_folder(OpenFolder(m_path))
{
    if (!m_folder)
    {
        RefuseFile(shownName, u"cannot be read"_s, errno, u"close other programs, and check the disk"_s);
    }
    ReadInformation();
}

std::optional<QString> BundleTree::ShownPath(std::string const& path) const
{
    std::string const& folder = m_path.native();
    bool const isInside = path.compare(0, folder.size(), folder) == 0;
    return isInside ? m_shownName + QFile::decodeName(path.c_str() + folder.size()) : std::optional<QString>();
}

Engine::ContentHash BundleTree::Digest() const
{
    try
    {
        return Engine::DigestTree(Descriptor());
    }
    catch (Engine::UpdateRefusal const& refusal)
    {
        RefuseReading(m_shownName, refusal.ErrorNumber());
    }
}

void BundleTree::ReadInformation()
{
    Engine::TreeAccess tree(Descriptor());
    Engine::UniqueFd file = tree.OpenFile(Engine::INFORMATION_PATH);
    char const* path = Engine::INFORMATION_PATH;
    auto const isMissing = [&file] { return !file && (errno == ENOENT || errno == ENOTDIR || errno == ELOOP); };
    if (isMissing())
    {
        path = MAC_INFORMATION_PATH;
        file = tree.OpenFile(path);
        m_platform = Engine::FeedPlatform::MacOS;
    }
    struct stat status;
    bool const isAbsent = isMissing();
    if (!isAbsent && (!file || ::fstat(file.Get(), &status) != 0))
    {
        RefuseFile(m_shownName + u'/' + QLatin1String(path), u"cannot be read"_s, errno,
                   u"close other programs, and check the disk"_s);
    }
    if (isAbsent || !S_ISREG(status.st_mode))
    {
        throw Refusal(ProblemOf(Engine::UpdateFault::InformationMissing, 0, m_shownName), RefusalCause::Content);
    }
    QString const shownPath = m_shownName + u'/' + QLatin1String(path);
    InputFile const input{std::move(file), shownPath, static_cast<std::uint64_t>(status.st_size)};
    QByteArray const text = ReadInputFile(input, Engine::PROPERTY_LIST_MAX_BYTES, u"keep it below 1 MiB"_s);
    try
    {
        m_information =
            Engine::ParseBundleInformation({text.constData(), static_cast<std::size_t>(text.size())}, Name());
    }
    catch (Engine::UpdateRefusal const& refusal)
    {
        Problem problem = ProblemOf(refusal, shownPath);
        problem.line = Engine::FaultLineOfPropertyList({text.constData(), static_cast<std::size_t>(text.size())});
        throw Refusal(problem, CauseOf(refusal.Fault()));
    }
}

} // namespace Pelnar::Publisher
