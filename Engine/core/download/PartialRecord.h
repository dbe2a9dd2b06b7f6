// PartialRecord.h: the record of a partial archive, a small file next to it; docs/formats/partial-download.md. Pure
// functions.
#pragma once

#include "Engine/core/download/DownloadBudget.h"
#include "Engine/core/download/ResumeRules.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

constexpr std::size_t MAX_PARTIAL_RECORD_BYTES = 16 * 1024;

struct PartialRecord
{
    std::string url; ///< without user name and password
    std::uint64_t declaredBytes = 0;
    std::uint64_t fileNumber = 0;   ///< inode number of the archive's file: the record is about no other file
    std::string systemStart;        ///< the boot in which the file was written
    std::uint64_t durableBytes = 0; ///< on the disk even after a power failure
    Validators validators;
    DownloadSpending spent = {}; ///< by all downloads of the archive
};

std::string EncodePartialRecord(PartialRecord record);
/// Empty for bytes that are not a record.
std::optional<PartialRecord> DecodePartialRecord(std::string_view bytes);

/// The partial file as found on the disk.
struct FoundFile
{
    std::uint64_t bytes = 0;
    std::uint64_t fileNumber = 0;
    std::string systemStart; ///< the current boot; empty if it cannot be read
};

/// How many bytes of \a file certainly belong to the archive of \a record: all of them within one boot, because what a
/// killed program wrote is not lost; after that only the durable ones. \a url and \a declaredBytes belong to the wanted
/// archive.
std::uint64_t TrustedBytes(PartialRecord const& record, FoundFile const& file, std::string const& url,
                           std::uint64_t declaredBytes);

} // namespace Pelnar::Engine
