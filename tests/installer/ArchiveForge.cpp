#include "tests/installer/ArchiveForge.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

constexpr std::uint32_t IN_EXTRA = 0xffffffff;

void Append(std::string& bytes, std::uint64_t number, int size)
{
    for (int i = 0; i < size; ++i)
    {
        bytes += static_cast<char>(number >> (8 * i) & 0xff);
    }
}

std::uint32_t Checksum(std::string const& bytes)
{
    std::uint32_t sum = 0xffffffff;
    for (char const character : bytes)
    {
        sum ^= static_cast<std::uint8_t>(character);
        for (int bit = 0; bit < 8; ++bit)
        {
            sum = sum >> 1 ^ (0xedb88320 & (0 - (sum & 1)));
        }
    }
    return ~sum;
}

mode_t FileKind(char type)
{
    switch (type)
    {
    case 'd':
        return S_IFDIR;
    case 'l':
        return S_IFLNK;
    case 'p':
        return S_IFIFO;
    case 'c':
        return S_IFCHR;
    case 'b':
        return S_IFBLK;
    }
    return S_IFREG;
}

std::string Zip64Extra(std::vector<std::uint64_t> const& numbers)
{
    std::string extra;
    Append(extra, 1, 2);
    Append(extra, numbers.size() * 8, 2);
    for (std::uint64_t const number : numbers)
    {
        Append(extra, number, 8);
    }
    return extra;
}

std::string UnicodeNameExtra(std::optional<std::string> const& unicodeName, std::string const& name)
{
    if (!unicodeName)
    {
        return {};
    }
    std::string extra;
    Append(extra, 0x7075, 2);
    Append(extra, unicodeName->size() + 5, 2);
    Append(extra, 1, 1);
    Append(extra, Checksum(name), 4);
    return extra + *unicodeName;
}

std::string LocalEntry(ForgedEntry const& entry)
{
    bool const isLater = entry.descriptorBytes != 0;
    std::uint32_t const checksum = Checksum(entry.content);
    auto const size = static_cast<std::uint32_t>(entry.content.size());
    std::uint32_t const headerSize = entry.isZip64 ? IN_EXTRA : isLater ? 0 : entry.localSize.value_or(size);
    std::string const name = entry.localName.value_or(entry.path);
    std::string const extra =
        (entry.isZip64 ? Zip64Extra({size, size}) : std::string()) +
        UnicodeNameExtra(entry.localUnicodeName ? entry.localUnicodeName : entry.unicodeName, name);
    std::string bytes = "PK\3\4";
    Append(bytes, 20, 2);
    Append(bytes, entry.localFlags.value_or(static_cast<std::uint16_t>(entry.flags | (isLater ? 8 : 0))), 2);
    Append(bytes, entry.localMethod.value_or(entry.method), 2);
    Append(bytes, 0x58210000, 4);
    Append(bytes, isLater && !entry.isZip64 ? 0 : entry.localChecksum.value_or(checksum), 4);
    Append(bytes, headerSize, 4);
    Append(bytes, headerSize, 4);
    Append(bytes, name.size(), 2);
    Append(bytes, extra.size(), 2);
    bytes += name + extra + entry.content;
    if (isLater)
    {
        if (entry.descriptorBytes == 16 || entry.descriptorBytes == 24)
        {
            Append(bytes, 0x08074b50, 4);
        }
        int const width = entry.descriptorBytes >= 20 ? 8 : 4;
        Append(bytes, checksum, 4);
        Append(bytes, size + (entry.isDescriptorWrong ? 1 : 0), width);
        Append(bytes, size, width);
    }
    return bytes;
}

std::string CentralEntry(ForgedEntry const& entry, std::size_t offset)
{
    auto const size = static_cast<std::uint32_t>(entry.content.size());
    std::string const extra = (entry.isZip64 ? Zip64Extra({size, size, offset}) : std::string()) +
                              UnicodeNameExtra(entry.unicodeName, entry.path);
    std::string bytes = "PK\1\2";
    Append(bytes, 3u << 8 | 20u, 2); // made by Unix: the mode below counts
    Append(bytes, 20, 2);
    Append(bytes, entry.flags | (entry.descriptorBytes != 0 ? 8u : 0u), 2);
    Append(bytes, entry.method, 2);
    Append(bytes, 0x58210000, 4);
    Append(bytes, Checksum(entry.content), 4);
    Append(bytes, entry.isZip64 ? IN_EXTRA : size, 4);
    Append(bytes, entry.isZip64 ? IN_EXTRA : size, 4);
    Append(bytes, entry.path.size(), 2);
    Append(bytes, extra.size(), 2);
    Append(bytes, 0, 2);
    Append(bytes, 0, 2);
    Append(bytes, 0, 2);
    Append(bytes, static_cast<std::uint64_t>(FileKind(entry.type) | entry.mode) << 16, 4);
    Append(bytes, entry.isZip64 ? IN_EXTRA : offset, 4);
    return bytes + entry.path + extra;
}

void PutOctal(std::string& header, std::size_t place, int digits, std::uint64_t number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%0*llo", digits, static_cast<unsigned long long>(number));
    header.replace(place, static_cast<std::size_t>(digits), text);
}

std::string TarHeader(std::string const& name, char flag, std::uint32_t mode, std::uint64_t size,
                      std::string const& link)
{
    std::string header(512, '\0');
    header.replace(0, std::min<std::size_t>(name.size(), 100), name.substr(0, 100));
    PutOctal(header, 100, 7, mode);
    PutOctal(header, 108, 7, 1234);
    PutOctal(header, 116, 7, 1234);
    PutOctal(header, 124, 11, size);
    PutOctal(header, 136, 11, 1600000000);
    header[156] = flag;
    header.replace(157, std::min<std::size_t>(link.size(), 100), link.substr(0, 100));
    bool const isGnu = flag == 'S' || flag == 'L' || flag == 'K';
    header.replace(257, 8, isGnu ? std::string("ustar  \0", 8) : std::string("ustar\00000", 8));
    return header;
}

std::string WithChecksum(std::string header)
{
    header.replace(148, 8, "        ");
    unsigned sum = 0;
    for (char const character : header)
    {
        sum += static_cast<std::uint8_t>(character);
    }
    PutOctal(header, 148, 6, sum);
    header[154] = '\0';
    return header;
}

std::string Padded(std::string bytes)
{
    bytes.resize((bytes.size() + 511) / 512 * 512);
    return bytes;
}

/// "LENGTH KEY=VALUE
/// ". LENGTH counts the whole line.
std::string PaxRecord(std::string const& key, std::string const& value)
{
    std::string const rest = ' ' + key + '=' + value + '\n';
    std::size_t length = rest.size() + 1;
    while (std::to_string(length).size() + rest.size() != length)
    {
        ++length;
    }
    return std::to_string(length) + rest;
}

char TarFlag(char type)
{
    switch (type)
    {
    case 'd':
        return '5';
    case 'l':
        return '2';
    case 'h':
        return '1';
    case 'p':
        return '6';
    case 'c':
        return '3';
    case 'b':
        return '4';
    case 's':
        return 'S';
    }
    return '0';
}

struct Writer
{
    Writer() : handle(archive_write_new()) {}
    ~Writer() { archive_write_free(handle); }
    Writer(Writer const&) = delete;
    Writer& operator=(Writer const&) = delete;

    void Check(int result)
    {
        if (result != ARCHIVE_OK)
        {
            throw std::runtime_error(archive_error_string(handle));
        }
    }
    static la_ssize_t Take(archive*, void* target, void const* bytes, std::size_t size)
    {
        static_cast<std::string*>(target)->append(static_cast<char const*>(bytes), size);
        return static_cast<la_ssize_t>(size);
    }
    void Add(ForgedEntry const& forged)
    {
        archive_entry* const entry = archive_entry_new();
        archive_entry_set_pathname(entry, forged.path.c_str());
        archive_entry_set_filetype(entry, FileKind(forged.type));
        archive_entry_set_perm(entry, forged.mode);
        archive_entry_set_mtime(entry, 1600000000, 0);
        archive_entry_set_size(entry, forged.type == 'f' ? static_cast<la_int64_t>(forged.content.size()) : 0);
        if (forged.type == 'l')
        {
            archive_entry_set_symlink(entry, forged.content.c_str());
        }
        int const result = archive_write_header(handle, entry);
        archive_entry_free(entry);
        Check(result);
        if (forged.type == 'f' && !forged.content.empty())
        {
            archive_write_data(handle, forged.content.data(), forged.content.size());
        }
    }

    archive* handle;
};

} // namespace

std::string MakeZip(std::vector<ForgedEntry> const& entries, ZipOptions const& options)
{
    std::string bytes = options.prefix;
    std::string directory;
    std::size_t count = 0;
    for (ForgedEntry const& entry : entries)
    {
        bytes += entry.gapBefore;
        std::size_t const offset = bytes.size();
        bytes += LocalEntry(entry);
        directory += CentralEntry(entry, offset);
        ++count;
        if (options.isLastRecordTwice && count == entries.size())
        {
            directory += CentralEntry(entry, offset);
            ++count;
        }
    }
    std::size_t const offset = bytes.size();
    bytes += directory;
    std::size_t const said = count + static_cast<std::size_t>(options.countError);
    if (options.isZip64)
    {
        std::size_t const end = bytes.size();
        bytes += "PK\6\6";
        Append(bytes, 44, 8);
        Append(bytes, 45, 2);
        Append(bytes, 45, 2);
        Append(bytes, 0, 8);
        Append(bytes, said, 8);
        Append(bytes, said, 8);
        Append(bytes, directory.size(), 8);
        Append(bytes, offset, 8);
        bytes += "PK\6\7";
        Append(bytes, 0, 4);
        Append(bytes, end, 8);
        Append(bytes, 1, 4);
    }
    bytes += "PK\5\6";
    Append(bytes, 0, 4);
    Append(bytes, options.isZip64 ? 0xffff : said, 2);
    Append(bytes, options.isZip64 ? 0xffff : said, 2);
    Append(bytes, options.isZip64 ? IN_EXTRA : directory.size(), 4);
    Append(bytes, options.isZip64 ? IN_EXTRA : offset, 4);
    Append(bytes, options.comment.size(), 2);
    return bytes + options.comment + options.suffix;
}

std::string MakeTar(std::vector<ForgedEntry> const& entries)
{
    std::string bytes;
    for (ForgedEntry const& entry : entries)
    {
        bool const isLink = entry.type == 'l' || entry.type == 'h';
        bool const hasContent = entry.type == 'f' || entry.type == 's';
        std::string records = entry.isPax ? PaxRecord("path", entry.path) +
                                                (isLink ? PaxRecord("linkpath", entry.content) : std::string())
                                          : std::string();
        for (auto const& [key, value] : entry.paxRecords)
        {
            records += PaxRecord(key, value);
        }
        if (!records.empty())
        {
            bytes += WithChecksum(TarHeader("PaxHeader", 'x', 0644, records.size(), {})) + Padded(records);
        }
        if (!entry.isPax && entry.path.size() > 100)
        {
            std::string const name = entry.path + '\0';
            bytes += WithChecksum(TarHeader("././@LongLink", 'L', 0, name.size(), {})) + Padded(name);
        }
        if (!entry.isPax && isLink && entry.content.size() > 100)
        {
            std::string const target = entry.content + '\0';
            bytes += WithChecksum(TarHeader("././@LongLink", 'K', 0, target.size(), {})) + Padded(target);
        }
        std::string header = TarHeader(entry.path, TarFlag(entry.type), entry.mode,
                                       hasContent ? entry.content.size() : 0, isLink ? entry.content : std::string());
        if (entry.type == 's')
        {
            // One piece of data behind a hole of 1 MiB.
            PutOctal(header, 386, 11, 1 << 20);
            PutOctal(header, 398, 11, entry.content.size());
            PutOctal(header, 483, 11, (1 << 20) + entry.content.size());
        }
        bytes += WithChecksum(header) + (hasContent ? Padded(entry.content) : std::string());
    }
    return bytes + std::string(1024, '\0');
}

std::string Compress(Container container, std::string const& bytes)
{
    std::string result;
    Writer writer;
    writer.Check(archive_write_set_format_raw(writer.handle));
    switch (container)
    {
    case Container::TarGzip:
        writer.Check(archive_write_add_filter_gzip(writer.handle));
        break;
    case Container::TarBzip2:
        writer.Check(archive_write_add_filter_bzip2(writer.handle));
        break;
    case Container::TarXz:
        writer.Check(archive_write_add_filter_xz(writer.handle));
        break;
    case Container::TarZstandard:
        writer.Check(archive_write_add_filter_zstd(writer.handle));
        break;
    case Container::Zip:
        return bytes;
    }
    writer.Check(archive_write_set_bytes_in_last_block(writer.handle, 1));
    writer.Check(archive_write_open(writer.handle, &result, nullptr, &Writer::Take, nullptr));
    writer.Add({"bytes", 'f', bytes});
    writer.Check(archive_write_close(writer.handle));
    return result;
}

std::string MakeArchive(Container container, std::vector<ForgedEntry> const& entries)
{
    return container == Container::Zip ? MakeZip(entries) : Compress(container, MakeTar(entries));
}

std::string MakeDeflatedZip(std::vector<ForgedEntry> const& entries)
{
    std::string result;
    Writer writer;
    writer.Check(archive_write_set_format_zip(writer.handle));
    writer.Check(archive_write_set_bytes_in_last_block(writer.handle, 1));
    writer.Check(archive_write_zip_set_compression_deflate(writer.handle));
    writer.Check(archive_write_open(writer.handle, &result, nullptr, &Writer::Take, nullptr));
    for (ForgedEntry const& entry : entries)
    {
        writer.Add(entry);
    }
    writer.Check(archive_write_close(writer.handle));
    return result;
}

} // namespace Pelnar::Testing
