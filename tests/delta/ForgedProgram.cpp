#include "tests/delta/ForgedProgram.h"

#include <elf.h>

#include <cstring>
#include <random>
#include <string>

namespace Pelnar::Testing
{
namespace
{

using Engine::ByteBuffer;

constexpr std::size_t CALLS = 6;
constexpr std::size_t STRING_BYTES = 24;

template <class Value>
void Append(ByteBuffer& bytes, Value const& value)
{
    auto const* const begin = reinterpret_cast<std::uint8_t const*>(&value);
    bytes.insert(bytes.end(), begin, begin + sizeof value);
}

template <class Value>
void Put(ByteBuffer& bytes, std::size_t at, Value const& value)
{
    std::memcpy(bytes.data() + at, &value, sizeof value);
}

class Forge
{
public:
    explicit Forge(ProgramShape const& shape) : m_shape(shape) {}

    ByteBuffer Make()
    {
        m_file.resize(sizeof(Elf64_Ehdr) + 2 * sizeof(Elf64_Phdr));
        Align();
        // The code is laid out twice: its fields need the places of what comes later.
        std::size_t const begin = m_file.size();
        AppendCode();
        std::size_t const codeEnd = m_file.size();
        Align();
        m_stringsAt = m_file.size() + m_shape.stringsMoved;
        m_file.resize(begin);
        AppendCode();
        m_sections.push_back({".text", SHT_PROGBITS, SHF_ALLOC | SHF_EXECINSTR, begin, codeEnd});
        m_file.resize(m_stringsAt);
        AppendStrings();
        AppendTables();
        AppendSections();
        PutHeaders();
        return std::move(m_file);
    }

private:
    struct Section
    {
        char const* name;
        std::uint32_t type;
        std::uint64_t flags;
        std::size_t begin;
        std::size_t end;
    };

    std::uint64_t AddressOf(std::size_t offset) const { return m_shape.loadedAt + offset; }
    void Align() { m_file.resize((m_file.size() + 15) / 16 * 16); }

    void AppendCode()
    {
        std::mt19937 random(7);
        std::vector<std::size_t> functions;
        for (std::size_t i = 0; i < m_shape.functions; ++i)
        {
            if (i == m_shape.insertedAt)
            {
                m_file.insert(m_file.end(), m_shape.insertedBytes, 0x90);
            }
            functions.push_back(m_file.size());
            for (std::size_t call = 0; call < CALLS; ++call)
            {
                AppendFiller(random);
                std::size_t const callee = random() % m_shape.functions;
                AppendCall(m_functions.empty() ? 0 : m_functions[callee]);
                AppendStringUse(m_stringsAt + (random() % m_shape.functions) * STRING_BYTES);
            }
        }
        m_functions = functions;
    }

    void AppendFiller(std::mt19937& random)
    {
        if (m_shape.processor == Processor::X86)
        {
            // mov $number, %eax; push; pop
            m_file.push_back(0xB8);
            Append(m_file, static_cast<std::uint16_t>(random()));
            Append(m_file, std::uint16_t(0));
            m_file.insert(m_file.end(), {0x50, 0x58});
            return;
        }
        Append(m_file, static_cast<std::uint32_t>(0x52800000 | (random() & 0xFFFF) << 5)); // mov w0, number
    }

    void AppendCall(std::size_t callee)
    {
        if (m_shape.processor == Processor::X86)
        {
            m_file.push_back(0xE8);
            Append(m_file, static_cast<std::uint32_t>(callee - m_file.size() - 4));
            return;
        }
        auto const words = static_cast<std::uint32_t>((callee - m_file.size()) >> 2);
        Append(m_file, std::uint32_t(0x94000000 | (words & 0x3FFFFFF)));
    }

    void AppendStringUse(std::size_t string)
    {
        if (m_shape.processor == Processor::X86)
        {
            m_file.insert(m_file.end(), {0x48, 0x8D, 0x3D}); // lea string(%rip), %rdi
            Append(m_file, static_cast<std::uint32_t>(string - m_file.size() - 4));
            return;
        }
        std::uint64_t const target = AddressOf(string);
        auto const pages = static_cast<std::uint32_t>((target >> 12) - (AddressOf(m_file.size()) >> 12));
        Append(m_file, std::uint32_t(0x90000000 | (pages & 3) << 29 | (pages >> 2 & 0x7FFFF) << 5)); // adrp x0
        Append(m_file, static_cast<std::uint32_t>(0x91000000 | (target & 0xFFF) << 10));             // add x0, x0, low
    }

    void AppendStrings()
    {
        std::mt19937 random(8);
        std::size_t const begin = m_file.size();
        for (std::size_t i = 0; i < m_shape.functions * STRING_BYTES; ++i)
        {
            m_file.push_back(static_cast<std::uint8_t>('a' + random() % 26));
        }
        m_sections.push_back({".rodata", SHT_PROGBITS, SHF_ALLOC, begin, m_file.size()});
    }

    void AppendTables()
    {
        Align();
        std::size_t begin = m_file.size();
        for (std::size_t i = 0; i < m_shape.functions; ++i)
        {
            std::uint64_t const type = m_shape.processor == Processor::X86 ? R_X86_64_RELATIVE : R_AARCH64_RELATIVE;
            Append(m_file, Elf64_Rela{AddressOf(m_stringsAt + 0x10000 + i * 8), type,
                                      static_cast<Elf64_Sxword>(AddressOf(m_functions[i]))});
        }
        m_sections.push_back({".rela.dyn", SHT_RELA, SHF_ALLOC, begin, m_file.size()});
        begin = m_file.size();
        for (std::size_t i = 0; i < m_shape.functions; ++i)
        {
            Append(m_file, Elf64_Sym{std::uint32_t(i), 0x12, 0, 1, AddressOf(m_functions[i]), 60});
        }
        m_sections.push_back({".dynsym", SHT_DYNSYM, SHF_ALLOC, begin, m_file.size()});
        begin = m_file.size();
        m_file.resize(begin + 12);
        for (std::size_t i = 0; i < m_shape.functions; ++i)
        {
            Append(m_file, static_cast<std::uint32_t>(m_functions[i] - begin));
            Append(m_file, static_cast<std::uint32_t>(i * 16));
        }
        m_sections.push_back({".eh_frame_hdr", SHT_PROGBITS, SHF_ALLOC, begin, m_file.size()});
        begin = m_file.size();
        Append(m_file, std::uint32_t(12));
        m_file.resize(begin + 16);
        for (std::size_t i = 0; i < m_shape.functions; ++i)
        {
            Append(m_file, std::uint32_t(16));
            Append(m_file, static_cast<std::uint32_t>(m_file.size() - begin));
            Append(m_file, static_cast<std::uint32_t>(m_functions[i] - m_file.size()));
            Append(m_file, std::uint64_t(60));
        }
        m_sections.push_back({".eh_frame", SHT_PROGBITS, SHF_ALLOC, begin, m_file.size()});
    }

    void AppendSections()
    {
        Align();
        m_loadedEnd = m_file.size();
        std::string names(1, '\0');
        std::vector<Elf64_Shdr> headers(1);
        m_sections.push_back({".shstrtab", SHT_STRTAB, 0, 0, 0});
        for (Section const& section : m_sections)
        {
            Elf64_Shdr header{};
            header.sh_name = static_cast<std::uint32_t>(names.size());
            header.sh_type = section.type;
            header.sh_flags = section.flags;
            header.sh_addr = AddressOf(section.begin);
            header.sh_offset = section.begin;
            header.sh_size = section.end - section.begin;
            headers.push_back(header);
            names += section.name;
            names += '\0';
        }
        headers.back().sh_offset = m_file.size();
        headers.back().sh_size = names.size();
        m_file.insert(m_file.end(), names.begin(), names.end());
        Align();
        m_headersAt = m_file.size();
        m_headerCount = headers.size();
        for (Elf64_Shdr const& header : headers)
        {
            Append(m_file, header);
        }
    }

    void PutHeaders()
    {
        Elf64_Ehdr header{};
        std::memcpy(header.e_ident, ELFMAG, SELFMAG);
        header.e_ident[EI_CLASS] = ELFCLASS64;
        header.e_ident[EI_DATA] = ELFDATA2LSB;
        header.e_type = ET_DYN;
        header.e_machine = m_shape.processor == Processor::X86 ? EM_X86_64 : EM_AARCH64;
        header.e_phoff = sizeof header;
        header.e_phnum = 2;
        header.e_phentsize = sizeof(Elf64_Phdr);
        header.e_shoff = m_headersAt;
        header.e_shnum = static_cast<std::uint16_t>(m_headerCount);
        header.e_shentsize = sizeof(Elf64_Shdr);
        header.e_shstrndx = static_cast<std::uint16_t>(m_headerCount - 1);
        Put(m_file, 0, header);
        Elf64_Phdr segment{};
        segment.p_type = PT_LOAD;
        segment.p_flags = PF_R | PF_X;
        segment.p_vaddr = m_shape.loadedAt;
        segment.p_filesz = m_stringsAt;
        segment.p_memsz = m_stringsAt;
        Put(m_file, sizeof header, segment);
        segment.p_flags = PF_R;
        segment.p_offset = m_stringsAt;
        segment.p_vaddr = AddressOf(m_stringsAt);
        segment.p_filesz = m_loadedEnd - m_stringsAt;
        segment.p_memsz = segment.p_filesz + 0x20000;
        Put(m_file, sizeof header + sizeof segment, segment);
    }

    ProgramShape m_shape;
    ByteBuffer m_file;
    std::vector<std::size_t> m_functions;
    std::vector<Section> m_sections;
    std::size_t m_stringsAt = 0;
    std::size_t m_loadedEnd = 0;
    std::size_t m_headersAt = 0;
    std::size_t m_headerCount = 0;
};

} // namespace

ByteBuffer ForgeProgram(ProgramShape const& shape)
{
    return Forge(shape).Make();
}

} // namespace Pelnar::Testing
