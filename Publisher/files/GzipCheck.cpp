#include "Publisher/files/GzipCheck.h"

#include "Engine/core/base/Descriptor.h"

#include <cstdint>
#include <vector>

#include <zlib.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr std::size_t PIECE_BYTES = std::size_t{256} << 10;
constexpr int GZIP_ONLY = 16 + MAX_WBITS;
constexpr std::uint8_t FIRST_BYTE = 0x1f;

class Inflater
{
public:
    Inflater() : m_isReady(inflateInit2(&m_stream, GZIP_ONLY) == Z_OK) {}
    ~Inflater()
    {
        if (m_isReady)
        {
            inflateEnd(&m_stream);
        }
    }
    Inflater(Inflater const&) = delete;
    Inflater& operator=(Inflater const&) = delete;

    /// Unpacks \a bytes and discards the result. False if they are damaged.
    bool Take(std::uint8_t* bytes, std::size_t count)
    {
        m_stream.next_in = bytes;
        m_stream.avail_in = static_cast<uInt>(count);
        while (m_isReady && m_stream.avail_in > 0 && !m_isPastEnd)
        {
            if (m_isComplete)
            {
                m_isPastEnd = *m_stream.next_in != FIRST_BYTE;
                m_isComplete = m_isPastEnd || inflateReset(&m_stream) != Z_OK;
                continue;
            }
            m_stream.next_out = m_unpacked.data();
            m_stream.avail_out = static_cast<uInt>(m_unpacked.size());
            int const result = inflate(&m_stream, Z_NO_FLUSH);
            if (result != Z_OK && result != Z_STREAM_END)
            {
                return false;
            }
            m_isComplete = result == Z_STREAM_END;
        }
        return m_isReady;
    }

    bool IsComplete() const { return m_isComplete; }

private:
    z_stream m_stream{};
    std::vector<std::uint8_t> m_unpacked = std::vector<std::uint8_t>(PIECE_BYTES);
    bool m_isReady;
    bool m_isComplete = false; ///< a member has ended
    bool m_isPastEnd = false;  ///< no other member follows
};

} // namespace

bool IsIntactGzip(int descriptor)
{
    Inflater inflater;
    std::vector<std::uint8_t> packed(PIECE_BYTES);
    for (std::uint64_t position = 0;;)
    {
        ssize_t const count = Engine::ReadUpTo(descriptor, position, packed.data(), packed.size());
        if (count <= 0)
        {
            return count == 0 && inflater.IsComplete();
        }
        if (!inflater.Take(packed.data(), static_cast<std::size_t>(count)))
        {
            return false;
        }
        position += static_cast<std::uint64_t>(count);
    }
}

} // namespace Pelnar::Publisher
