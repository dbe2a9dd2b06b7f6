#include "Engine/core/delta/DeltaContainerWriter.h"

#include "Engine/core/delta/WorkCrew.h"

#include <lzma.h>
#include <zstd.h>

#include <algorithm>
#include <memory>
#include <new>
#include <tuple>
#include <utility>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

int LevelOf(DeltaEffort effort)
{
    switch (effort)
    {
    case DeltaEffort::Low:
        return 9;
    case DeltaEffort::Usual:
        return 19;
    case DeltaEffort::High:
        return 22;
    }
    return 0;
}

/// One more than the properties of LZMA: 3, 0 and 4 bits of the previous byte; none of the position.
constexpr std::uint8_t PACKINGS[] = {4, 1, 5};
/// Larger streams are packed in one way only, because each way takes a second for two megabytes.
constexpr std::size_t MOST_BYTES_TO_TRY = 4u << 20;

/// zstd first.
std::vector<std::uint8_t> PackingsFor(std::size_t bytes, DeltaEffort effort)
{
    std::vector<std::uint8_t> packings{0};
    bool const hasAll = effort == DeltaEffort::High && bytes <= MOST_BYTES_TO_TRY;
    std::size_t const count = effort == DeltaEffort::Low ? 0 : hasAll ? std::size(PACKINGS) : 1;
    packings.insert(packings.end(), PACKINGS, PACKINGS + count);
    return packings;
}

/// The smallest. With usual effort, LZMA must save a tenth.
PackedStream BestOf(std::vector<PackedStream> const& answers, DeltaEffort effort)
{
    PackedStream const* best = &answers.front();
    std::size_t const size = best->bytes.size();
    std::size_t const worthwhile = effort == DeltaEffort::High ? size : size - size / 10;
    for (PackedStream const& answer : answers)
    {
        best = answer.bytes.size() < std::min(worthwhile, best->bytes.size()) ? &answer : best;
    }
    return *best;
}

void AppendFixed(ByteBuffer& bytes, std::uint64_t number)
{
    for (int shift = 0; shift < 64; shift += 8)
    {
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

} // namespace

ByteBuffer CompressForDelta(Bytes bytes, int windowLog, DeltaEffort effort)
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
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_compressionLevel, LevelOf(effort));
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_enableLongDistanceMatching, 1);
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_windowLog, windowLog);
    std::size_t const size = ZSTD_compress2(context.get(), stored.data(), stored.size(), bytes.data(), bytes.size());
    if (ZSTD_isError(size))
    {
        throw std::bad_alloc();
    }
    stored.resize(size);
    return stored;
}

ByteBuffer PackByLzma(Bytes bytes, std::uint8_t packing, int windowLog)
{
    if (bytes.empty())
    {
        return {};
    }
    lzma_options_lzma options{};
    std::uint8_t const properties = static_cast<std::uint8_t>(packing - 1);
    lzma_lzma_preset(&options, 9 | LZMA_PRESET_EXTREME);
    // No larger than the data, because the encoder's tables grow with it.
    options.dict_size = std::clamp(std::uint32_t(std::min<std::size_t>(bytes.size(), UINT32_MAX)),
                                   std::uint32_t(LZMA_DICT_SIZE_MIN), std::uint32_t(1) << windowLog);
    options.lc = properties % 9;
    options.lp = properties / 9 % 5;
    options.pb = properties / 45;
    lzma_filter const filters[] = {{LZMA_FILTER_LZMA1, &options}, {LZMA_VLI_UNKNOWN, nullptr}};
    // Data that cannot be compressed grows by less than this.
    ByteBuffer packed(bytes.size() + bytes.size() / 8 + 1024);
    std::size_t size = 0;
    if (lzma_raw_buffer_encode(filters, nullptr, bytes.data(), bytes.size(), packed.data(), &size, packed.size()) !=
        LZMA_OK)
    {
        throw std::bad_alloc();
    }
    packed.resize(size);
    return packed;
}

std::array<PackedStream, PATCH_STREAMS> PackStreams(BinaryPatch const& patch, DeltaEffort effort)
{
    std::array<std::vector<PackedStream>, PATCH_STREAMS> answers;
    std::vector<std::pair<std::size_t, std::size_t>> tasks;
    for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
    {
        for (std::uint8_t const packing : PackingsFor(patch.streams[i].size(), effort))
        {
            tasks.emplace_back(i, answers[i].size());
            answers[i].push_back({packing, {}});
        }
    }
    // The longest work starts first: the largest stream, and for it LZMA.
    std::sort(tasks.begin(), tasks.end(),
              [&patch](auto const& a, auto const& b)
              {
                  return std::make_tuple(patch.streams[a.first].size(), a.second) >
                         std::make_tuple(patch.streams[b.first].size(), b.second);
              });
    DoAll(tasks.size(),
          [&](std::size_t i)
          {
              auto const [number, attempt] = tasks[i];
              PackedStream& answer = answers[number][attempt];
              Bytes const bytes = View(patch.streams[number]);
              int const windowLog = WindowLogOf(static_cast<PatchStream>(number));
              answer.bytes = answer.packing == 0 ? CompressForDelta(bytes, windowLog, effort)
                                                 : PackByLzma(bytes, answer.packing, windowLog);
          });
    std::array<PackedStream, PATCH_STREAMS> best;
    for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
    {
        best[i] = BestOf(answers[i], effort);
    }
    return best;
}

ByteBuffer EncodeDeltaOpening(DeltaManifest const& manifest)
{
    ByteBuffer const plain = EncodeDeltaManifest(manifest);
    ByteBuffer const stored =
        PackByLzma(View(plain), ManifestPackingOf(manifest.format), ManifestWindowLogOf(manifest.format));
    ByteBuffer opening(DELTA_MAGIC.begin(), DELTA_MAGIC.end());
    AppendFixed(opening, static_cast<std::uint64_t>(manifest.format));
    AppendFixed(opening, stored.size());
    AppendFixed(opening, plain.size());
    opening.insert(opening.end(), stored.begin(), stored.end());
    return opening;
}

} // namespace Pelnar::Engine
