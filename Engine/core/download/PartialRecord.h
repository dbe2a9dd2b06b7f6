// PartialRecord.h: what is known of a partial archive beside its bytes, as the small file that stands beside it;
// docs/formats/partial-download.md.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/download/DownloadBudget.h"
#include "Engine/core/download/ResumeDecision.h"

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
    std::uint64_t fileNumber = 0;   ///< of the archive's file on its file system: no other file is meant
    std::string systemStart;        ///< of the run of the system in which the file was written
    std::uint64_t durableBytes = 0; ///< on the disk no matter what happens
    Validators validators;
    DownloadSpending spent = {}; ///< by all downloads of the archive

    friend bool operator==(PartialRecord const& a, PartialRecord const& b)
    {
        return a.url == b.url && a.declaredBytes == b.declaredBytes && a.fileNumber == b.fileNumber &&
               a.systemStart == b.systemStart && a.durableBytes == b.durableBytes &&
               a.validators.entityTag == b.validators.entityTag &&
               a.validators.lastModified == b.validators.lastModified && a.spent == b.spent;
    }
};

std::string EncodePartialRecord(PartialRecord const& record);
/// Nothing for bytes that are no record.
std::optional<PartialRecord> DecodePartialRecord(std::string_view bytes);

/// The partial file as it is found on the disk.
struct FoundFile
{
    std::uint64_t bytes = 0;
    std::uint64_t fileNumber = 0;
    std::string systemStart; ///< of the present run of the system; empty when it cannot be told
};

/// How many bytes of \a file are surely the archive's of which \a record tells: all of them within one run of the
/// system, since what a killed program wrote is not lost; after that, what was made durable. \a url and
/// \a declaredBytes are those that are wanted.
std::uint64_t TrustedBytes(PartialRecord const& record, FoundFile const& file, std::string const& url,
                           std::uint64_t declaredBytes);

} // namespace Pelnar::Engine
