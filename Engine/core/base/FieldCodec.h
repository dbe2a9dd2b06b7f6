// FieldCodec.h: values in a byte sequence: little-endian numbers, and texts after their length.
// Thread: one at a time. Ownership: the caller owns a reader's bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

class FieldWriter
{
public:
    explicit FieldWriter(std::string_view magic) : m_bytes(magic) {}

    void Number(std::uint64_t number);
    void Text(std::string_view text);
    void Texts(std::vector<std::string> const& texts);
    std::string const& Finish() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// Every read returns a value. IsWhole() tells once, at the end, whether all of them were present.
class FieldReader
{
public:
    FieldReader(std::string_view bytes, std::string_view magic);

    std::uint64_t Number();
    /// A text without NUL.
    std::string Text();
    /// Any bytes.
    std::string Blob();
    std::vector<std::string> Texts();
    /// Marks the bytes as wrong.
    void Refuse() { m_isGood = false; }
    /// True if every value was present and nothing is left over.
    [[nodiscard]] bool IsWhole() const { return m_isGood && m_rest.empty(); }

private:
    std::string_view m_rest;
    bool m_isGood;
};

} // namespace Pelnar::Engine
