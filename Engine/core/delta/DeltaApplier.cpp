#include "Engine/core/delta/DeltaApplier.h"

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/delta/ContentHasher.h"
#include "Engine/core/delta/TreeAccess.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <numeric>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t PIECE_BYTES = 64 * 1024;

class Applier
{
public:
    Applier(int containerFd, int oldBundleFd, int stagingFd, std::uint64_t dataOffset)
        : m_containerFd(containerFd), m_old(oldBundleFd), m_staging(stagingFd), m_dataOffset(dataOffset)
    {
    }

    DeltaOutcome Make(DeltaEntry const& entry)
    {
        DeltaOutcome outcome;
        switch (entry.kind)
        {
        case DeltaEntryKind::Directory:
            outcome = m_staging.MakeFolder(entry.path) ? DeltaOutcome{} : WriteFailure();
            break;
        case DeltaEntryKind::SymbolicLink:
            outcome = m_staging.MakeLink(entry.path, entry.linkTarget) ? DeltaOutcome{} : WriteFailure();
            break;
        case DeltaEntryKind::Kept:
            outcome = Keep(entry);
            break;
        case DeltaEntryKind::Patched:
            outcome = Patch(entry);
            break;
        case DeltaEntryKind::Whole:
            outcome = TakeWhole(entry);
            break;
        }
        m_dataOffset += entry.StoredBytes();
        if (!outcome.HasSucceeded())
        {
            outcome.path = entry.path;
        }
        return outcome;
    }

private:
    static DeltaOutcome WriteFailure() { return {DeltaError::CannotWrite, {}, errno}; }

    /// The old version's file \a path, if it is a plain file of \a size bytes.
    DeltaOutcome OpenSource(std::string const& path, std::uint64_t size, UniqueFd& source)
    {
        source = m_old.OpenFile(path);
        if (!source)
        {
            bool const isMissing = errno == ENOENT || errno == ELOOP || errno == ENOTDIR;
            return {isMissing ? DeltaError::BaseDiffers : DeltaError::CannotRead, {}, errno};
        }
        struct stat status;
        if (fstat(source.Get(), &status) != 0)
        {
            return {DeltaError::CannotRead, {}, errno};
        }
        bool const isExpected = S_ISREG(status.st_mode) && static_cast<std::uint64_t>(status.st_size) == size;
        return isExpected ? DeltaOutcome{} : DeltaOutcome{DeltaError::BaseDiffers, {}, 0};
    }

    DeltaOutcome Keep(DeltaEntry const& entry)
    {
        UniqueFd source;
        if (DeltaOutcome const outcome = OpenSource(entry.sourcePath, entry.size, source); !outcome.HasSucceeded())
        {
            return outcome;
        }
        UniqueFd const target = m_staging.MakeFile(entry.path, entry.isExecutable);
        if (!target)
        {
            return WriteFailure();
        }
        // A clone shares the blocks and costs no copy; file systems without it answer at once.
        bool const isCloned = ioctl(target.Get(), FICLONE, source.Get()) == 0;
        ContentHasher hasher;
        if (DeltaOutcome const outcome =
                isCloned ? Hash(target.Get(), hasher) : Copy(source.Get(), target.Get(), hasher);
            !outcome.HasSucceeded())
        {
            return outcome;
        }
        return hasher.Finish() == entry.hash ? DeltaOutcome{} : DeltaOutcome{DeltaError::BaseDiffers, {}, 0};
    }

    DeltaOutcome Hash(int fd, ContentHasher& hasher)
    {
        for (std::uint64_t offset = 0;;)
        {
            ssize_t const got = pread(fd, m_piece.data(), m_piece.size(), static_cast<off_t>(offset));
            if (got < 0 && errno == EINTR)
            {
                continue;
            }
            if (got <= 0)
            {
                return got == 0 ? DeltaOutcome{} : DeltaOutcome{DeltaError::CannotRead, {}, errno};
            }
            hasher.Add(Bytes(m_piece.data(), static_cast<std::size_t>(got)));
            offset += static_cast<std::uint64_t>(got);
        }
    }

    DeltaOutcome Copy(int source, int target, ContentHasher& hasher)
    {
        for (;;)
        {
            ssize_t const got = read(source, m_piece.data(), m_piece.size());
            if (got < 0 && errno == EINTR)
            {
                continue;
            }
            if (got <= 0)
            {
                return got == 0 ? DeltaOutcome{} : DeltaOutcome{DeltaError::CannotRead, {}, errno};
            }
            Bytes const bytes(m_piece.data(), static_cast<std::size_t>(got));
            hasher.Add(bytes);
            if (!WriteAll(target, bytes))
            {
                return WriteFailure();
            }
        }
    }

    DeltaOutcome Patch(DeltaEntry const& entry)
    {
        UniqueFd source;
        if (DeltaOutcome const outcome = OpenSource(entry.sourcePath, entry.sourceSize, source);
            !outcome.HasSucceeded())
        {
            return outcome;
        }
        FileMapping const old(source.Get(), static_cast<std::size_t>(entry.sourceSize));
        if (!old.IsValid())
        {
            return {DeltaError::CannotRead, {}, errno};
        }
        UniqueFd const target = m_staging.MakeFile(entry.path, entry.isExecutable);
        if (!target)
        {
            return WriteFailure();
        }
        std::vector<DeltaStream> streams;
        PatchSources sources;
        std::uint64_t offset = m_dataOffset;
        for (std::uint64_t const stored : entry.streamsStored)
        {
            streams.emplace_back(m_containerFd, offset, stored);
            offset += stored;
        }
        std::transform(streams.begin(), streams.end(), sources.begin(),
                       [](DeltaStream& stream)
                       { return [&stream](std::uint8_t* to, std::size_t size) { return stream.Read(to, size); }; });
        ContentHasher hasher;
        errno = 0;
        PatchVerdict const verdict = ApplyBinaryPatch(old.Content(), sources, entry.size,
                                                      [&hasher, &target](Bytes bytes)
                                                      {
                                                          hasher.Add(bytes);
                                                          return WriteAll(target.Get(), bytes);
                                                      });
        DeltaOutcome outcome = OutcomeOf(verdict);
        if (outcome.HasSucceeded() &&
            !std::all_of(streams.begin(), streams.end(), [](auto& each) { return each.IsAtEnd(); }))
        {
            outcome.error = DeltaError::Damaged;
        }
        else if (outcome.HasSucceeded() && hasher.Finish() != entry.hash)
        {
            outcome.error = DeltaError::ResultDiffers;
        }
        // No matter what the old file is, a patch reads and writes in bounds, and what comes out must have the new
        // one's hash. The old one's only tells why it has not.
        bool const mayBeTheBase = outcome.error == DeltaError::Damaged || outcome.error == DeltaError::ResultDiffers;
        return mayBeTheBase && HashOf(old.Content()) != entry.sourceHash ? DeltaOutcome{DeltaError::BaseDiffers, {}, 0}
                                                                         : outcome;
    }

    static DeltaOutcome OutcomeOf(PatchVerdict verdict)
    {
        switch (verdict)
        {
        case PatchVerdict::Applied:
            return {};
        case PatchVerdict::SinkRefused:
            return WriteFailure();
        case PatchVerdict::SourceEnded:
            return errno == 0 ? DeltaOutcome{DeltaError::Damaged, {}, 0}
                              : DeltaOutcome{DeltaError::CannotRead, {}, errno};
        case PatchVerdict::BadNumber:
        case PatchVerdict::OutOfRange:
        case PatchVerdict::WrongSize:
            break;
        }
        return {DeltaError::Damaged, {}, 0};
    }

    DeltaOutcome TakeWhole(DeltaEntry const& entry)
    {
        UniqueFd const target = m_staging.MakeFile(entry.path, entry.isExecutable);
        if (!target)
        {
            return WriteFailure();
        }
        DeltaStream whole(m_containerFd, m_dataOffset, entry.wholeStored);
        ContentHasher hasher;
        errno = 0;
        for (std::uint64_t missing = entry.size; missing > 0;)
        {
            auto const piece = static_cast<std::size_t>(std::min<std::uint64_t>(missing, m_piece.size()));
            if (whole.Read(m_piece.data(), piece) != piece)
            {
                return errno == 0 ? DeltaOutcome{DeltaError::Damaged, {}, 0}
                                  : DeltaOutcome{DeltaError::CannotRead, {}, errno};
            }
            Bytes const bytes(m_piece.data(), piece);
            hasher.Add(bytes);
            if (!WriteAll(target.Get(), bytes))
            {
                return WriteFailure();
            }
            missing -= piece;
        }
        if (!whole.IsAtEnd())
        {
            return {DeltaError::Damaged, {}, 0};
        }
        return hasher.Finish() == entry.hash ? DeltaOutcome{} : DeltaOutcome{DeltaError::ResultDiffers, {}, 0};
    }

    int m_containerFd;
    TreeAccess m_old;
    TreeAccess m_staging;
    std::uint64_t m_dataOffset; ///< of the next entry's data
    std::array<std::uint8_t, PIECE_BYTES> m_piece;
};

} // namespace

DeltaOutcome ApplyDelta(int containerFd, int oldBundleFd, int stagingFd, DeltaLimits const& limits,
                        DeltaProgress const& progress)
{
    DeltaManifest manifest;
    std::uint64_t dataOffset = 0;
    if (DeltaOutcome outcome = ReadDeltaManifest(containerFd, limits, manifest, dataOffset); !outcome.HasSucceeded())
    {
        return outcome;
    }
    std::uint64_t const total =
        std::accumulate(manifest.entries.begin(), manifest.entries.end(), std::uint64_t(0),
                        [](std::uint64_t sum, DeltaEntry const& entry) { return sum + entry.size; });
    std::uint64_t done = 0;
    Applier applier(containerFd, oldBundleFd, stagingFd, dataOffset);
    for (DeltaEntry const& entry : manifest.entries)
    {
        if (DeltaOutcome outcome = applier.Make(entry); !outcome.HasSucceeded())
        {
            return outcome;
        }
        done += entry.size;
        if (progress)
        {
            progress(done, total);
        }
    }
    return {};
}

} // namespace Pelnar::Engine
