#include "Engine/core/delta/DeltaContainer.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/BundleFiles.h"
#include "Engine/core/delta/StreamUnpacker.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace Pelnar::Engine
{
namespace
{

std::uint64_t ReadFixed(std::uint8_t const* bytes)
{
    std::uint64_t number = 0;
    for (int i = 7; i >= 0; --i)
    {
        number = number << 8 | bytes[i];
    }
    return number;
}

/// True when all \a size bytes were read; an early end of the file leaves errno at 0.
bool ReadAt(int fd, std::uint64_t offset, std::uint8_t* target, std::size_t size)
{
    ssize_t const got = ReadUpTo(fd, offset, target, size);
    bool const isShort = got >= 0 && static_cast<std::size_t>(got) < size;
    errno = isShort ? 0 : errno;
    return got >= 0 && !isShort;
}

/// True when the entries' data fill the rest of a file of \a fileSize bytes exactly.
bool DataFits(DeltaManifest const& manifest, std::uint64_t dataOffset, std::uint64_t fileSize)
{
    std::uint64_t rest = fileSize - dataOffset;
    auto const takes = [&rest](std::uint64_t size)
    {
        bool const fits = size <= rest;
        rest -= fits ? size : 0;
        return fits;
    };
    return std::all_of(manifest.entries.begin(), manifest.entries.end(),
                       [&takes](DeltaEntry const& entry) { return takes(entry.StoredBytes()); }) &&
           std::all_of(manifest.streams.begin(), manifest.streams.end(),
                       [&takes](StoredStream const& stream) { return takes(stream.size); }) &&
           rest == 0;
}

} // namespace

struct DeltaStream::State
{
    State(int containerFd, std::uint64_t begin, StoredStream const& stored, int windowLog)
        : fd(containerFd)
        , offset(begin)
        , missing(stored.size)
        , unpacker(missing > 0 ? MakeUnpacker(stored.packing, windowLog) : nullptr)
    {
    }

    bool Refill()
    {
        auto const piece = static_cast<std::size_t>(std::min<std::uint64_t>(missing, buffer.size()));
        if (piece == 0 || !ReadAt(fd, offset, buffer.data(), piece))
        {
            return false;
        }
        offset += piece;
        missing -= piece;
        input = Bytes(buffer.data(), piece);
        return true;
    }

    int fd;
    std::uint64_t offset;
    std::uint64_t missing;               ///< compressed bytes not read yet
    std::unique_ptr<IUnpacker> unpacker; ///< null for an empty stream
    std::array<std::uint8_t, 64 * 1024> buffer;
    Bytes input;
    bool isDone = missing == 0;
};

DeltaStream::DeltaStream(int containerFd, std::uint64_t offset, StoredStream const& stored, int windowLog)
    : m_state(std::make_unique<State>(containerFd, offset, stored, windowLog))
{
}

DeltaStream::~DeltaStream() = default;
DeltaStream::DeltaStream(DeltaStream&&) noexcept = default;

std::size_t DeltaStream::Read(std::uint8_t* target, std::size_t size)
{
    std::size_t made = 0;
    while (made < size && !m_state->isDone)
    {
        std::size_t const before = m_state->input.size();
        IUnpacker::Step const step = m_state->unpacker->Unpack(m_state->input, target + made, size - made);
        made += step.made;
        m_state->isDone = step.state == IUnpacker::State::Ended;
        bool const isStuck = step.made == 0 && m_state->input.size() == before && !m_state->isDone;
        bool const isFed = !isStuck || (m_state->input.empty() && m_state->Refill());
        if (step.state == IUnpacker::State::Damaged || !isFed)
        {
            break;
        }
    }
    return made;
}

bool DeltaStream::IsAtEnd()
{
    // The bytes at the end of a stream may make no output. Asking for one byte more reads them.
    std::uint8_t byte = 0;
    if (!m_state->isDone && Read(&byte, 1) > 0)
    {
        return false;
    }
    return m_state->isDone && m_state->missing == 0 && m_state->input.empty();
}

DeltaOutcome OutcomeOf(DeltaManifestVerdict const& verdict)
{
    switch (verdict.error)
    {
    case DeltaManifestError::None:
        return {};
    case DeltaManifestError::TreeRefused:
        return {DeltaError::TreeRefused, verdict.path, 0, verdict.fault};
    case DeltaManifestError::TooManyEntries:
    case DeltaManifestError::TooManyBytes:
        return {DeltaError::OverLimits, verdict.path, 0};
    case DeltaManifestError::Truncated:
    case DeltaManifestError::TrailingBytes:
    case DeltaManifestError::BadNumber:
    case DeltaManifestError::TextTooLong:
    case DeltaManifestError::UnknownKind:
    case DeltaManifestError::BadFlag:
    case DeltaManifestError::BadSource:
    case DeltaManifestError::NotInOrder:
    case DeltaManifestError::BadUnit:
    case DeltaManifestError::BadPacking:
        break;
    }
    return {DeltaError::Damaged, verdict.path, 0};
}

DeltaOutcome ReadDeltaManifest(int containerFd, DeltaLimits const& limits, DeltaManifest& manifest,
                               std::uint64_t& dataOffset)
{
    struct stat status;
    std::array<std::uint8_t, DELTA_HEADER_BYTES> header;
    if (fstat(containerFd, &status) != 0)
    {
        return {DeltaError::CannotRead, {}, errno};
    }
    if (!ReadAt(containerFd, 0, header.data(), header.size()))
    {
        return errno == 0 ? DeltaOutcome{DeltaError::NotADelta, {}, 0} : SourceFailure();
    }
    std::uint64_t const format = ReadFixed(&header[8]);
    bool const isSeparate = format == static_cast<std::uint64_t>(DeltaFormat::Separate);
    bool const isJoined =
        format == static_cast<std::uint64_t>(DeltaFormat::Joined) || format == FORMAT_WITHOUT_CORRECTIONS;
    if (!std::equal(DELTA_MAGIC.begin(), DELTA_MAGIC.end(), header.begin()) || !(isSeparate || isJoined))
    {
        return {DeltaError::NotADelta, {}, 0};
    }
    manifest.format = isJoined ? DeltaFormat::Joined : DeltaFormat::Separate;
    std::uint64_t const storedBytes = ReadFixed(&header[16]);
    std::uint64_t const manifestBytes = ReadFixed(&header[24]);
    auto const fileSize = static_cast<std::uint64_t>(status.st_size);
    if (manifestBytes > limits.maxManifestBytes)
    {
        return {DeltaError::OverLimits, {}, 0};
    }
    if (storedBytes > fileSize - DELTA_HEADER_BYTES)
    {
        return {DeltaError::Damaged, {}, 0};
    }
    ByteBuffer plain(static_cast<std::size_t>(manifestBytes));
    DeltaStream stream(containerFd, DELTA_HEADER_BYTES, {ManifestPackingOf(manifest.format), storedBytes},
                       ManifestWindowLogOf(manifest.format));
    errno = 0;
    if (stream.Read(plain.data(), plain.size()) != plain.size() || !stream.IsAtEnd())
    {
        return SourceFailure();
    }
    DeltaOutcome const outcome = OutcomeOf(DecodeDeltaManifest(View(plain), limits, manifest));
    if (!outcome.HasSucceeded())
    {
        return outcome;
    }
    dataOffset = DELTA_HEADER_BYTES + storedBytes;
    return DataFits(manifest, dataOffset, fileSize) ? DeltaOutcome{} : DeltaOutcome{DeltaError::Damaged, {}, 0};
}

} // namespace Pelnar::Engine
