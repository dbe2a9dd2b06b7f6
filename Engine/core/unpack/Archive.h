// Archive.h: one pass over the entries of an update archive: a zip, or a tar under gzip, bzip2, xz or Zstandard.
// Thread: one at a time. Ownership: the archive's descriptor stays the caller's; its read position is not used.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/payload/ArchiveEntryPolicy.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <time.h>

struct archive;
struct archive_entry;

namespace Pelnar::Engine
{

/// What an archive's first bytes say that it is.
enum class ContainerKind
{
    Zip,
    TarGzip,
    TarBzip2,
    TarXz,
    TarZstandard,
};

/// Throws UpdateRefusal: ContainerUnknown.
ContainerKind DetectContainer(int descriptor);

class Archive
{
public:
    /// Throws UpdateRefusal: ContainerUnknown, ArchiveUnreadable.
    explicit Archive(int descriptor);
    ~Archive();
    Archive(Archive const&) = delete;
    Archive& operator=(Archive const&) = delete;

    /// The next entry; nothing after the last. Throws UpdateRefusal: ContainerDamaged for whatever the reader finds
    /// wrong or only odd.
    std::optional<ArchiveEntry> Next();
    /// The entry's time of last change, if it has one.
    std::optional<timespec> ModificationTime() const;
    /// Hands the contents of the entry to \a sink in pieces, in order. Throws UpdateRefusal: ContainerDamaged when they
    /// are not exactly \a size bytes.
    void ReadContents(std::uint64_t size, std::function<void(Bytes)> const& sink);

private:
    struct Source;
    struct Reader;

    std::unique_ptr<Source> m_source;
    std::unique_ptr<Reader> m_reader;
    archive_entry* m_entry = nullptr; // the reader's
};

} // namespace Pelnar::Engine
