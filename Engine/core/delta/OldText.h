// OldText.h: the bytes that a patch starts from, as it reads them: run by run.
// Thread: one at a time. Ownership: refers to the files' bytes, which outlive it.
#pragma once

#include "Engine/core/delta/AddressFields.h"
#include "Engine/core/delta/AddressMap.h"

#include <array>
#include <cstdint>
#include <vector>

namespace Pelnar::Engine
{

class IOldText
{
public:
    virtual ~IOldText() = default;

    virtual std::uint64_t Size() const = 0;
    /// From here on Next() answers the \a size bytes from \a position on, which are to stand from \a newPosition on in
    /// the new file. REQUIRES: a run within the text.
    virtual void Start(std::uint64_t position, std::uint64_t newPosition, std::uint64_t size) = 0;
    /// The next piece; never empty before the run's end. It is good until the next call.
    virtual Bytes Next() = 0;
};

/// Files one after the other, as they are.
class PlainText : public IOldText
{
public:
    explicit PlainText(std::vector<Bytes> files);

    std::uint64_t Size() const override { return m_ends.empty() ? 0 : m_ends.back(); }
    void Start(std::uint64_t position, std::uint64_t newPosition, std::uint64_t size) override;
    Bytes Next() override;

private:
    std::vector<Bytes> m_files;
    std::vector<std::uint64_t> m_ends; ///< of each file in the text
    std::uint64_t m_position = 0;
    std::uint64_t m_left = 0;
};

/// A program whose addresses are changed to what they are in the new one as far as the patch's steps tell.
class ProgramText : public IOldText
{
public:
    /// \a steps: of the whole patch, from the start of both files on. \a layout outlives this object.
    ProgramText(Bytes program, ImageLayout const& layout, std::vector<ImageSpan> newSpans,
                std::vector<PatchStep> const& steps);

    std::uint64_t Size() const override { return m_program.size(); }
    void Start(std::uint64_t position, std::uint64_t newPosition, std::uint64_t size) override;
    Bytes Next() override;

private:
    void Change(AddressField const& field, std::uint8_t* bytes);
    /// True for a run of a program of which nothing has moved, at its old place.
    bool IsAsItIs() const { return m_isUnmoved && m_shift == 0; }

    Bytes m_program;
    std::vector<ImageSpan> m_newSpans;
    AddressMap m_map;
    FieldScanner m_scanner;
    bool m_isUnmoved;
    AddressField m_field; ///< the next one
    bool m_hasField = false;
    std::uint64_t m_position = 0;
    std::uint64_t m_left = 0;
    std::uint64_t m_shift = 0; ///< of new positions from old ones, without carry
    ImageSpan m_newSpan;       ///< the one that the last field stands in
    std::array<std::uint8_t, 16 * 1024> m_piece;
};

} // namespace Pelnar::Engine
