#include "Publisher/late/ZstdTar.h"

#include "Engine/core/base/Descriptor.h"
#include "Publisher/Refusal.h"

#include <QString>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <thread>
#include <vector>

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <zstd.h>

namespace Pelnar::Publisher
{
namespace
{

namespace fs = std::filesystem;

constexpr int LEVEL = 19;
constexpr int WINDOW_LOG = 25; ///< a client needs 32 MiB to unpack it
constexpr std::size_t PIECE_BYTES = std::size_t(1) << 20;

/// Compresses its input and writes it.
class ZstdFile
{
public:
    explicit ZstdFile(int fd) : m_fd(fd), m_packed(ZSTD_CStreamOutSize()), m_context(ZSTD_createCCtx(), ZSTD_freeCCtx)
    {
        if (!m_context)
        {
            throw std::bad_alloc();
        }
        ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_compressionLevel, LEVEL);
        ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_windowLog, WINDOW_LOG);
        ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_enableLongDistanceMatching, 1);
        ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_checksumFlag, 1);
        // zstd would otherwise give each thread four windows, and one thread would compress a whole bundle.
        ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_jobSize, 1 << WINDOW_LOG);
        // Any number of threads except 0 makes the same bytes. A zstd built without threads refuses this setting.
        ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_nbWorkers,
                               static_cast<int>(std::max(1u, std::thread::hardware_concurrency())));
    }

    /// False, with errno, if it cannot be written.
    [[nodiscard]] bool Add(Engine::Bytes bytes, ZSTD_EndDirective directive)
    {
        ZSTD_inBuffer in{bytes.data(), bytes.size(), 0};
        std::size_t left = 0;
        do
        {
            ZSTD_outBuffer out{m_packed.data(), m_packed.size(), 0};
            left = ZSTD_compressStream2(m_context.get(), &out, &in, directive);
            if (ZSTD_isError(left))
            {
                errno = ENOMEM; // no other error is possible here
                return false;
            }
            if (!Engine::WriteAll(m_fd, Engine::Bytes(m_packed.data(), out.pos)))
            {
                return false;
            }
        } while (in.pos < in.size || (directive == ZSTD_e_end && left > 0));
        return true;
    }

private:
    int m_fd;
    std::vector<std::uint8_t> m_packed;
    std::unique_ptr<ZSTD_CCtx, std::size_t (*)(ZSTD_CCtx*)> m_context;
};

/// GNU tar keeps the bytes of names unchanged in any locale.
class TarWriter
{
public:
    TarWriter(int fd, QString name)
        : m_name(std::move(name)), m_file(fd), m_archive(archive_write_new(), archive_write_free)
    {
        Require(m_archive && archive_write_set_format_gnutar(m_archive.get()) == ARCHIVE_OK &&
                archive_write_set_bytes_per_block(m_archive.get(), 0) == ARCHIVE_OK &&
                archive_write_open(m_archive.get(), this, nullptr, &TarWriter::Write, nullptr) == ARCHIVE_OK);
    }

    void AddHeader(std::string const& path, struct stat const& status, std::string const& target)
    {
        std::unique_ptr<archive_entry, void (*)(archive_entry*)> const entry(archive_entry_new(), archive_entry_free);
        bool const isPlain = S_ISREG(status.st_mode);
        bool const isOpen = !isPlain || (status.st_mode & S_IXUSR) != 0;
        archive_entry_set_pathname(entry.get(), path.c_str());
        archive_entry_set_filetype(entry.get(), status.st_mode & S_IFMT);
        archive_entry_set_perm(entry.get(), isOpen ? 0755 : 0644);
        archive_entry_set_size(entry.get(), isPlain ? status.st_size : 0);
        archive_entry_set_mtime(entry.get(), status.st_mtim.tv_sec, 0);
        if (S_ISLNK(status.st_mode))
        {
            archive_entry_set_symlink(entry.get(), target.c_str());
        }
        Require(archive_write_header(m_archive.get(), entry.get()) == ARCHIVE_OK);
    }
    void AddContent(Engine::Bytes bytes)
    {
        Require(archive_write_data(m_archive.get(), bytes.data(), bytes.size()) ==
                static_cast<la_ssize_t>(bytes.size()));
    }
    void Finish() { Require(archive_write_close(m_archive.get()) == ARCHIVE_OK && m_file.Add({}, ZSTD_e_end)); }

private:
    void Require(bool isGood) const
    {
        if (!isGood)
        {
            RefuseFile(m_name, u"cannot be written"_s, errno, u"check the space on the disk"_s);
        }
    }

    static la_ssize_t Write(archive*, void* self, void const* bytes, std::size_t size)
    {
        Engine::Bytes const piece(static_cast<std::uint8_t const*>(bytes), size);
        bool const isWritten = static_cast<TarWriter*>(self)->m_file.Add(piece, ZSTD_e_continue);
        return isWritten ? static_cast<la_ssize_t>(size) : -1;
    }

    QString m_name;
    ZstdFile m_file;
    std::unique_ptr<archive, int (*)(archive*)> m_archive;
};

/// The name of a file of the bundle in messages.
QString NameOf(BundleTree const& bundle, fs::path const& path)
{
    return bundle.ShownPath(path.native()).value_or(QString::fromStdString(path.native()));
}

/// A plain file that is open, with the size that its header states.
struct OpenedFile
{
    Engine::UniqueFd descriptor;
    std::uint64_t size;
    QString name;
};

/// Opens the plain file at \a path, and puts its state at that moment into \a status.
OpenedFile OpenFile(fs::path const& path, struct stat& status, QString const& name)
{
    OpenedFile file{Engine::UniqueFd(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)), 0, name};
    if (!file.descriptor || ::fstat(file.descriptor.Get(), &status) != 0)
    {
        RefuseReading(name, errno);
    }
    if (!S_ISREG(status.st_mode))
    {
        RefuseChanged(name);
    }
    file.size = static_cast<std::uint64_t>(status.st_size);
    return file;
}

void AddContent(TarWriter& tar, OpenedFile const& file, std::function<void(std::size_t)> const& done)
{
    std::vector<std::uint8_t> piece(PIECE_BYTES);
    for (std::uint64_t offset = 0;;)
    {
        ssize_t const got = Engine::ReadUpTo(file.descriptor.Get(), offset, piece.data(), piece.size());
        if (got < 0)
        {
            RefuseReading(file.name, errno);
        }
        auto const count = static_cast<std::size_t>(got);
        // The tar would fill a shorter file with zeros.
        if (count > file.size - offset || (count == 0 && offset != file.size))
        {
            RefuseChanged(file.name);
        }
        if (count == 0)
        {
            return;
        }
        tar.AddContent(Engine::Bytes(piece.data(), count));
        offset += count;
        done(count);
    }
}

/// The folder and all that is in it, sorted. Adds the sizes of its files to \a bytes.
std::vector<fs::path> PathsOf(BundleTree const& bundle, std::uint64_t& bytes)
{
    std::vector<fs::path> paths{bundle.Path()};
    std::error_code error;
    fs::recursive_directory_iterator entry(bundle.Path(), error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error))
    {
        paths.push_back(entry->path());
        struct stat status;
        bool const isFile = ::lstat(entry->path().c_str(), &status) == 0 && S_ISREG(status.st_mode);
        bytes += isFile ? static_cast<std::uint64_t>(status.st_size) : 0;
    }
    if (error)
    {
        RefuseReading(NameOf(bundle, bundle.Path()), error.value());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string TargetOf(fs::path const& link, QString const& name)
{
    std::error_code error;
    fs::path const target = fs::read_symlink(link, error);
    if (error)
    {
        RefuseReading(name, error.value());
    }
    return target.string();
}

} // namespace

void WriteZstdTar(BundleTree const& bundle, std::int64_t time, int fd, QString const& name,
                  ByteProgress const& progress)
{
    TarWriter tar(fd, name);
    std::uint64_t total = 0;
    std::uint64_t done = 0;
    for (fs::path const& path : PathsOf(bundle, total))
    {
        QString const shown = NameOf(bundle, path);
        std::string const within = path.lexically_relative(bundle.Path().parent_path()).string();
        struct stat status;
        if (::lstat(path.c_str(), &status) != 0)
        {
            RefuseReading(shown, errno);
        }
        if (!S_ISREG(status.st_mode))
        {
            status.st_mtim = {time, 0};
            tar.AddHeader(within, status, S_ISLNK(status.st_mode) ? TargetOf(path, shown) : std::string());
            continue;
        }
        OpenedFile const file = OpenFile(path, status, shown);
        tar.AddHeader(within, status, {});
        AddContent(tar, file,
                   [&](std::size_t count)
                   {
                       done += count;
                       progress(done, total);
                   });
    }
    tar.Finish();
}

} // namespace Pelnar::Publisher
