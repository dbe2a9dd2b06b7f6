#include "Engine/core/delta/ImageLayout.h"

#include "Engine/core/delta/SixteenBytes.h"

#include <elf.h>

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint64_t MAX_IMAGE_REACH = 0xFFFFFFFF;
constexpr std::size_t MAX_SECTIONS = 1024;
constexpr std::uint64_t FRAME_INDEX_HEADER_BYTES = 12;
constexpr std::uint64_t TABLE_WORD_BYTES = 4;
constexpr std::uint8_t LEA = 0x8D;
constexpr std::ptrdiff_t LEA_BYTES = 6; ///< with the distance
constexpr std::uint8_t RELATIVE_MASK = 0xC7;
constexpr std::uint8_t RELATIVE = 0x05; ///< what LEA's second byte says under the mask if a distance follows

template <class Record>
bool ReadRecord(Bytes file, std::uint64_t offset, Record& record)
{
    if (offset > file.size() || sizeof(Record) > file.size() - offset)
    {
        return false;
    }
    std::memcpy(&record, file.data() + offset, sizeof(Record));
    return true;
}

/// A bit for each of 64 \a bytes where an LEA with a distance begins.
std::uint64_t RelativeLeasAmong(std::uint8_t const* bytes)
{
    std::uint64_t bits = 0;
    for (unsigned i = 0; i < 64; i += 16)
    {
        auto const isRelative = (Load(bytes + i) == LEA) & ((Load(bytes + i + 1) & RELATIVE_MASK) == RELATIVE);
        bits |= std::uint64_t(BitsOf(reinterpret_cast<SixteenBytes>(isRelative))) << i;
    }
    return bits;
}

class LayoutReader
{
public:
    LayoutReader(Bytes file, ImageLayout& layout, ResidentPages& pages) : m_file(file), m_layout(layout), m_pages(pages)
    {
    }

    [[nodiscard]] bool ReadSpans() { return ReadHeader() && ReadSegments(); }

    void ReadRegions()
    {
        m_layout.regions.clear();
        if (ReadHeader())
        {
            ReadSections();
            FindTables();
            KeepSeparateRegions();
        }
    }

private:
    bool ReadHeader()
    {
        bool const isImage = m_file.size() <= MAX_IMAGE_BYTES && ReadRecord(m_file, 0, m_header) &&
                             std::memcmp(m_header.e_ident, ELFMAG, SELFMAG) == 0 &&
                             m_header.e_ident[EI_CLASS] == ELFCLASS64 && m_header.e_ident[EI_DATA] == ELFDATA2LSB;
        return isImage && (m_header.e_type == ET_DYN || m_header.e_type == ET_EXEC) &&
               (m_header.e_machine == EM_X86_64 || m_header.e_machine == EM_AARCH64);
    }

    bool ReadSegments()
    {
        m_layout.lowest = m_layout.lowestCode = ~std::uint64_t(0);
        for (std::size_t i = 0; i < m_header.e_phnum; ++i)
        {
            Elf64_Phdr segment;
            if (!ReadRecord(m_file, m_header.e_phoff + i * sizeof segment, segment))
            {
                return false;
            }
            if (segment.p_type == PT_LOAD && !AddSegment(segment))
            {
                return false;
            }
        }
        return !m_layout.spans.empty() && m_layout.end - m_layout.lowest <= MAX_IMAGE_REACH;
    }

    bool AddSegment(Elf64_Phdr const& segment)
    {
        std::uint64_t const end = segment.p_vaddr + std::max(segment.p_memsz, segment.p_filesz);
        bool const isSane = segment.p_offset <= m_file.size() && segment.p_filesz <= m_file.size() - segment.p_offset &&
                            segment.p_memsz <= MAX_IMAGE_REACH && end >= segment.p_vaddr;
        bool const isNext = m_layout.spans.empty() || m_layout.spans.back().offset <= segment.p_offset;
        if (!isSane || !isNext || m_layout.spans.size() == MAX_IMAGE_SPANS)
        {
            return false;
        }
        m_layout.spans.push_back({static_cast<std::uint32_t>(segment.p_offset),
                                  static_cast<std::uint32_t>(segment.p_filesz), segment.p_vaddr});
        m_layout.lowest = std::min(m_layout.lowest, segment.p_vaddr);
        m_layout.end = std::max(m_layout.end, end);
        if ((segment.p_flags & PF_X) != 0)
        {
            m_layout.lowestCode = std::min(m_layout.lowestCode, segment.p_vaddr);
            m_layout.endOfCode = std::max(m_layout.endOfCode, end);
        }
        return true;
    }

    void ReadSections()
    {
        Elf64_Shdr names{};
        std::uint64_t const namesAt = m_header.e_shoff + std::uint64_t(m_header.e_shstrndx) * sizeof names;
        bool const hasNames =
            m_header.e_shnum <= MAX_SECTIONS && m_header.e_shoff <= m_file.size() && ReadRecord(m_file, namesAt, names);
        for (std::size_t i = 0; hasNames && i < m_header.e_shnum; ++i)
        {
            Elf64_Shdr section;
            if (ReadRecord(m_file, m_header.e_shoff + i * sizeof section, section) &&
                section.sh_offset <= m_file.size() && section.sh_size <= m_file.size() - section.sh_offset)
            {
                AddSection(section, NameAt(names, section.sh_name));
            }
        }
    }

    std::string_view NameAt(Elf64_Shdr const& names, std::uint32_t at) const
    {
        std::uint64_t const begin = names.sh_offset + at;
        if (begin < names.sh_offset || begin >= m_file.size())
        {
            return {};
        }
        auto const* const text = reinterpret_cast<char const*>(m_file.data() + begin);
        return {text, ::strnlen(text, std::min<std::size_t>(m_file.size() - begin, 64))};
    }

    void AddSection(Elf64_Shdr const& section, std::string_view name)
    {
        bool const isCode = (section.sh_flags & SHF_EXECINSTR) != 0;
        bool const isLoaded = (section.sh_flags & SHF_ALLOC) != 0;
        if (section.sh_type == SHT_PROGBITS && isCode)
        {
            Add(m_header.e_machine == EM_X86_64 ? RegionKind::X86Code : RegionKind::Arm64Code, section);
        }
        else if (section.sh_type == SHT_RELA && isLoaded)
        {
            Add(RegionKind::Relocations, section);
        }
        else if (section.sh_type == SHT_DYNSYM || section.sh_type == SHT_SYMTAB)
        {
            Add(RegionKind::Symbols, section, NamesAddress(section));
        }
        else if (section.sh_type == SHT_DYNAMIC)
        {
            Add(RegionKind::Dynamic, section);
        }
        else if (name == ".eh_frame")
        {
            Add(RegionKind::Frames, section);
        }
        else if (name == ".eh_frame_hdr" && section.sh_size > FRAME_INDEX_HEADER_BYTES)
        {
            Elf64_Shdr table = section;
            table.sh_offset += FRAME_INDEX_HEADER_BYTES;
            table.sh_size -= FRAME_INDEX_HEADER_BYTES;
            Add(RegionKind::Offsets, table, section.sh_addr);
        }
        else if (isLoaded && section.sh_type != SHT_NOBITS && HoldsWords(section, name))
        {
            Add(RegionKind::Words, section);
        }
    }

    /// A program that may be loaded anywhere has its addresses in relocations, so its other words are numbers.
    bool HoldsWords(Elf64_Shdr const& section, std::string_view name) const
    {
        bool const isTable = section.sh_type == SHT_INIT_ARRAY || section.sh_type == SHT_FINI_ARRAY || name == ".got" ||
                             name == ".got.plt" || name == ".data.rel.ro";
        return isTable || (m_header.e_type == ET_EXEC && section.sh_type == SHT_PROGBITS);
    }

    /// 0 if the names are not loaded with the program.
    std::uint64_t NamesAddress(Elf64_Shdr const& symbols) const
    {
        Elf64_Shdr names{};
        bool const hasNames = symbols.sh_link < m_header.e_shnum &&
                              ReadRecord(m_file, m_header.e_shoff + symbols.sh_link * sizeof names, names);
        return hasNames ? names.sh_addr : 0;
    }

    void Add(RegionKind kind, Elf64_Shdr const& section, std::uint64_t base = 0)
    {
        m_layout.regions.push_back({kind, static_cast<std::uint32_t>(section.sh_offset),
                                    static_cast<std::uint32_t>(section.sh_offset + section.sh_size), base});
    }

    /// Finds jump tables: code takes their addresses, and each of their words is the distance of code from the table.
    void FindTables()
    {
        std::vector<std::uint32_t> begins;
        std::vector<ImageRegion> const code = m_layout.regions;
        for (ImageRegion const& region : code)
        {
            if (region.kind == RegionKind::X86Code)
            {
                FindTables(region, begins);
            }
        }
        std::sort(begins.begin(), begins.end());
        begins.erase(std::unique(begins.begin(), begins.end()), begins.end());
        for (std::size_t i = 0; i < begins.size(); ++i)
        {
            std::uint64_t const address = *AddressAt(m_layout.spans, begins[i]);
            std::uint64_t const limit = i + 1 < begins.size() ? begins[i + 1] : m_file.size();
            std::uint32_t end = begins[i];
            while (end + 4 <= limit && IsCodeFrom(address, end))
            {
                end += 4;
            }
            m_layout.regions.push_back({RegionKind::Offsets, begins[i], end, address});
        }
    }

    /// Adds where the tables begin whose addresses LEA takes in \a region.
    void FindTables(ImageRegion const& region, std::vector<std::uint32_t>& begins) const
    {
        std::optional<std::uint64_t> const address = AddressAt(m_layout.spans, region.begin);
        std::uint8_t const* const end = m_file.data() + region.end;
        std::uint8_t const* at = m_file.data() + region.begin;
        if (!address)
        {
            return;
        }
        std::uint64_t const shift = *address - region.begin;
        bool const areAligned = KeepSpansAlignment();
        auto const take = [&](std::uint8_t const* lea)
        {
            std::int32_t distance;
            std::memcpy(&distance, lea + 2, sizeof distance);
            auto const next = static_cast<std::uint64_t>(lea + LEA_BYTES - m_file.data()) + shift;
            std::uint64_t const target = next + static_cast<std::uint64_t>(std::int64_t(distance));
            bool const mayBeTable = !areAligned || target % TABLE_WORD_BYTES == 0;
            if (mayBeTable && !m_layout.IsInCode(target))
            {
                AddIfTable(target, begins);
            }
        };
        constexpr std::ptrdiff_t BLOCK_BYTES = 64;
        while (end - at >= BLOCK_BYTES + LEA_BYTES)
        {
            auto const part = std::min<std::ptrdiff_t>(end - at, RESIDENT_PART_BYTES);
            m_pages.Touch(0, static_cast<std::size_t>(at - m_file.data()), static_cast<std::size_t>(part));
            for (std::uint8_t const* const partEnd = at + part; partEnd - at >= BLOCK_BYTES + LEA_BYTES;
                 at += BLOCK_BYTES)
            {
                for (std::uint64_t bits = RelativeLeasAmong(at); bits != 0; bits &= bits - 1)
                {
                    take(at + __builtin_ctzll(bits));
                }
            }
        }
        for (; end - at >= LEA_BYTES; ++at)
        {
            if (at[0] == LEA && (at[1] & RELATIVE_MASK) == RELATIVE)
            {
                take(at);
            }
        }
    }

    /// True if a place is at a multiple of 4 in the file exactly if its address is one.
    bool KeepSpansAlignment() const
    {
        return std::all_of(m_layout.spans.begin(), m_layout.spans.end(),
                           [](ImageSpan const& span) { return (span.address - span.offset) % TABLE_WORD_BYTES == 0; });
    }

    void AddIfTable(std::uint64_t address, std::vector<std::uint32_t>& begins) const
    {
        std::optional<std::uint64_t> const offset = OffsetOf(m_layout.spans, address);
        bool const isTable = offset && *offset % TABLE_WORD_BYTES == 0 && IsCodeFrom(address, *offset) &&
                             IsCodeFrom(address, *offset + 4) && IsCodeFrom(address, *offset + 8);
        if (isTable)
        {
            begins.push_back(static_cast<std::uint32_t>(*offset));
        }
    }

    bool IsCodeFrom(std::uint64_t base, std::uint64_t offset) const
    {
        m_pages.Touch(0, offset, sizeof(std::int32_t));
        std::int32_t distance;
        return ReadRecord(m_file, offset, distance) &&
               m_layout.IsInCode(base + static_cast<std::uint64_t>(std::int64_t(distance)));
    }

    void KeepSeparateRegions()
    {
        auto& regions = m_layout.regions;
        std::stable_sort(regions.begin(), regions.end(),
                         [](ImageRegion const& a, ImageRegion const& b) { return a.begin < b.begin; });
        std::uint32_t end = 0;
        auto const overlaps = [&end](ImageRegion const& region)
        {
            bool const isOver = region.begin < end;
            end = isOver ? end : region.end;
            return isOver;
        };
        regions.erase(std::remove_if(regions.begin(), regions.end(), overlaps), regions.end());
    }

    Bytes m_file;
    Elf64_Ehdr m_header{};
    ImageLayout& m_layout;
    ResidentPages& m_pages;
};

} // namespace

std::optional<ImageLayout> ReadImageSpans(Bytes file)
{
    ImageLayout layout;
    ResidentPages pages;
    return LayoutReader(file, layout, pages).ReadSpans() ? std::optional<ImageLayout>(std::move(layout)) : std::nullopt;
}

void ReadImageRegions(Bytes file, ImageLayout& layout, ResidentPages& pages)
{
    LayoutReader(file, layout, pages).ReadRegions();
}

std::optional<ImageLayout> ReadImageLayout(Bytes file)
{
    std::optional<ImageLayout> layout = ReadImageSpans(file);
    if (layout)
    {
        ResidentPages pages;
        ReadImageRegions(file, *layout, pages);
    }
    return layout;
}

std::optional<std::uint64_t> AddressAt(std::vector<ImageSpan> const& spans, std::uint64_t offset)
{
    for (ImageSpan const& span : spans)
    {
        if (offset >= span.offset && offset - span.offset < span.size)
        {
            return span.address + (offset - span.offset);
        }
    }
    return std::nullopt;
}

std::optional<std::uint64_t> OffsetOf(std::vector<ImageSpan> const& spans, std::uint64_t address)
{
    for (ImageSpan const& span : spans)
    {
        if (address >= span.address && address - span.address < span.size)
        {
            return span.offset + (address - span.address);
        }
    }
    return std::nullopt;
}

} // namespace Pelnar::Engine
