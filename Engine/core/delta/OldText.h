// OldText.h: the old bytes that a patch reads, run by run.
// Thread: one at a time. Ownership: refers to the files' bytes, which outlive it.
#pragma once

#include "Engine/core/delta/AddressFields.h"
#include "Engine/core/delta/AddressMap.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

class IOldText
{
public:
    virtual ~IOldText() = default;

    virtual std::uint64_t Size() const = 0;
    /// From now on Next() returns the \a size bytes from \a position on. In the new file they begin at \a newPosition.
    /// REQUIRES: a run within the text.
    virtual void Start(std::uint64_t position, std::uint64_t newPosition, std::uint64_t size) = 0;
    /// The next piece of the run; empty only at its end. Either it is copied to \a target, which has room for \a room
    /// bytes, at least one, or it is elsewhere. There, a piece of PATCH_PIECE_BYTES or more stays valid as long as the
    /// files, and a smaller one until the next call.
    virtual Bytes Next(std::uint8_t* target, std::size_t room) = 0;
};

/// Files, one after the other, unchanged.
class PlainText : public IOldText
{
public:
    explicit PlainText(std::vector<Bytes> files, ResidentPages pages = {});

    std::uint64_t Size() const override { return m_ends.empty() ? 0 : m_ends.back(); }
    void Start(std::uint64_t position, std::uint64_t newPosition, std::uint64_t size) override;
    Bytes Next(std::uint8_t* target, std::size_t room) override;

private:
    std::vector<Bytes> m_files;
    std::vector<std::uint64_t> m_ends; ///< of each file in the text
    ResidentPages m_pages;             ///< of the files
    std::uint64_t m_position = 0;
    std::uint64_t m_left = 0;
};

/// A program. Its addresses are changed to those of the new program, as far as the patch's steps tell them.
class ProgramText : public IOldText
{
public:
    /// \a steps are those of the whole patch. \a layout needs no regions: they are read when an address changes.
    ProgramText(Bytes program, ImageLayout layout, std::vector<ImageSpan> newSpans, std::vector<PatchStep> const& steps,
                ResidentPages pages = {});
    ProgramText(ProgramText const&) = delete;
    ProgramText& operator=(ProgramText const&) = delete;

    std::uint64_t Size() const override { return m_program.size(); }
    void Start(std::uint64_t position, std::uint64_t newPosition, std::uint64_t size) override;
    Bytes Next(std::uint8_t* target, std::size_t room) override;

private:
    Bytes Take(std::uint64_t size);
    void Change(AddressField const& field, std::uint8_t* bytes);

    Bytes m_program;
    ResidentPages m_pages; ///< of the program
    std::vector<ImageSpan> m_newSpans;
    ImageLayout m_layout;
    AddressMap m_map;
    std::optional<FieldScanner> m_scanner; ///< empty until it is needed
    bool m_isUnmoved;
    bool m_areSpansSeparate;
    AddressField m_field; ///< the next one
    bool m_hasField = false;
    std::uint64_t m_position = 0;
    std::uint64_t m_left = 0;
    std::uint64_t m_shift = 0;           ///< the new position minus the old one, modulo 2^64
    ImageSpan m_newSpan;                 ///< the one with the last field
    std::array<std::uint8_t, 8> m_alone; ///< the bytes of a field that has no room
};

} // namespace Pelnar::Engine
