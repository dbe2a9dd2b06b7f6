#include "Engine/core/delta/StreamUnpacker.h"

#include <lzma.h>
#include <zstd.h>

#include <array>
#include <new>

namespace Pelnar::Engine
{
namespace
{

class ZstdUnpacker : public IUnpacker
{
public:
    explicit ZstdUnpacker(int windowLog) : m_windowLog(windowLog) {}

    Step Unpack(Bytes& input, std::uint8_t* target, std::size_t size) override
    {
        Step const step = m_isDamaged ? Step{0, State::Damaged} : UnpackNext(input, target, size);
        m_isDamaged = step.state == State::Damaged;
        return step;
    }

private:
    Step UnpackNext(Bytes& input, std::uint8_t* target, std::size_t size)
    {
        if (input.empty() && !m_context)
        {
            return {0, State::Going};
        }
        if (!m_context)
        {
            if (IsWhole(input) && ZSTD_getFrameContentSize(input.data(), input.size()) <= size)
            {
                return UnpackAll(input, target, size);
            }
            m_context = NewContext();
            ZSTD_DCtx_setParameter(m_context.get(), ZSTD_d_windowLogMax, m_windowLog);
        }
        ZSTD_inBuffer in{input.data(), input.size(), 0};
        ZSTD_outBuffer out{target, size, 0};
        std::size_t const answer = ZSTD_decompressStream(m_context.get(), &out, &in);
        input.remove_prefix(in.pos);
        State const state = answer == 0 ? State::Ended : State::Going;
        return {out.pos, ZSTD_isError(answer) ? State::Damaged : state};
    }

    static bool IsWhole(Bytes input) { return !ZSTD_isError(ZSTD_findFrameCompressedSize(input.data(), input.size())); }

    /// The small streams of a thread share a context: to make one takes longer than to unpack some hundred bytes.
    Step UnpackAll(Bytes& input, std::uint8_t* target, std::size_t size)
    {
        thread_local std::weak_ptr<ZSTD_DCtx> shared;
        m_shared = shared.lock();
        m_shared = m_shared ? m_shared : NewContext();
        shared = m_shared;
        std::size_t const used = ZSTD_findFrameCompressedSize(input.data(), input.size());
        std::size_t const made = ZSTD_decompressDCtx(m_shared.get(), target, size, input.data(), used);
        input.remove_prefix(used);
        return ZSTD_isError(made) ? Step{0, State::Damaged} : Step{made, State::Ended};
    }

    static std::shared_ptr<ZSTD_DCtx> NewContext()
    {
        std::shared_ptr<ZSTD_DCtx> context(ZSTD_createDCtx(), ZSTD_freeDCtx);
        if (!context)
        {
            throw std::bad_alloc();
        }
        return context;
    }

    int m_windowLog;
    bool m_isDamaged = false;             ///< what follows the damage must not be taken for a stream
    std::shared_ptr<ZSTD_DCtx> m_context; ///< null before the first input, and for a small stream
    std::shared_ptr<ZSTD_DCtx> m_shared;  ///< keeps the context for the thread's next small stream
};

class LzmaUnpacker : public IUnpacker
{
public:
    LzmaUnpacker(std::uint8_t properties, int windowLog)
    {
        lzma_options_lzma options{};
        options.dict_size = std::uint32_t(1) << windowLog;
        options.lc = properties % 9;
        options.lp = properties / 9 % 5;
        options.pb = properties / 45;
        std::array<lzma_filter, 2> const filters{{{LZMA_FILTER_LZMA1, &options}, {LZMA_VLI_UNKNOWN, nullptr}}};
        lzma_ret const answer = lzma_raw_decoder(&m_stream, filters.data());
        if (answer == LZMA_MEM_ERROR)
        {
            throw std::bad_alloc();
        }
        m_isReady = answer == LZMA_OK;
    }
    ~LzmaUnpacker() override { lzma_end(&m_stream); }
    LzmaUnpacker(LzmaUnpacker const&) = delete;
    LzmaUnpacker& operator=(LzmaUnpacker const&) = delete;

    Step Unpack(Bytes& input, std::uint8_t* target, std::size_t size) override
    {
        if (!m_isReady)
        {
            return {0, State::Damaged};
        }
        m_stream.next_in = input.data();
        m_stream.avail_in = input.size();
        m_stream.next_out = target;
        m_stream.avail_out = size;
        lzma_ret const answer = lzma_code(&m_stream, LZMA_RUN);
        input.remove_prefix(input.size() - m_stream.avail_in);
        // The caller notices if there is no progress.
        bool const isGoing = answer == LZMA_OK || answer == LZMA_BUF_ERROR;
        State const state = answer == LZMA_STREAM_END ? State::Ended : isGoing ? State::Going : State::Damaged;
        return {size - m_stream.avail_out, state};
    }

private:
    lzma_stream m_stream = LZMA_STREAM_INIT;
    bool m_isReady = false;
};

} // namespace

std::unique_ptr<IUnpacker> MakeUnpacker(std::uint8_t packing, int windowLog)
{
    if (packing == 0)
    {
        return std::make_unique<ZstdUnpacker>(windowLog);
    }
    return std::make_unique<LzmaUnpacker>(static_cast<std::uint8_t>(packing - 1), windowLog);
}

} // namespace Pelnar::Engine
