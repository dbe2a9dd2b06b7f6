// ManifestBytes.h: writes and reads the values of a manifest. Thread: any; no shared state. Ownership: a reader refers
// to the bytes, which outlive it.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace Pelnar::Engine::ManifestBytes
{

constexpr std::uint64_t MAX_VERSION_BYTES = 256;
constexpr std::uint64_t MAX_PATH_BYTES = 65536; // more than the rules allow, so that the rules refuse it

inline void AppendText(ByteBuffer& bytes, std::string const& text)
{
    AppendNumber(bytes, text.size());
    bytes.insert(bytes.end(), text.begin(), text.end());
}

inline void AppendHash(ByteBuffer& bytes, ContentHash const& hash)
{
    bytes.insert(bytes.end(), hash.begin(), hash.end());
}

class Reader
{
public:
    explicit Reader(Bytes bytes) : m_rest(bytes) {}

    DeltaManifestError Error() const { return m_error; }
    bool IsAtEnd() const { return m_rest.empty(); }
    std::size_t Left() const { return m_rest.size(); }

    std::uint8_t Byte()
    {
        if (m_rest.empty())
        {
            return Fail(DeltaManifestError::Truncated), std::uint8_t(0);
        }
        std::uint8_t const byte = m_rest.front();
        m_rest.remove_prefix(1);
        return byte;
    }

    std::uint64_t Number()
    {
        std::uint64_t number = 0;
        for (int shift = 0;; shift += 7)
        {
            std::uint8_t const byte = Byte();
            if (m_error != DeltaManifestError::None)
            {
                return 0;
            }
            bool const isOverlong = byte == 0 && shift > 0;
            bool const isTooLarge = shift == 63 && byte > 1;
            if (isOverlong || isTooLarge)
            {
                return Fail(DeltaManifestError::BadNumber), 0;
            }
            number |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
            if (byte < 0x80)
            {
                return number;
            }
        }
    }

    /// A count of at most \a most.
    std::uint64_t Count(std::uint64_t most)
    {
        std::uint64_t const count = Number();
        if (count > most)
        {
            return Fail(DeltaManifestError::TooManyEntries), 0;
        }
        return count;
    }

    std::string Text(std::uint64_t maxBytes)
    {
        std::uint64_t const size = Number();
        if (m_error != DeltaManifestError::None)
        {
            return {};
        }
        if (size > maxBytes)
        {
            return Fail(DeltaManifestError::TextTooLong), std::string();
        }
        if (size > m_rest.size())
        {
            return Fail(DeltaManifestError::Truncated), std::string();
        }
        std::string const text(m_rest.begin(), m_rest.begin() + static_cast<std::ptrdiff_t>(size));
        m_rest.remove_prefix(static_cast<std::size_t>(size));
        return text;
    }

    /// The next \a size bytes.
    Bytes Raw(std::uint64_t size)
    {
        if (size > m_rest.size())
        {
            return Fail(DeltaManifestError::Truncated), Bytes();
        }
        Bytes const bytes = m_rest.substr(0, static_cast<std::size_t>(size));
        m_rest.remove_prefix(bytes.size());
        return bytes;
    }

    ContentHash Hash()
    {
        ContentHash hash{};
        if (m_rest.size() < hash.size())
        {
            return Fail(DeltaManifestError::Truncated), hash;
        }
        std::copy_n(m_rest.begin(), hash.size(), hash.begin());
        m_rest.remove_prefix(hash.size());
        return hash;
    }

    std::int64_t Signed()
    {
        std::uint64_t const number = Number();
        return static_cast<std::int64_t>(number >> 1 ^ (~(number & 1) + 1));
    }

    void Fail(DeltaManifestError error)
    {
        if (m_error == DeltaManifestError::None)
        {
            m_error = error;
        }
        m_rest = {};
    }

private:
    Bytes m_rest;
    DeltaManifestError m_error = DeltaManifestError::None;
};

/// Calls \a visit with each component between slashes; returns false if one of the calls does.
template <class Visit>
bool ForEachComponent(std::string_view path, Visit visit)
{
    for (;;)
    {
        std::size_t const slash = path.find('/');
        if (!visit(path.substr(0, slash)))
        {
            return false;
        }
        if (slash == std::string_view::npos)
        {
            return true;
        }
        path.remove_prefix(slash + 1);
    }
}

/// True for a path that cannot lead out of its base folder.
inline bool IsBelow(std::string const& path)
{
    return path.find('\0') == std::string::npos &&
           ForEachComponent(path, [](std::string_view component)
                            { return !component.empty() && component != "." && component != ".."; });
}

} // namespace Pelnar::Engine::ManifestBytes
