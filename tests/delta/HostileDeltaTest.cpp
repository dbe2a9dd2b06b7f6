// HostileDeltaTest.cpp: deltas of few bytes that ask for much memory or time. They are refused after little of both.

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "tests/delta/ForgedProgram.h"
#include "tests/delta/PackedFiles.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
namespace fs = std::filesystem;

constexpr long MOST_KIBIBYTES = 64 * 1024;
constexpr double MOST_SECONDS = 20; ///< of the processor; a build without optimisation takes several times as long
constexpr rlim_t ENDLESS_SECONDS = 60;
constexpr std::uint64_t LARGE_BYTES = std::uint64_t{64} << 20;

struct Cost
{
    DeltaError error = DeltaError::None;
    double seconds = 0;
    long kibibytes = 0; ///< the most in memory at once, compared with the start
};

long StatusNumber(std::string const& name)
{
    std::ifstream status("/proc/self/status");
    long number = 0;
    for (std::string word; status >> word;)
    {
        if (word == name)
        {
            status >> number;
        }
    }
    return number;
}

Cost CostOfApplying(fs::path const& folder)
{
    std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts again
    long const before = StatusNumber("VmRSS:");
    fs::create_directory(folder / "staging");
    UniqueFd const container(open((folder / "delta").c_str(), O_RDONLY | O_CLOEXEC));
    UniqueFd const old(open((folder / "old").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    UniqueFd const staging(open((folder / "staging").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    ContentHash digest;
    Cost cost;
    cost.error = ApplyDelta(container.Get(), old.Get(), staging.Get(), {}, {}, digest).error;
    cost.kibibytes = StatusNumber("VmHWM:") - before;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    auto const secondsOf = [](timeval time)
    { return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6; };
    cost.seconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
    return cost;
}

void Put(std::ofstream& file, ByteBuffer const& bytes)
{
    file.write(reinterpret_cast<char const*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void AppendFixed(ByteBuffer& bytes, std::uint64_t number)
{
    for (int shift = 0; shift < 64; shift += 8)
    {
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

ByteBuffer OpeningOf(ByteBuffer const& manifest)
{
    ByteBuffer const stored =
        PackByLzma(View(manifest), ManifestPackingOf(DeltaFormat::Joined), ManifestWindowLogOf(DeltaFormat::Joined));
    ByteBuffer opening(DELTA_MAGIC.begin(), DELTA_MAGIC.end());
    AppendFixed(opening, static_cast<std::uint64_t>(DeltaFormat::Joined));
    AppendFixed(opening, stored.size());
    AppendFixed(opening, manifest.size());
    opening.insert(opening.end(), stored.begin(), stored.end());
    return opening;
}

DeltaEntry EntryOf(std::string const& path, std::uint64_t size)
{
    DeltaEntry entry;
    entry.path = path;
    entry.kind = DeltaEntryKind::Patched;
    entry.size = size;
    return entry;
}

/// A delta that a row describes, before it is written.
struct HostileDelta
{
    DeltaManifest manifest;
    std::array<ByteBuffer, PATCH_STREAMS> streams;
    std::vector<std::pair<std::string, std::string>> oldFiles;
    std::uint64_t oldBytes = 0; ///< if it is not 0, old files are extended to this size
    ByteBuffer units;           ///< instead of those of the manifest

    HostileDelta() { manifest.format = DeltaFormat::Joined; }
    ByteBuffer& Stream(PatchStream stream) { return streams[static_cast<std::size_t>(stream)]; }
    void AddStep(std::uint64_t likeBytes, std::uint64_t extraBytes, std::uint64_t move)
    {
        for (std::uint64_t const number : {likeBytes, extraBytes, move})
        {
            AppendNumber(Stream(PatchStream::Steps), number);
        }
    }
    std::uint64_t SizeOf(std::string const& content) const { return oldBytes > 0 ? oldBytes : content.size(); }

    void Write(fs::path const& folder)
    {
        fs::create_directory(folder / "old");
        for (auto const& [path, content] : oldFiles)
        {
            std::ofstream(folder / "old" / path, std::ios::binary) << content;
            fs::resize_file(folder / "old" / path, SizeOf(content));
        }
        std::array<ByteBuffer, PATCH_STREAMS> packed;
        for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
        {
            packed[i] = CompressForDelta(View(streams[i]), WindowLogOf(static_cast<PatchStream>(i)), DeltaEffort::Low);
            manifest.streams[i] = {0, packed[i].size()};
        }
        ByteBuffer plain = EncodeDeltaManifest(manifest);
        if (!units.empty())
        {
            plain.pop_back(); // there were no units
            plain.insert(plain.end(), units.begin(), units.end());
        }
        std::ofstream container(folder / "delta", std::ios::binary);
        Put(container, OpeningOf(plain));
        for (ByteBuffer const& stream : packed)
        {
            Put(container, stream);
        }
    }
};

struct HostileRow
{
    char const* name;
    void (*describe)(HostileDelta& delta);
    DeltaError error;
};

void PrintTo(HostileRow const& row, std::ostream* out)
{
    *out << row.name;
}

/// Files of one byte, each in a unit with the same old file.
void AddUnitsOf(HostileDelta& delta, std::string const& path, std::string const& content, std::size_t units,
                std::vector<SpanChange> const& changes)
{
    delta.oldFiles.emplace_back(path, content);
    for (std::size_t i = 0; i < units; ++i)
    {
        delta.manifest.entries.push_back(EntryOf(std::to_string(100000 + i), 1));
        delta.manifest.units.push_back({{{path, delta.SizeOf(content)}}, {static_cast<std::uint32_t>(i)}, changes, 0});
        delta.AddStep(1, 0, 0);
    }
    AppendNumber(delta.Stream(PatchStream::Same), units);
}

class HostileDeltas : public testing::TestWithParam<HostileRow>
{
};

TEST_P(HostileDeltas, TakeLittleTimeAndMemory)
{
    QTemporaryDir const dir;
    fs::path const folder = dir.path().toStdString();
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    {
        HostileDelta delta;
        GetParam().describe(delta);
        delta.Write(folder);
    }
    EXPECT_LT(fs::file_size(folder / "delta"), std::uint64_t{4} << 20);
    malloc_trim(0); // the child would use what is free here
    pid_t const child = fork();
    if (child == 0)
    {
        rlimit const time{ENDLESS_SECONDS, ENDLESS_SECONDS};
        setrlimit(RLIMIT_CPU, &time);
        rlimit const memory{std::uint64_t{2} << 30, std::uint64_t{2} << 30};
        if (!IS_SANITIZED)
        {
            setrlimit(RLIMIT_AS, &memory);
        }
        try
        {
            Cost const cost = CostOfApplying(folder);
            _exit(write(ends[1], &cost, sizeof cost) == sizeof cost ? 0 : 1);
        }
        catch (std::exception const&)
        {
            _exit(1);
        }
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0) << "the process was ended, or had not enough memory";
    Cost cost;
    ASSERT_EQ(read(ends[0], &cost, sizeof cost), static_cast<ssize_t>(sizeof cost));
    close(ends[0]);
    close(ends[1]);
    EXPECT_EQ(cost.error, GetParam().error);
    EXPECT_LT(cost.seconds, MOST_SECONDS);
    EXPECT_LT(cost.kibibytes, IS_SANITIZED ? 16 * MOST_KIBIBYTES : MOST_KIBIBYTES);
    RecordProperty("milliseconds", static_cast<int>(cost.seconds * 1000));
    RecordProperty("kibibytes", static_cast<int>(cost.kibibytes));
}

void LongRecipe(HostileDelta& delta)
{
    constexpr std::size_t RECIPE_BYTES = 200u << 20;
    std::string const file = GzipOf(WordsOf(1, 1000));
    delta.oldFiles.emplace_back("text.gz", file);
    delta.manifest.entries.push_back(EntryOf("text.gz", std::uint64_t{1} << 30));
    delta.manifest.units.push_back({{{"text.gz", file.size()}}, {0}, {}, 1000});
    delta.AddStep(1000, 0, 0);
    AppendNumber(delta.Stream(PatchStream::Same), 1000);
    ByteBuffer& extra = delta.Stream(PatchStream::Extra);
    AppendNumber(extra, RECIPE_BYTES);
    extra.resize(extra.size() + RECIPE_BYTES);
}

/// Each source refers to a path of 60,000 bytes with two bytes.
void LongPathOfManySources(HostileDelta& delta)
{
    constexpr std::size_t SOURCES = 100000;
    delta.manifest.entries.push_back(EntryOf(std::string(60000, 'a'), 0));
    AppendNumber(delta.units, 1);
    AppendNumber(delta.units, SOURCES);
    for (std::size_t i = 0; i < SOURCES; ++i)
    {
        delta.units.push_back(1);
        delta.units.push_back(0);
    }
    delta.units.insert(delta.units.end(), {1, 0, 0});
}

void ManyTargets(HostileDelta& delta)
{
    constexpr std::size_t ENTRIES = 5000;
    for (std::size_t i = 0; i < ENTRIES; ++i)
    {
        delta.manifest.entries.push_back(EntryOf(std::to_string(10000 + i), 0));
    }
    AppendNumber(delta.units, ENTRIES);
    for (std::size_t i = 0; i < ENTRIES; ++i)
    {
        delta.units.push_back(0); // no source
        AppendNumber(delta.units, ENTRIES);
        delta.units.resize(delta.units.size() + ENTRIES);
        delta.units.push_back(0); // no segment
    }
}

void LargeFileOfManyUnits(HostileDelta& delta)
{
    delta.oldBytes = LARGE_BYTES;
    AddUnitsOf(delta, "large", "text", 2000, {});
}

/// The addresses change, so each unit searches the program for them.
template <std::size_t UNITS>
void LargeProgramOfUnits(HostileDelta& delta)
{
    ByteBuffer const program = ForgeProgram({});
    delta.oldBytes = LARGE_BYTES;
    AddUnitsOf(delta, "large", std::string(program.begin(), program.end()), UNITS, {{0, 0, 0x1000}, {0, 0, 0x1000}});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HostileDeltas,
    testing::Values(HostileRow{"LongRecipe", &LongRecipe, DeltaError::Damaged},
                    HostileRow{"LongPathOfManySources", &LongPathOfManySources, DeltaError::Damaged},
                    HostileRow{"ManyTargets", &ManyTargets, DeltaError::Damaged},
                    HostileRow{"LargeFileOfManyUnits", &LargeFileOfManyUnits, DeltaError::OverLimits},
                    HostileRow{"LargeProgramOfManyUnits", &LargeProgramOfUnits<2000>, DeltaError::OverLimits},
                    HostileRow{"LargeProgramOfAsManyUnitsAsAllowed", &LargeProgramOfUnits<64>,
                               DeltaError::BaseDiffers}),
    [](testing::TestParamInfo<HostileRow> const& info) { return info.param.name; });

} // namespace
