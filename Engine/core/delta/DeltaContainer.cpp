#include "Engine/core/delta/DeltaContainer.h"

#include "Engine/core/delta/TreeAccess.h"

#include <sys/stat.h>
#include <unistd.h>
#include <zstd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>

namespace Pelnar::Engine
{
namespace
{

constexpr std::array<std::uint8_t, 8> MAGIC{'P', 'E', 'L', 'D', 'E', 'L', 'T', 'A'};
constexpr std::uint64_t FORMAT_VERSION = 2;
constexpr int COMPRESSION_LEVEL = 19;

void AppendFixed(ByteBuffer& bytes, std::uint64_t number)
{
    for (int shift = 0; shift < 64; shift += 8)
    {
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

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

DeltaOutcome ReadFailure()
{
    return errno == 0 ? DeltaOutcome{DeltaError::Damaged, {}, 0} : DeltaOutcome{DeltaError::CannotRead, {}, errno};
}

/// True when the entries' data fill the rest of a file of \a fileSize bytes exactly.
bool DataFits(DeltaManifest const& manifest, std::uint64_t dataOffset, std::uint64_t fileSize)
{
    std::uint64_t rest = fileSize - dataOffset;
    for (DeltaEntry const& entry : manifest.entries)
    {
        if (entry.StoredBytes() > rest)
        {
            return false;
        }
        rest -= entry.StoredBytes();
    }
    return rest == 0;
}

} // namespace

struct DeltaStream::State
{
    State(int containerFd, std::uint64_t begin, std::uint64_t size)
        : fd(containerFd), offset(begin), missing(size), context(ZSTD_createDCtx()), isFrameDone(size == 0)
    {
        if (!context)
        {
            throw std::bad_alloc();
        }
        ZSTD_DCtx_setParameter(context, ZSTD_d_windowLogMax, DELTA_WINDOW_LOG);
    }
    ~State() { ZSTD_freeDCtx(context); }
    State(State const&) = delete;
    State& operator=(State const&) = delete;

    bool Refill()
    {
        if (input.pos < input.size)
        {
            return true;
        }
        auto const piece = static_cast<std::size_t>(std::min<std::uint64_t>(missing, buffer.size()));
        if (piece == 0 || !ReadAt(fd, offset, buffer.data(), piece))
        {
            return false;
        }
        offset += piece;
        missing -= piece;
        input = {buffer.data(), piece, 0};
        return true;
    }

    int fd;
    std::uint64_t offset;
    std::uint64_t missing; ///< compressed bytes not read yet
    ZSTD_DCtx* context;
    std::array<std::uint8_t, 64 * 1024> buffer;
    ZSTD_inBuffer input{nullptr, 0, 0};
    bool isFrameDone;
};

DeltaStream::DeltaStream(int containerFd, std::uint64_t offset, std::uint64_t size)
    : m_state(std::make_unique<State>(containerFd, offset, size))
{
}

DeltaStream::~DeltaStream() = default;
DeltaStream::DeltaStream(DeltaStream&&) noexcept = default;

std::size_t DeltaStream::Read(std::uint8_t* target, std::size_t size)
{
    ZSTD_outBuffer output{target, size, 0};
    while (output.pos < output.size)
    {
        if (m_state->isFrameDone)
        {
            break;
        }
        std::size_t const before = output.pos;
        std::size_t const answer = ZSTD_decompressStream(m_state->context, &output, &m_state->input);
        if (ZSTD_isError(answer))
        {
            break;
        }
        m_state->isFrameDone = answer == 0;
        if (output.pos == before && !m_state->isFrameDone && !m_state->Refill())
        {
            break;
        }
    }
    return output.pos;
}

bool DeltaStream::IsAtEnd()
{
    // The end of the frame may stand in bytes that no output needed: ask for one byte that must not come.
    std::uint8_t byte = 0;
    if (!m_state->isFrameDone && Read(&byte, 1) > 0)
    {
        return false;
    }
    return m_state->isFrameDone && m_state->missing == 0 && m_state->input.pos == m_state->input.size;
}

ByteBuffer CompressForDelta(Bytes bytes)
{
    std::unique_ptr<ZSTD_CCtx, std::size_t (*)(ZSTD_CCtx*)> const context(ZSTD_createCCtx(), ZSTD_freeCCtx);
    ByteBuffer stored(bytes.empty() ? 0 : ZSTD_compressBound(bytes.size()));
    if (stored.empty())
    {
        return stored;
    }
    if (!context)
    {
        throw std::bad_alloc();
    }
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_compressionLevel, COMPRESSION_LEVEL);
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_enableLongDistanceMatching, 1);
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_windowLog, DELTA_WINDOW_LOG);
    std::size_t const size = ZSTD_compress2(context.get(), stored.data(), stored.size(), bytes.data(), bytes.size());
    if (ZSTD_isError(size))
    {
        throw std::bad_alloc();
    }
    stored.resize(size);
    return stored;
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
        break;
    }
    return {DeltaError::Damaged, verdict.path, 0};
}

ByteBuffer EncodeDeltaOpening(DeltaManifest const& manifest)
{
    ByteBuffer const plain = EncodeDeltaManifest(manifest);
    ByteBuffer const stored = CompressForDelta(Bytes(plain.data(), plain.size()));
    ByteBuffer opening(MAGIC.begin(), MAGIC.end());
    AppendFixed(opening, FORMAT_VERSION);
    AppendFixed(opening, stored.size());
    AppendFixed(opening, plain.size());
    opening.insert(opening.end(), stored.begin(), stored.end());
    return opening;
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
        return errno == 0 ? DeltaOutcome{DeltaError::NotADelta, {}, 0} : ReadFailure();
    }
    if (!std::equal(MAGIC.begin(), MAGIC.end(), header.begin()) || ReadFixed(&header[8]) != FORMAT_VERSION)
    {
        return {DeltaError::NotADelta, {}, 0};
    }
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
    DeltaStream stream(containerFd, DELTA_HEADER_BYTES, storedBytes);
    errno = 0;
    if (stream.Read(plain.data(), plain.size()) != plain.size() || !stream.IsAtEnd())
    {
        return ReadFailure();
    }
    DeltaOutcome const outcome = OutcomeOf(DecodeDeltaManifest(Bytes(plain.data(), plain.size()), limits, manifest));
    if (!outcome.HasSucceeded())
    {
        return outcome;
    }
    dataOffset = DELTA_HEADER_BYTES + storedBytes;
    return DataFits(manifest, dataOffset, fileSize) ? DeltaOutcome{} : DeltaOutcome{DeltaError::Damaged, {}, 0};
}

} // namespace Pelnar::Engine
