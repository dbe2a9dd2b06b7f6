// DeltaMemoryTest.cpp: how much of large old files is in memory while a delta is applied.

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/PatchWriter.h"
#include "Engine/core/delta/ResidentPages.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <elf.h>
#include <fcntl.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace
{

using namespace Pelnar::Engine;
namespace fs = std::filesystem;

constexpr std::uint64_t FILE_BYTES = 128u << 20;
constexpr long MAX_MAPPED_KIBIBYTES = 24 * 1024;

/// What this process has in memory of files.
long MappedKibibytes()
{
    std::ifstream status("/proc/self/status");
    long sum = 0;
    for (std::string word; status >> word;)
    {
        if (word == "RssFile:" || word == "RssShmem:")
        {
            long kibibytes = 0;
            status >> kibibytes;
            sum += kibibytes;
        }
    }
    return sum;
}

/// Watches from another thread how much of files is in memory.
class MappedPeak
{
public:
    MappedPeak() : m_thread([this] { Watch(); }) {}
    ~MappedPeak() { Growth(); }

    /// The most so far, compared with the start. Ends the watching.
    long Growth()
    {
        m_isEnding = true;
        if (m_thread.joinable())
        {
            m_thread.join();
        }
        return m_peak - m_start;
    }

private:
    void Watch()
    {
        while (!m_isEnding)
        {
            m_peak = std::max(m_peak, MappedKibibytes());
            std::this_thread::yield();
        }
    }

    long const m_start = MappedKibibytes();
    long m_peak = 0;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread;
};

/// A program whose code fills the file. It has no address fields.
std::string ProgramHead()
{
    Elf64_Ehdr header{};
    std::memcpy(header.e_ident, ELFMAG, SELFMAG);
    header.e_ident[EI_CLASS] = ELFCLASS64;
    header.e_ident[EI_DATA] = ELFDATA2LSB;
    header.e_type = ET_DYN;
    header.e_machine = EM_X86_64;
    header.e_phoff = sizeof header;
    header.e_phnum = 1;
    header.e_shoff = header.e_phoff + sizeof(Elf64_Phdr);
    header.e_shnum = 1;
    Elf64_Phdr segment{};
    segment.p_type = PT_LOAD;
    segment.p_flags = PF_R | PF_X;
    segment.p_filesz = segment.p_memsz = FILE_BYTES;
    Elf64_Shdr code{};
    code.sh_type = SHT_PROGBITS;
    code.sh_flags = SHF_ALLOC | SHF_EXECINSTR;
    code.sh_offset = 4096;
    code.sh_addr = 4096;
    code.sh_size = FILE_BYTES - 4096;
    std::string head(reinterpret_cast<char const*>(&header), sizeof header);
    head.append(reinterpret_cast<char const*>(&segment), sizeof segment);
    return head.append(reinterpret_cast<char const*>(&code), sizeof code);
}

/// An old version with one large file, and the delta that makes the same file again.
class LargeFile : public testing::Test
{
protected:
    void Make(std::string const& head, std::vector<SpanChange> const& changes)
    {
        ASSERT_TRUE(m_dir.isValid());
        fs::create_directories(Path("old"));
        std::ofstream(Path("old/file"), std::ios::binary) << head;
        fs::resize_file(Path("old/file"), FILE_BYTES);

        UniqueFd const file(::open(Path("old/file").c_str(), O_RDONLY | O_CLOEXEC));
        FileMapping const mapping(file.Get(), FILE_BYTES);
        ASSERT_TRUE(mapping.IsValid());
        PatchWriter writer;
        PlainText old({mapping.Content()});
        writer.StartText();
        writer.Add(old, {{FILE_BYTES, 0, 0}}, mapping.Content());
        std::array<PackedStream, PATCH_STREAMS> const streams = PackStreams(writer.Finish(), DeltaEffort::Low);

        ContentHasher hashes;
        hashes.Add(View(HashOf(mapping.Content())));
        DeltaManifest manifest;
        manifest.format = DeltaFormat::Joined;
        manifest.baseHash = manifest.targetHash = hashes.Finish();
        DeltaEntry entry;
        entry.path = "file";
        entry.kind = DeltaEntryKind::Patched;
        entry.size = FILE_BYTES;
        manifest.entries.push_back(entry);
        manifest.units.push_back({{{"file", FILE_BYTES}}, {0}, changes, 0});
        std::ofstream container(Path("delta"), std::ios::binary);
        for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
        {
            manifest.streams[i] = {streams[i].packing, streams[i].bytes.size()};
        }
        Put(container, EncodeDeltaOpening(manifest));
        for (PackedStream const& stream : streams)
        {
            Put(container, stream.bytes);
        }
    }

    void ExpectThatLittleOfItIsInMemory()
    {
        fs::create_directories(Path("staging"));
        UniqueFd const container(::open(Path("delta").c_str(), O_RDONLY | O_CLOEXEC));
        UniqueFd const old(::open(Path("old").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        UniqueFd const staging(::open(Path("staging").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        ContentHash digest;
        MappedPeak peak;
        DeltaOutcome const outcome = ApplyDelta(container.Get(), old.Get(), staging.Get(), {}, {}, digest);
        EXPECT_EQ(outcome.error, DeltaError::None);
        EXPECT_EQ(fs::file_size(Path("staging/file")), FILE_BYTES);
        long const growth = peak.Growth();
        EXPECT_GT(growth, 0);
        EXPECT_LT(growth, MAX_MAPPED_KIBIBYTES);
    }

private:
    static void Put(std::ofstream& file, ByteBuffer const& bytes)
    {
        file.write(reinterpret_cast<char const*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    fs::path Path(char const* name) const { return fs::path(m_dir.path().toStdString()) / name; }

    QTemporaryDir m_dir;
};

TEST_F(LargeFile, IsPatchedWithLittleOfItInMemory)
{
    ASSERT_NO_FATAL_FAILURE(Make("text", {}));
    ExpectThatLittleOfItIsInMemory();
}

TEST_F(LargeFile, ProgramThatMovesIsPatchedWithLittleOfItInMemory)
{
    // The address changes, so the code is searched for tables and for addresses.
    ASSERT_NO_FATAL_FAILURE(Make(ProgramHead(), {{0, 0, 0x10000}}));
    ExpectThatLittleOfItIsInMemory();
}

TEST_F(LargeFile, ProgramThatStaysIsPatchedWithLittleOfItInMemory)
{
    ASSERT_NO_FATAL_FAILURE(Make(ProgramHead(), {{0, 0, 0}}));
    ExpectThatLittleOfItIsInMemory();
}

TEST(ResidentPages, BytesFarApartInManyFilesAreGivenBackToo)
{
    constexpr std::size_t FILES = 40;
    constexpr std::size_t BYTES = std::size_t{3} << 20;
    QTemporaryDir const dir;
    ASSERT_TRUE(dir.isValid());
    std::string const path = dir.path().toStdString() + "/file";
    std::ofstream(path) << "text";
    fs::resize_file(path, BYTES);
    UniqueFd const file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::vector<std::unique_ptr<FileMapping>> mappings;
    std::vector<Bytes> contents;
    for (std::size_t i = 0; i < FILES; ++i)
    {
        mappings.push_back(std::make_unique<FileMapping>(file.Get(), BYTES));
        contents.push_back(mappings.back()->Content());
    }
    ResidentPages pages(contents);
    long const before = MappedKibibytes();
    long most = 0;
    unsigned sum = 0;
    for (std::size_t offset = 0; offset < BYTES; offset += 16 * 1024)
    {
        for (std::size_t i = 0; i < FILES; ++i)
        {
            pages.Touch(i, offset, 1);
            sum += contents[i][offset];
        }
        most = std::max(most, MappedKibibytes() - before);
    }
    EXPECT_EQ(sum, FILES * unsigned('t')) << "the bytes are there whenever they are read";
    EXPECT_LT(most, MAX_MAPPED_KIBIBYTES);
    EXPECT_GT(most, 0);
}

} // namespace
