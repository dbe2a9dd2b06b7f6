// Archive.h: one pass over the entries of an update archive: a zip, or a tar in gzip, bzip2, xz or Zstandard.
// Thread: one at a time. Ownership: the caller owns the archive's descriptor; its read position is not used. Names and
// link targets are the archive's own bytes, independent of any locale. So the helper, which has no locale, and the
// publisher's tool, which has the user's, read the same names.
#pragma once

#include "Engine/core/archive/ArchiveEntryRules.h"
#include "Engine/core/base/Bytes.h"

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

/// The kind of archive, from its first bytes.
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
    std::vector<std::string> names; ///< for a zip, in the order of its entries
};

/// Finds the kind of the archive, and checks that a zip can be read in only one way. Throws UpdateRefusal:
/// ContainerUnknown, ArchiveUnreadable, or a fault of ReadZipStructure().
ArchiveContainer InspectContainer(int descriptor);

class Archive
{
public:
    /// \a container belongs to that descriptor and outlives this object. Throws UpdateRefusal: ArchiveUnreadable,
    /// ContainerDamaged.
    Archive(int descriptor, ArchiveContainer const& container);
    ~Archive();
    Archive(Archive const&) = delete;
    Archive& operator=(Archive const&) = delete;

    /// The next entry; empty after the last. Throws UpdateRefusal: ContainerDamaged for every error or warning of the
    /// reader, ContainerAmbiguous if it reads another entry than the container names.
    std::optional<ArchiveEntry> Next();
    /// The entry's modification time, if it has one.
    std::optional<timespec> ModificationTime() const;
    /// Passes the contents of the entry to \a sink in pieces, in order. Throws UpdateRefusal: ContainerDamaged if they
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
    archive_entry* m_entry = nullptr; // owned by the reader
};

} // namespace Pelnar::Engine
