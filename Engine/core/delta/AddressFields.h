// AddressFields.h: finds the fields of a program that refer to other places of it: operands of instructions, and
// words of tables.
// Thread: one at a time. Ownership: refers to the file's bytes, its layout and its pages, which outlive it. Any bytes
// are safe.
#pragma once

#include "Engine/core/delta/AddressMap.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

enum class FieldForm : std::uint8_t
{
    Relative32,      ///< the target minus the address of the byte after the field
    FromField32,     ///< the target minus the field's address
    BackFromField32, ///< the field's address minus the target
    FromBase32,      ///< the target minus the region's base
    Word64,          ///< the target's address
    Branch26,        ///< AArch64: B and BL
    Branch19,        ///< conditional branches, literals
    Page21,          ///< ADRP
    InPage12,        ///< an addition, load or store: what it adds to the page of an ADRP
};

struct AddressField
{
    FieldForm form = FieldForm::Word64;
    std::size_t position = 0;
    std::uint64_t target = 0;
    std::uint64_t base = 0; ///< FromBase32
    std::size_t Width() const { return form == FieldForm::Word64 ? 8 : 4; }
};

/// The lowest \a bits of \a value as a signed number.
inline std::uint64_t SignExtended(std::uint64_t value, unsigned bits)
{
    std::uint64_t const sign = std::uint64_t(1) << (bits - 1);
    return ((value & ((sign << 1) - 1)) ^ sign) - sign;
}

/// How a run of old bytes moves. Refers to the map and the segments, which outlive it.
struct RunMove
{
    AddressMap const* map;
    std::vector<ImageSpan> const* newSpans; ///< that share no bytes of the file
    std::uint64_t shift;                    ///< the new position minus the old one, modulo 2^64
};

// What runs for each byte or field of code is inline: a program has hundreds of thousands of fields.
class FieldScanner
{
public:
    /// \a pages are those of the file.
    FieldScanner(Bytes file, ImageLayout const& layout, ResidentPages& pages);

    /// From now on Next() returns the fields that are completely between \a begin and \a end, in ascending order and
    /// without overlaps.
    void Start(std::size_t begin, std::size_t end);
    /// The same, but Next() may leave out fields of x86-64 code that are equal in the new file because they and their
    /// targets move alike. Most fields of most programs are.
    void StartMoving(std::size_t begin, std::size_t end, RunMove const& move);
    [[nodiscard]] bool Next(AddressField& field);

private:
    bool EnterRegion();
    bool NextInRegion(AddressField& field);
    bool NextInX86Code(AddressField& field);
    bool NextMovingInX86Code(AddressField& field);
    void FindX86Openings(std::size_t begin);
    std::size_t SkipBlocks(std::size_t begin);
    std::size_t EndOfX86Field(std::size_t opening) const;
    [[nodiscard]] bool IsFree(std::size_t position);
    bool FindCodeShift();
    bool NextInArm64Code(AddressField& field);
    bool NextWord(AddressField& field);
    bool NextOffset(AddressField& field);
    bool NextFrame(AddressField& field);
    bool IsArm64Field(AddressField& field) const;
    bool FindPagePartner(std::size_t position, std::uint32_t reg, std::uint64_t& target) const;
    bool FindPageBefore(std::size_t position, std::uint32_t reg, std::uint64_t& page) const;
    /// Call it before \a position is read. Fields may be far apart.
    void Reach(std::size_t position)
    {
        if (position >= m_reachedEnd)
        {
            ReachPart(position);
        }
    }
    [[gnu::cold]] void ReachPart(std::size_t position);
    std::uint32_t Word32(std::size_t position) const { return Word<std::uint32_t>(position); }
    std::uint64_t Word64(std::size_t position) const { return Word<std::uint64_t>(position); }
    template <class Number>
    Number Word(std::size_t position) const
    {
        Number word;
        std::memcpy(&word, m_file.data() + position, sizeof word);
        return word;
    }
    std::uint64_t Address(std::size_t position) const { return position + m_shift; }

    /// Addresses from the lowest on.
    struct AddressRange
    {
        std::uint64_t lowest;
        std::uint64_t size;
    };

    static constexpr std::size_t OPENINGS_BYTES = 64; ///< that are looked at together

    Bytes m_file;
    ImageLayout const& m_layout;
    ResidentPages& m_pages;
    unsigned m_reach; ///< how far the highest byte of a distance of 32 bits within the image is from 0
    AddressRange m_code;
    AddressRange m_image;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_reachedEnd = 0;  ///< of what m_pages know
    std::size_t m_region = 0;      ///< the current region, or the next one
    std::size_t m_position = 0;    ///< in the current region
    std::size_t m_regionEnd = 0;   ///< its end, or m_end if that is before
    std::uint64_t m_openings = 0;  ///< a bit for each of the 64 bytes before m_openingsEnd: a field may be behind it
    std::size_t m_openingsEnd = 0; ///< 0 when no bytes have been looked at
    std::uint64_t m_shift = 0;     ///< the region's addresses minus its positions
    bool m_isInRegion = false;
    bool m_isInX86Code = false;    ///< and all of its fields are wanted
    std::optional<RunMove> m_move; ///< empty if all fields are wanted
    std::uint32_t m_codeShift = 0; ///< the new address minus the old one of the current code, if that code is x86-64's
    std::uint64_t m_othersBegin = 0; ///< the place of all addresses that do not move by m_codeShift
    std::uint64_t m_othersSize = 0;  ///< 0 if it is large or empty
    std::uint64_t m_block = 0;       ///< m_openings before any was taken
    std::size_t m_frame = 0; ///< the second field of the frame record whose first one was returned last; 0 for none
};

inline bool FieldScanner::Next(AddressField& field)
{
    while (m_isInRegion || EnterRegion())
    {
        if (m_isInX86Code ? NextInX86Code(field) : NextInRegion(field))
        {
            return true;
        }
        m_isInRegion = false;
        ++m_region;
    }
    return false;
}

inline bool FieldScanner::NextInX86Code(AddressField& field)
{
    while (m_position + 5 <= m_regionEnd)
    {
        m_openings &=
            m_position < m_openingsEnd ? ~std::uint64_t(0) << (m_position + OPENINGS_BYTES - m_openingsEnd) : 0;
        if (m_openings == 0)
        {
            m_position = std::max(m_position, m_openingsEnd);
            FindX86Openings(m_position);
            continue;
        }
        std::size_t const position =
            m_openingsEnd - OPENINGS_BYTES + static_cast<std::size_t>(__builtin_ctzll(m_openings));
        m_openings &= m_openings - 1;
        std::uint8_t const opening = m_file[position];
        std::size_t const at = position + (opening == 0x0F ? 2 : 1);
        if (at + 4 > m_regionEnd)
        {
            continue;
        }
        bool const isMemory = (opening & 0xC7) == 0x05;
        std::uint64_t const target = Address(at) + 4 + SignExtended(Word32(at), 32);
        AddressRange const& range = isMemory ? m_image : m_code;
        if (target - range.lowest < range.size)
        {
            field.form = FieldForm::Relative32;
            field.position = at;
            field.target = target;
            m_position = at + 4;
            return true;
        }
    }
    return false;
}

void StoreOtherField(AddressField const& field, std::uint64_t address, std::uint64_t target, std::uint64_t base,
                     std::uint8_t* bytes);

inline void Store32(std::uint32_t value, std::uint8_t* bytes)
{
    std::memcpy(bytes, &value, sizeof value);
}

/// Changes \a bytes, which are the field's in the old file, to what they are when the field is at \a address, its
/// target at \a target, and the region's base at \a base.
inline void StoreField(AddressField const& field, std::uint64_t address, std::uint64_t target, std::uint64_t base,
                       std::uint8_t* bytes)
{
    field.form == FieldForm::Relative32 ? Store32(static_cast<std::uint32_t>(target - address - 4), bytes)
                                        : StoreOtherField(field, address, target, base, bytes);
}

} // namespace Pelnar::Engine
