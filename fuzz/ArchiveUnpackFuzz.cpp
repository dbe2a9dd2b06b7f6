// ArchiveUnpackFuzz.cpp: unpacks any bytes as an archive into a folder in memory. Nothing is created outside that
// folder, even by a refused archive. An accepted archive gives exactly the reported tree. If the first byte says so,
// the rest is a tar that is compressed with gzip first, so that mutations reach the entries.

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/archive/UnpackArchive.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/faults/UpdateFault.h"
#include "tests/installer/ArchiveForge.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;

constexpr std::uint64_t MAX_TREE_BYTES = std::uint64_t{64} << 20;

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

/// This process's own folder, removed at its end, with the staging folder and a decoy.
class Place
{
public:
    Place() : m_path("/dev/shm/pelnar-fuzz-XXXXXX")
    {
        Require(::mkdtemp(m_path.data()) != nullptr);
        m_folder = UniqueFd(::open(m_path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        Require(::mkdirat(m_folder.Get(), "decoy", 0755) == 0);
        m_decoy = TreeOf("decoy");
    }
    ~Place() { static_cast<void>(RemoveTree(AT_FDCWD, m_path)); }
    Place(Place const&) = delete;
    Place& operator=(Place const&) = delete;

    int Descriptor() const { return m_folder.Get(); }
    UniqueFd Open(std::string const& name) const
    {
        return UniqueFd(::openat(m_folder.Get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    }
    void RequireUntouched() const
    {
        Require(TreeOf("decoy") == m_decoy);
        int names = 0;
        Require(WalkTree(m_folder.Get(), [&names](std::string const& path, int, std::string const&, struct stat const&)
                         { names += path.find('/') == std::string::npos ? 1 : 0; }));
        Require(names == 2);
    }

private:
    ContentHash TreeOf(std::string const& name) const { return DigestTree(Open(name).Get()); }

    std::string m_path;
    UniqueFd m_folder;
    ContentHash m_decoy{};
};

/// The input in a file in memory.
UniqueFd FileOf(std::uint8_t const* data, std::size_t size)
{
    UniqueFd file(::memfd_create("archive", MFD_CLOEXEC));
    std::string bytes(reinterpret_cast<char const*>(data), size);
    if (size > 0 && bytes[0] == 't')
    {
        bytes = Pelnar::Testing::Compress(Pelnar::Testing::Container::TarGzip, bytes.substr(1));
    }
    else
    {
        bytes.erase(0, 1);
    }
    Require(WriteAll(file.Get(), Bytes(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size())));
    return file;
}

/// Thrown for content that is allowed but would fill this machine's memory.
struct TooLarge
{
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static Place const place;
    Require(::mkdirat(place.Descriptor(), "staging", 0700) == 0);
    {
        UniqueFd const archive = FileOf(data, size);
        UniqueFd const staging = place.Open("staging");
        try
        {
            UnpackedBundle const bundle = UnpackArchive(archive.Get(), staging.Get(),
                                                        [](std::uint64_t done, std::uint64_t total)
                                                        {
                                                            Require(done <= total);
                                                            if (total > MAX_TREE_BYTES)
                                                            {
                                                                throw TooLarge();
                                                            }
                                                        });
            UniqueFd const tree(::openat(staging.Get(), bundle.name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW));
            Require(tree && DigestTree(tree.Get()) == bundle.digest);
        }
        catch (UpdateRefusal const&)
        {
        }
        catch (TooLarge const&)
        {
        }
    }
    place.RequireUntouched();
    Require(RemoveTree(place.Descriptor(), "staging"));
    return 0;
}
