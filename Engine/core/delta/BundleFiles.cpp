#include "Engine/core/delta/BundleFiles.h"

#include "Engine/core/base/TaskThread.h"

#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>

namespace Pelnar::Engine
{
namespace
{

/// Another thread hashes a file of at least this size. For smaller files, the start of the thread takes too long.
constexpr std::uint64_t LARGE_FILE_BYTES = std::uint64_t{1} << 20;
constexpr std::size_t HASHED_PIECES = 7; ///< that wait for their hash

/// The outcome for an old file that cannot be opened or found, by errno.
DeltaOutcome OldFileFailure()
{
    bool const isMissing = errno == ENOENT || errno == ELOOP || errno == ENOTDIR;
    return {isMissing ? DeltaError::BaseDiffers : DeltaError::CannotRead, {}, errno};
}

} // namespace

DeltaOutcome WriteFailure()
{
    return {DeltaError::CannotWrite, {}, errno};
}

DeltaOutcome SourceFailure()
{
    return errno == 0 ? DeltaOutcome{DeltaError::Damaged, {}, 0} : DeltaOutcome{DeltaError::CannotRead, {}, errno};
}

DeltaOutcome BundleFiles::OpenOld(std::string const& path, std::uint64_t size, UniqueFd& file)
{
    file = m_old.OpenFile(path);
    if (!file)
    {
        return OldFileFailure();
    }
    struct stat status;
    if (fstat(file.Get(), &status) != 0)
    {
        return {DeltaError::CannotRead, {}, errno};
    }
    bool const isSame = S_ISREG(status.st_mode) && static_cast<std::uint64_t>(status.st_size) == size;
    return isSame ? DeltaOutcome{} : DeltaOutcome{DeltaError::BaseDiffers, {}, 0};
}

DeltaOutcome BundleFiles::FindSize(std::string const& path, std::uint64_t& size)
{
    struct stat status;
    if (!m_old.FindStatus(path, status))
    {
        return OldFileFailure();
    }
    size = static_cast<std::uint64_t>(status.st_size);
    return S_ISREG(status.st_mode) ? DeltaOutcome{} : DeltaOutcome{DeltaError::BaseDiffers, {}, 0};
}

DeltaOutcome BundleFiles::Make(DeltaEntry const& entry, ContentHasher& hasher)
{
    switch (entry.kind)
    {
    case DeltaEntryKind::Directory:
        return m_staging.MakeFolder(entry.path) ? DeltaOutcome{} : WriteFailure();
    case DeltaEntryKind::SymbolicLink:
        return m_staging.MakeLink(entry.path, entry.linkTarget) ? DeltaOutcome{} : WriteFailure();
    case DeltaEntryKind::Kept:
        return Keep(entry, hasher);
    case DeltaEntryKind::Patched:
    case DeltaEntryKind::Whole:
        break;
    }
    throw std::logic_error("a file that data make");
}

DeltaOutcome BundleFiles::MakeFile(DeltaEntry const& entry, UniqueFd& file)
{
    file = m_staging.MakeFile(entry.path, entry.isExecutable);
    return file ? DeltaOutcome{} : WriteFailure();
}

DeltaOutcome BundleFiles::Keep(DeltaEntry const& entry, ContentHasher& hasher)
{
    UniqueFd source;
    UniqueFd target;
    DeltaOutcome outcome = OpenOld(entry.sourcePath, entry.size, source);
    outcome = outcome.HasSucceeded() ? MakeFile(entry, target) : outcome;
    if (!outcome.HasSucceeded())
    {
        return outcome;
    }
    // A clone shares the blocks and copies no data. File systems without clones fail at once.
    bool const isCloned = ioctl(target.Get(), FICLONE, source.Get()) == 0;
    return isCloned ? Hash(target.Get(), entry.size, hasher) : Copy(source.Get(), target.Get(), entry.size, hasher);
}

DeltaOutcome BundleFiles::Hash(int fd, std::uint64_t size, ContentHasher& hasher)
{
    return Copy(fd, -1, size, hasher);
}

DeltaOutcome BundleFiles::Copy(int source, int target, std::uint64_t size, ContentHasher& hasher)
{
    if (size < LARGE_FILE_BYTES)
    {
        return CopyPieces(source, target, size, 1, [&hasher](Bytes piece) { hasher.Add(piece); });
    }
    TaskThread hashing(HASHED_PIECES);
    DeltaOutcome const outcome =
        CopyPieces(source, target, size, HASHED_PIECES + 1,
                   [&hasher, &hashing](Bytes piece) { hashing.Post([&hasher, piece] { hasher.Add(piece); }); });
    hashing.Finish();
    return outcome;
}

DeltaOutcome BundleFiles::CopyPieces(int source, int target, std::uint64_t size, std::size_t pieces,
                                     std::function<void(Bytes)> const& add)
{
    m_pieces.resize(std::max(pieces, m_pieces.size()));
    std::size_t next = 0;
    // The limit ends the loop even if the file grows while it is read.
    for (std::uint64_t offset = 0; offset <= size;)
    {
        auto& piece = m_pieces[next];
        ssize_t const got = pread(source, piece.data(), piece.size(), static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR)
        {
            continue;
        }
        if (got <= 0)
        {
            return got == 0 ? DeltaOutcome{} : DeltaOutcome{DeltaError::CannotRead, {}, errno};
        }
        Bytes const bytes(piece.data(), static_cast<std::size_t>(got));
        next = (next + 1) % pieces;
        add(bytes);
        if (target >= 0 && !WriteAll(target, bytes))
        {
            return WriteFailure();
        }
        offset += bytes.size();
        // Fewer bytes than asked for are the last ones: small files are read by one call.
        if (offset == size && bytes.size() < piece.size())
        {
            return {};
        }
    }
    return {DeltaError::BaseDiffers, {}, 0};
}

} // namespace Pelnar::Engine
