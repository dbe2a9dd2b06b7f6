#include "Engine/core/delta/AddressFields.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t ARM64_LOOK_AROUND = 8; ///< instructions between an ADRP and the one that adds to its page

bool IsPageAddress(std::uint32_t word)
{
    return (word & 0x9F000000) == 0x90000000;
}

std::uint64_t PageOf(std::uint32_t word, std::uint64_t address)
{
    std::uint64_t const immediate = (word >> 5 & 0x7FFFF) << 2 | (word >> 29 & 3);
    return (address & ~std::uint64_t(0xFFF)) + (SignExtended(immediate, 21) << 12);
}

/// How many bits the immediate of 12 bits of an addition, load or store is shifted; -1 for another instruction.
int InPageScale(std::uint32_t word)
{
    if ((word & 0xFFC00000) == 0x91000000)
    {
        return 0;
    }
    if ((word & 0x3B000000) == 0x39000000)
    {
        bool const isVector = (word & 0x04000000) != 0;
        bool const isWhole = isVector && (word & 0x00800000) != 0 && word >> 30 == 0;
        return isWhole ? 4 : static_cast<int>(word >> 30);
    }
    return -1;
}

std::uint32_t BaseRegister(std::uint32_t word)
{
    return word >> 5 & 31;
}

/// The records of a table of words of eight bytes.
struct WordRecord
{
    unsigned words;     ///< of a record
    unsigned addresses; ///< a bit for each word of a record that may be an address
};

WordRecord WordRecordOf(RegionKind kind)
{
    return kind == RegionKind::Dynamic       ? WordRecord{2, 0b10}
           : kind == RegionKind::Relocations ? WordRecord{3, 0b101}
           : kind == RegionKind::Symbols     ? WordRecord{3, 0b010}
                                             : WordRecord{1, 1};
}

} // namespace

FieldScanner::FieldScanner(Bytes file, ImageLayout const& layout, ResidentPages& pages)
    : m_file(file)
    , m_layout(layout)
    , m_pages(pages)
    , m_reach(static_cast<unsigned>(std::min<std::uint64_t>((layout.end - layout.lowest) >> 24, 127)) + 1)
    , m_code{layout.lowestCode, layout.endOfCode > layout.lowestCode ? layout.endOfCode - layout.lowestCode : 0}
    , m_image{layout.lowest, layout.end > layout.lowest ? layout.end - layout.lowest : 0}
{
}

void FieldScanner::Start(std::size_t begin, std::size_t end)
{
    m_begin = begin;
    m_end = end;
    m_reachedEnd = begin;
    auto const& regions = m_layout.regions;
    m_region = static_cast<std::size_t>(std::partition_point(regions.begin(), regions.end(),
                                                             [begin](ImageRegion const& region)
                                                             { return region.end <= begin; }) -
                                        regions.begin());
    m_isInRegion = false;
    m_frame = 0;
    m_move.reset();
}

void FieldScanner::StartMoving(std::size_t begin, std::size_t end, RunMove const& move)
{
    Start(begin, end);
    m_move = move;
}

void FieldScanner::ReachPart(std::size_t position)
{
    m_reachedEnd = position + std::min(RESIDENT_PART_BYTES, std::max(m_end, position) - position);
    m_pages.Touch(0, position, m_reachedEnd - position);
}

bool FieldScanner::EnterRegion()
{
    for (; m_region < m_layout.regions.size() && m_layout.regions[m_region].begin < m_end; ++m_region)
    {
        ImageRegion const& region = m_layout.regions[m_region];
        // A region that is not loaded has no address. None of its fields depends on the field's own address.
        std::optional<std::uint64_t> const address = AddressAt(m_layout.spans, region.begin);
        m_shift = address.value_or(region.begin) - region.begin;
        m_position = std::max<std::size_t>(region.begin, m_begin);
        m_regionEnd = std::min<std::size_t>(region.end, m_end);
        if (m_position < m_regionEnd)
        {
            m_isInRegion = true;
            m_openings = 0;
            bool const isX86Code = region.kind == RegionKind::X86Code;
            m_isInX86Code = isX86Code && !FindCodeShift();
            m_openingsEnd = m_isInX86Code ? 0 : m_position;
            return true;
        }
    }
    return false;
}

bool FieldScanner::NextInRegion(AddressField& field)
{
    switch (m_layout.regions[m_region].kind)
    {
    case RegionKind::X86Code:
        return NextMovingInX86Code(field);
    case RegionKind::Arm64Code:
        return NextInArm64Code(field);
    case RegionKind::Words:
    case RegionKind::Dynamic:
    case RegionKind::Relocations:
    case RegionKind::Symbols:
        return NextWord(field);
    case RegionKind::Offsets:
        return NextOffset(field);
    case RegionKind::Frames:
        return NextFrame(field);
    }
    return false;
}

bool FieldScanner::NextInArm64Code(AddressField& field)
{
    m_position = (m_position + 3) & ~std::size_t(3);
    while (m_position + 4 <= m_regionEnd)
    {
        Reach(m_position);
        field.position = m_position;
        m_position += 4;
        if (IsArm64Field(field))
        {
            return true;
        }
    }
    return false;
}

bool FieldScanner::IsArm64Field(AddressField& field) const
{
    std::uint32_t const word = Word32(field.position);
    std::uint64_t const address = Address(field.position);
    if ((word & 0x7C000000) == 0x14000000)
    {
        field.form = FieldForm::Branch26;
        field.target = address + (SignExtended(word & 0x3FFFFFF, 26) << 2);
        return m_layout.IsInCode(field.target);
    }
    bool const isConditional = (word & 0xFF000010) == 0x54000000 || (word & 0x7E000000) == 0x34000000;
    bool const isLiteral = (word & 0x3B000000) == 0x18000000;
    if (isConditional || isLiteral)
    {
        field.form = FieldForm::Branch19;
        field.target = address + (SignExtended(word >> 5 & 0x7FFFF, 19) << 2);
        return m_layout.IsInImage(field.target);
    }
    if (IsPageAddress(word))
    {
        field.form = FieldForm::Page21;
        field.target = PageOf(word, address);
        return FindPagePartner(field.position, word & 31, field.target) && m_layout.IsInImage(field.target);
    }
    int const scale = InPageScale(word);
    std::uint64_t page = 0;
    if (scale < 0 || !FindPageBefore(field.position, BaseRegister(word), page))
    {
        return false;
    }
    field.form = FieldForm::InPage12;
    field.target = page + (std::uint64_t(word >> 10 & 0xFFF) << scale);
    return m_layout.IsInImage(field.target);
}

/// Completes the target of the ADRP at \a position by the first instruction that adds to its page, if there is one.
bool FieldScanner::FindPagePartner(std::size_t position, std::uint32_t reg, std::uint64_t& target) const
{
    std::size_t const end =
        std::min<std::size_t>(m_layout.regions[m_region].end, position + 4 * (ARM64_LOOK_AROUND + 1));
    for (std::size_t at = position + 4; at + 4 <= end; at += 4)
    {
        std::uint32_t const word = Word32(at);
        int const scale = InPageScale(word);
        if (scale >= 0 && BaseRegister(word) == reg)
        {
            target += std::uint64_t(word >> 10 & 0xFFF) << scale;
            return true;
        }
    }
    return true;
}

bool FieldScanner::FindPageBefore(std::size_t position, std::uint32_t reg, std::uint64_t& page) const
{
    std::size_t const begin = m_layout.regions[m_region].begin;
    for (std::size_t back = 4; back <= 4 * ARM64_LOOK_AROUND && position >= begin + back; back += 4)
    {
        std::uint32_t const word = Word32(position - back);
        if (IsPageAddress(word) && (word & 31) == reg)
        {
            page = PageOf(word, Address(position - back));
            return true;
        }
    }
    return false;
}

bool FieldScanner::NextWord(AddressField& field)
{
    ImageRegion const& region = m_layout.regions[m_region];
    WordRecord const record = WordRecordOf(region.kind);
    bool const hasNames = region.kind == RegionKind::Symbols && region.base != 0;
    field.base = region.base;
    std::size_t const first = (m_position - region.begin + 7) / 8;
    unsigned inRecord = static_cast<unsigned>(first % record.words);
    std::size_t reachedEnd = m_reachedEnd;
    for (std::size_t at = region.begin + first * 8; at + 4 <= m_regionEnd; at += 8)
    {
        if (at >= reachedEnd)
        {
            ReachPart(at);
            reachedEnd = m_reachedEnd;
        }
        bool const isName = hasNames && inRecord == 0;
        bool const isAddress = (record.addresses >> inRecord & 1) != 0;
        inRecord = inRecord + 1 == record.words ? 0 : inRecord + 1;
        if (!isName && (!isAddress || at + 8 > m_regionEnd))
        {
            continue;
        }
        std::uint64_t const value = isName ? Word32(at) : Word64(at);
        field.target = isName ? region.base + value : value;
        if (value != 0 && m_layout.IsInImage(field.target))
        {
            field.form = isName ? FieldForm::FromBase32 : FieldForm::Word64;
            field.position = at;
            m_position = at + 8;
            return true;
        }
    }
    return false;
}

bool FieldScanner::NextOffset(AddressField& field)
{
    ImageRegion const& region = m_layout.regions[m_region];
    field.form = FieldForm::FromBase32;
    field.base = region.base;
    m_position = region.begin + (m_position - region.begin + 3) / 4 * 4;
    while (m_position + 4 <= m_regionEnd)
    {
        Reach(m_position);
        field.position = m_position;
        field.target = region.base + SignExtended(Word32(m_position), 32);
        m_position += 4;
        if (m_layout.IsInImage(field.target))
        {
            return true;
        }
    }
    return false;
}

/// A record is its length, the distance back to the shared record, and the distance of its code; a shared record is
/// its length, 0, and its content.
bool FieldScanner::NextFrame(AddressField& field)
{
    if (m_frame != 0)
    {
        field.form = FieldForm::FromField32;
        field.position = std::exchange(m_frame, 0);
        field.target = Address(field.position) + SignExtended(Word32(field.position), 32);
        return true;
    }
    field.form = FieldForm::BackFromField32;
    m_position = (m_position + 3) & ~std::size_t(3);
    while (m_position + 12 <= m_regionEnd)
    {
        Reach(m_position);
        std::uint32_t const length = Word32(m_position);
        std::uint32_t const shared = Word32(m_position + 4);
        std::size_t const code = m_position + 8;
        bool const isRecord = length >= 8 && length < 0x10000 && length % 4 == 0 && shared < code;
        m_position += isRecord ? std::size_t(length) + 4 : 4;
        if (isRecord && shared != 0 && m_layout.IsInCode(Address(code) + SignExtended(Word32(code), 32)))
        {
            m_frame = code;
            field.position = code - 4;
            field.target = Address(field.position) - shared;
            return true;
        }
    }
    return false;
}

void StoreOtherField(AddressField const& field, std::uint64_t address, std::uint64_t target, std::uint64_t base,
                     std::uint8_t* bytes)
{
    std::uint32_t word;
    std::memcpy(&word, bytes, sizeof word);
    switch (field.form)
    {
    case FieldForm::Relative32:
        break;
    case FieldForm::FromField32:
        return Store32(static_cast<std::uint32_t>(target - address), bytes);
    case FieldForm::BackFromField32:
        return Store32(static_cast<std::uint32_t>(address - target), bytes);
    case FieldForm::FromBase32:
        return Store32(static_cast<std::uint32_t>(target - base), bytes);
    case FieldForm::Word64:
        std::memcpy(bytes, &target, sizeof target);
        return;
    case FieldForm::Branch26:
        return Store32((word & ~0x3FFFFFFu) | (static_cast<std::uint32_t>((target - address) >> 2) & 0x3FFFFFF), bytes);
    case FieldForm::Branch19:
        return Store32((word & ~(0x7FFFFu << 5)) | (static_cast<std::uint32_t>((target - address) >> 2) & 0x7FFFF) << 5,
                       bytes);
    case FieldForm::Page21:
    {
        auto const pages = static_cast<std::uint32_t>((target >> 12) - (address >> 12));
        return Store32((word & 0x9F00001F) | (pages & 3) << 29 | (pages >> 2 & 0x7FFFF) << 5, bytes);
    }
    case FieldForm::InPage12:
    {
        auto const immediate = static_cast<std::uint32_t>(target & 0xFFF) >> std::max(InPageScale(word), 0);
        return Store32((word & ~(0xFFFu << 10)) | immediate << 10, bytes);
    }
    }
}

} // namespace Pelnar::Engine
