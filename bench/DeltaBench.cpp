// DeltaBench.cpp: the time to apply a delta, compared with bspatch on patches of the same files, and the sizes of both.
// The environment variable PELNAR_BENCH_VERSIONS names the folders of the two versions ("OLD:NEW"; the script
// debian-versions makes such folders). Without it, the versions are the shared libraries of this process and an
// artificial next version of them.

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "bench/PayloadFixture.h"
#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <fcntl.h>
#include <link.h>

namespace
{

using namespace Pelnar::Bench;
using namespace Pelnar::Engine;
namespace fs = std::filesystem;

constexpr std::uintmax_t LARGEST_LIBRARY = 6u << 20;
constexpr double MOST_OF_PATCHES = 1.02;

/// The shared libraries of this process except the largest.
std::vector<std::string> Libraries()
{
    std::vector<std::string> paths;
    auto const add = [](dl_phdr_info* info, std::size_t, void* data)
    {
        std::string const path = info->dlpi_name;
        bool const isFile = !path.empty() && path[0] == '/' && std::filesystem::file_size(path) < LARGEST_LIBRARY;
        if (isFile)
        {
            static_cast<std::vector<std::string>*>(data)->push_back(path);
        }
        return 0;
    };
    ::dl_iterate_phdr(add, &paths);
    return paths;
}

/// The paths of the plain files below \a folder.
std::set<std::string> FilesOf(fs::path const& folder)
{
    std::set<std::string> paths;
    for (auto const& entry : fs::recursive_directory_iterator(folder))
    {
        if (fs::is_regular_file(entry.symlink_status()))
        {
            paths.insert(entry.path().lexically_relative(folder).string());
        }
    }
    return paths;
}

std::string WithoutNumbers(std::string text)
{
    text.erase(std::remove_if(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; }),
               text.end());
    return text;
}

/// Two versions, the delta between them, and the patches for comparison.
struct Material
{
    Material()
    {
        char const* const versions = std::getenv("PELNAR_BENCH_VERSIONS");
        versions ? TakeFilesOf(versions) : MakeNextVersion();
        for (std::string const& name : names)
        {
            arePatchesMade = Run({"bsdiff", old + '/' + name, next + '/' + name, patches + name}) && arePatchesMade;
            patchBytes += std::filesystem::exists(patches + name) ? std::filesystem::file_size(patches + name) : 0;
        }
        UniqueFd const container(::open(delta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        report = MakeDelta(old, "1", next, "2", container.Get());
    }

    /// The files that are in both versions and differ. A file whose name differs only in numbers is the same file.
    void TakeFilesOf(std::string const& versions)
    {
        std::size_t const colon = versions.find(':');
        fs::path const folder = versions.substr(0, colon);
        fs::path const nextFolder = versions.substr(colon + 1);
        std::set<std::string> const before = FilesOf(folder);
        std::set<std::string> const after = FilesOf(nextFolder);
        std::map<std::string, std::string> renamed; // new paths by their text without numbers
        for (std::string const& path : after)
        {
            if (before.count(path) == 0)
            {
                renamed.emplace(WithoutNumbers(path), path);
            }
        }
        for (std::string const& path : before)
        {
            auto const found = renamed.find(WithoutNumbers(path));
            bool const isRenamed = after.count(path) == 0 && found != renamed.end();
            std::string const nextPath = isRenamed ? found->second : path;
            if ((isRenamed || after.count(path) != 0) && ReadFile(folder / path) != ReadFile(nextFolder / nextPath))
            {
                names.push_back(std::to_string(names.size()) + '-' + fs::path(path).filename().string());
                WriteFile(old + '/' + names.back(), ReadFile(folder / path));
                WriteFile(next + '/' + names.back(), ReadFile(nextFolder / nextPath));
            }
        }
    }

    void MakeNextVersion()
    {
        for (std::string const& library : Libraries())
        {
            std::string const name = std::filesystem::path(library).filename();
            std::string const content = ReadFile(library);
            WriteFile(old + '/' + name, content);
            WriteFile(next + '/' + name, NextVersionOf(content, static_cast<std::uint32_t>(names.size())));
            names.push_back(name);
        }
    }

    std::string const old = FreshPath("old");
    std::string const next = FreshPath("next");
    std::string const patches = FreshPath("patch");
    std::string const delta = FreshPath("delta");
    std::vector<std::string> names;
    bool arePatchesMade = true;
    std::uintmax_t patchBytes = 0;
    DeltaReport report;
};

Material const& TheMaterial()
{
    static Material const material;
    return material;
}

bool IsNext(std::string const& folder)
{
    for (std::string const& name : TheMaterial().names)
    {
        if (ReadFile(folder + '/' + name) != ReadFile(TheMaterial().next + '/' + name))
        {
            return false;
        }
    }
    return true;
}

template <typename ApplyInto>
void TimeApplying(benchmark::State& state, ApplyInto const& applyInto)
{
    Material const& material = TheMaterial();
    state.counters["bytes"] = static_cast<double>(material.report.containerBytes);
    state.counters["patches' bytes"] = static_cast<double>(material.patchBytes);
    if (!material.arePatchesMade || !material.report.outcome.HasSucceeded())
    {
        state.SkipWithError("the delta or a patch cannot be made");
    }
    else if (static_cast<double>(material.report.containerBytes) >
             MOST_OF_PATCHES * static_cast<double>(material.patchBytes))
    {
        state.SkipWithError("the delta is larger than 1.02 of the patches");
    }
    for (auto _ : state)
    {
        std::string const folder = FreshPath("applied");
        std::filesystem::create_directory(folder);
        state.SetIterationTime(SecondsOf([&] { applyInto(folder); }));
        if (!IsNext(folder))
        {
            state.SkipWithError("what came out is not the next version");
        }
    }
}

void ApplyTheDelta(benchmark::State& state)
{
    TimeApplying(state,
                 [](std::string const& folder)
                 {
                     Material const& material = TheMaterial();
                     UniqueFd const container(::open(material.delta.c_str(), O_RDONLY | O_CLOEXEC));
                     UniqueFd const old(::open(material.old.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
                     UniqueFd const staging(::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
                     ContentHash digest;
                     benchmark::DoNotOptimize(
                         ApplyDelta(container.Get(), old.Get(), staging.Get(), {}, {}, digest).error);
                 });
}
BENCHMARK(ApplyTheDelta)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

void ApplyThePatches(benchmark::State& state)
{
    TimeApplying(state,
                 [](std::string const& folder)
                 {
                     Material const& material = TheMaterial();
                     for (std::string const& name : material.names)
                     {
                         benchmark::DoNotOptimize(
                             Run({"bspatch", material.old + '/' + name, folder + '/' + name, material.patches + name}));
                     }
                 });
}
BENCHMARK(ApplyThePatches)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

StatedRatio const APPLY_RATIO("ApplyTheDelta/iterations:1/manual_time", "ApplyThePatches/iterations:1/manual_time",
                              0.25);

} // namespace
