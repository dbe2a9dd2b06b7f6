#include "Publisher/gate/ProgramFile.h"

#include "Engine/core/base/TreeAccess.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include <elf.h>
#include <sys/stat.h>

namespace Pelnar::Publisher
{
namespace
{

/// The part of a script in which the system looks for the interpreter.
constexpr std::size_t FIRST_LINE_BYTES = 256;

std::uint64_t EndOf(std::uint64_t offset, std::uint64_t size)
{
    constexpr std::uint64_t MOST = std::numeric_limits<std::uint64_t>::max();
    return size > MOST - offset ? MOST : offset + size;
}

/// One file of one word class.
template <class Header, class Segment>
class ElfFile
{
public:
    explicit ElfFile(int file) : m_file(file) {}

    /// The greatest end of a part that the headers name; 0 for a file without a whole header.
    std::uint64_t NamedEnd()
    {
        Header header;
        if (!Read(0, header))
        {
            return 0;
        }
        m_isBigEndian = header.e_ident[EI_DATA] == ELFDATA2MSB;
        std::uint64_t const segments = Number(header.e_phoff);
        std::uint64_t const segmentCount = Number(header.e_phnum);
        std::uint64_t const sections = Number(header.e_shoff);
        std::uint64_t end = sizeof header;
        if (segmentCount != 0)
        {
            end = std::max(end, EndOf(segments, segmentCount * Number(header.e_phentsize)));
        }
        if (sections != 0)
        {
            end = std::max(end, EndOf(sections, Number(header.e_shnum) * Number(header.e_shentsize)));
        }
        for (std::uint64_t index = 0; index < segmentCount; ++index)
        {
            Segment segment;
            if (!Read(EndOf(segments, index * Number(header.e_phentsize)), segment))
            {
                break; // the table's own end says so
            }
            if (Number(segment.p_type) == PT_LOAD)
            {
                end = std::max(end, EndOf(Number(segment.p_offset), Number(segment.p_filesz)));
            }
        }
        return end;
    }

private:
    template <class Part>
    bool Read(std::uint64_t offset, Part& part) const
    {
        return offset <= std::uint64_t(std::numeric_limits<off_t>::max()) &&
               Engine::ReadUpTo(m_file, offset, &part, sizeof part) == ssize_t(sizeof part);
    }

    template <class Field>
    std::uint64_t Number(Field const& field) const
    {
        unsigned char bytes[sizeof field];
        std::memcpy(bytes, &field, sizeof field);
        if (!m_isBigEndian)
        {
            std::reverse(std::begin(bytes), std::end(bytes));
        }
        std::uint64_t number = 0;
        for (unsigned char const byte : bytes)
        {
            number = number << 8 | byte;
        }
        return number;
    }

    int m_file;
    bool m_isBigEndian = false;
};

std::uint64_t NamedEndOf(int file, unsigned char wordClass)
{
    return wordClass == ELFCLASS32 ? ElfFile<Elf32_Ehdr, Elf32_Phdr>(file).NamedEnd()
                                   : ElfFile<Elf64_Ehdr, Elf64_Phdr>(file).NamedEnd();
}

} // namespace

void CheckProgramFile(BundleTree const& bundle, GatedVersion const& version, RefusalList& refusals)
{
    std::string const folder = bundle.Platform() == Engine::FeedPlatform::MacOS ? "Contents/MacOS/" : "";
    std::string const path = folder + bundle.Information().executable;
    Engine::UniqueFd const file = Engine::TreeAccess(bundle.Descriptor()).OpenFile(path);
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    {
        return;
    }
    QString const entry = QString::fromStdString(bundle.Name() + '/' + path);
    std::string const start = Engine::ReadStart(file.Get(), FIRST_LINE_BYTES).value_or(std::string());
    std::string const firstLine = start.substr(0, start.find('\n'));
    if (firstLine.compare(0, 2, "#!") == 0 && firstLine.find('\r') != std::string::npos)
    {
        refusals.Add(
            {version.path,
             u"the program's first line ends with a carriage return, so the system does not find its interpreter: \"%1\""_s
                 .arg(entry),
             u"save the script with the line ends of Linux"_s});
    }
    auto const size = static_cast<std::uint64_t>(status.st_size);
    bool const isElf = start.size() > EI_CLASS && start.compare(0, SELFMAG, ELFMAG) == 0;
    if (isElf && NamedEndOf(file.Get(), static_cast<unsigned char>(start[EI_CLASS])) > size)
    {
        refusals.Add({version.path,
                      u"the program is cut: it has %1 bytes, but its header names parts beyond them: \"%2\""_s.arg(
                          QString::number(size), entry),
                      u"build it again, and check the disk for free space"_s});
    }
}

} // namespace Pelnar::Publisher
