// FieldCodec.h: values in a byte sequence: little-endian numbers, and texts after their length. A record lists its
// fields once, in a function that both a FieldWriter and a FieldReader call:
//
//     template <class Codec>
//     void Visit(Codec& codec, Record& record)
//     {
//         codec.Fields(record.name, record.count, Limited{record.kind, Kind::Last});
//     }
//
// Thread: one at a time. Ownership: the caller owns a reader's bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// A text that may have any bytes.
struct RawBytes
{
    std::string bytes;
};

/// An enumerator: a number from 0 to \a last in the bytes.
template <class Enum>
struct Limited
{
    Enum& value;
    Enum last;
};
template <class Enum>
Limited(Enum&, Enum) -> Limited<Enum>;

class FieldWriter
{
public:
    explicit FieldWriter(std::string_view magic) : m_bytes(magic) {}

    void Number(std::uint64_t number);
    void Text(std::string_view text);
    void Texts(std::vector<std::string> const& texts);
    template <class... Values>
    void Fields(Values const&... values)
    {
        (Field(values), ...);
    }
    std::string const& Finish() const { return m_bytes; }

private:
    void Field(std::uint64_t number) { Number(number); }
    void Field(std::string const& text) { Text(text); }
    void Field(std::vector<std::string> const& texts) { Texts(texts); }
    void Field(RawBytes const& raw) { Text(raw.bytes); }
    template <class Enum>
    void Field(Limited<Enum> const& limited)
    {
        Number(static_cast<std::uint64_t>(limited.value));
    }

    std::string m_bytes;
};

/// Every read returns a value. IsWhole() tells at the end whether all of them were present.
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
    template <class... Values>
    void Fields(Values&&... values)
    {
        (Field(values), ...);
    }
    /// Marks the bytes as wrong.
    void Refuse() { m_isGood = false; }
    /// True if every value was present and nothing is left over.
    [[nodiscard]] bool IsWhole() const { return m_isGood && m_rest.empty(); }

private:
    void Field(std::uint64_t& number) { number = Number(); }
    void Field(std::string& text) { text = Text(); }
    void Field(std::vector<std::string>& texts) { texts = Texts(); }
    void Field(RawBytes& raw) { raw.bytes = Blob(); }
    template <class Enum>
    void Field(Limited<Enum>& limited)
    {
        std::uint64_t const number = Number();
        m_isGood = m_isGood && number <= static_cast<std::uint64_t>(limited.last);
        limited.value = m_isGood ? static_cast<Enum>(number) : limited.last;
    }

    std::string_view m_rest;
    bool m_isGood;
};

/// True if \a text can name a file of a folder.
[[nodiscard]] inline bool IsFileName(std::string_view text)
{
    return !text.empty() && text != "." && text != ".." && text.find('/') == std::string_view::npos;
}

} // namespace Pelnar::Engine
