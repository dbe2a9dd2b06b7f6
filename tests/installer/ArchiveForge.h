// ArchiveForge.h: writes zip and tar archives byte by byte, valid and invalid ones.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Pelnar::Testing
{

struct ForgedEntry
{
    std::string path;
    char type = 'f';     ///< f file, d folder, l symbolic link, h hard link, p FIFO, c and b devices, s sparse file
    std::string content; ///< or the link's target
    std::uint32_t mode = 0644;

    // Zip only: false statements and oddities.
    std::optional<std::string> localName = {};
    std::optional<std::uint16_t> localMethod = {};
    std::optional<std::uint16_t> localFlags = {};
    std::optional<std::uint32_t> localChecksum = {};
    std::optional<std::uint32_t> localSize = {};
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    int descriptorBytes = 0; ///< 12, 16, 20 or 24: sizes behind the data
    bool isDescriptorWrong = false;
    bool isZip64 = false;
    std::string gapBefore = {};
    std::optional<std::string> unicodeName = {};      ///< the extra field with the name in UTF-8
    std::optional<std::string> localUnicodeName = {}; ///< of the local header, if it is different

    // Tar only.
    bool isPax = false; ///< name and target are in a pax header
    std::vector<std::pair<std::string, std::string>> paxRecords = {};
};

struct ZipOptions
{
    std::string prefix = {};
    std::string suffix = {};
    std::string comment = {};
    int countError = 0;
    bool isZip64 = false;
    bool isLastRecordTwice = false; ///< two central records for one local entry
};

std::string MakeZip(std::vector<ForgedEntry> const& entries, ZipOptions const& options = {});
std::string MakeTar(std::vector<ForgedEntry> const& entries);

enum class Container
{
    Zip,
    TarGzip,
    TarBzip2,
    TarXz,
    TarZstandard,
};

/// The entries in that container; a zip is stored without compression.
std::string MakeArchive(Container container, std::vector<ForgedEntry> const& entries);
/// The bytes under that container's compression.
std::string Compress(Container container, std::string const& bytes);
/// A zip as a common library writes it: deflated.
std::string MakeDeflatedZip(std::vector<ForgedEntry> const& entries);

} // namespace Pelnar::Testing
