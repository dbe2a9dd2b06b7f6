// FieldCodec_p.h: values one behind the other in bytes: numbers with the little end first, texts behind their length.
// Thread: one at a time. Ownership: a reader's bytes stay the caller's.
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

/// Every read answers a value; whether all of them were there is asked once, at the end.
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
    /// Declares the bytes wrong.
    void Refuse() { m_isGood = false; }
    /// True when everything was there and nothing is left over.
    [[nodiscard]] bool IsWhole() const { return m_isGood && m_rest.empty(); }

private:
    std::string_view m_rest;
    bool m_isGood;
};

} // namespace Pelnar::Engine
