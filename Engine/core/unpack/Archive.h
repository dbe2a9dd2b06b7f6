// Archive.h: one pass over the entries of an update archive: a zip, or a tar under gzip, bzip2, xz or Zstandard.
// Thread: one at a time. Ownership: the archive's descriptor stays the caller's; its read position is not used.
// Names and link targets are the archive's own bytes. No locale has a say in them, so that the helper, which has none,
// and the publisher's tool, which has the user's, read the same.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/payload/ArchiveEntryPolicy.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
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

struct ArchiveContainer
{
    ContainerKind kind = ContainerKind::Zip;
    std::vector<std::string> names; ///< a zip's, in the order of its entries
};

/// What the archive is, and for a zip that it can be read in one way only. Throws UpdateRefusal: ContainerUnknown,
/// ArchiveUnreadable, or what ReadZipStructure() finds.
ArchiveContainer InspectContainer(int descriptor);

class Archive
{
public:
    /// \a container: of that descriptor; it outlives this object. Throws UpdateRefusal: ArchiveUnreadable,
    /// ContainerDamaged.
    Archive(int descriptor, ArchiveContainer const& container);
    ~Archive();
    Archive(Archive const&) = delete;
    Archive& operator=(Archive const&) = delete;

    /// The next entry; nothing after the last. Throws UpdateRefusal: ContainerDamaged for everything that the reader
    /// finds wrong or only odd, ContainerAmbiguous when it reads another entry than the container names.
    std::optional<ArchiveEntry> Next();
    /// The entry's time of last change, if it has one.
    std::optional<timespec> ModificationTime() const;
    /// Hands the contents of the entry to \a sink in pieces, in order. Throws UpdateRefusal: ContainerDamaged when they
    /// are not exactly \a size bytes.
    void ReadContents(std::uint64_t size, std::function<void(Bytes)> const& sink);

private:
    struct Source;
    struct Reader;

    [[noreturn]] void ThrowReadFault() const;
    void TakeNameOfZipEntry(ArchiveEntry& entry);

    ArchiveContainer const& m_container;
    std::size_t m_entries = 0; ///< read so far
    std::unique_ptr<Source> m_source;
    std::unique_ptr<Reader> m_reader;
    archive_entry* m_entry = nullptr; // the reader's
};

} // namespace Pelnar::Engine
