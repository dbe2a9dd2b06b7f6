// UpdateBench.cpp: a whole update, from the start of its download to the first line of the new version, compared with
// the sum of the limits of its parts: 1.05 of curl's time, 1.05 of the bare verification and 1.3 of bsdtar's time. It
// also measures the memory that a host takes for an update of 1 GiB, and how long its event loop is blocked.

#include "Engine/core/base/Descriptor.h"
#include "bench/PayloadFixture.h"
#include "bench/Ratios.h"
#include "tests/installer/Ed25519Vectors.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/FileServer.h"

#include <benchmark/benchmark.h>

#include <sodium.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>

#include <fcntl.h>

namespace
{

using namespace Pelnar;
using Bench::FreshPath;

constexpr double MOST_GROWTH_MEBIBYTES = 32;
constexpr double LONGEST_STALL_MILLISECONDS = 16;
constexpr double MOST_OF_CURLS_TIME = 1.05;
constexpr double MOST_OF_VERIFICATION = 1.05;
constexpr double MOST_OF_BSDTARS_TIME = 1.3;

/// The next version, signed, on a server.
class Release
{
public:
    /// \a sizes are those of the additional files in the bundle; \a compression is a name for bsdtar.
    Release(std::vector<std::size_t> const& sizes, std::string const& compression)
    {
        std::string const root = FreshPath("release");
        std::filesystem::create_directory(root);
        std::filesystem::create_directory(folder);
        Testing::Workspace const place(root);
        place.Put(Testing::MakeBundle("2.0"));
        for (std::size_t i = 0; i < sizes.size(); ++i)
        {
            Bench::WriteFile(place.Path() + '/' + Testing::APP + "/Resources/part" + std::to_string(i % 40) + "/file" +
                                 std::to_string(i),
                             Bench::ContentLikeCode(static_cast<std::uint32_t>(i), sizes[i]));
        }
        bool const isMade = Bench::Run({"bsdtar", "-C", place.Path(), "-c", "-f", path, "--format", "zip", "--options",
                                        "zip:compression=" + compression, Testing::APP});
        bytes = isMade ? std::filesystem::file_size(path) : 0;
        file = Engine::UniqueFd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
        Engine::FileMapping const content(file.Get(), bytes);
        crypto_sign_detached(signature.data(), nullptr, content.Content().data(), bytes, keys.secret.data());
        server = std::make_unique<Testing::FileServer>(QStringList{QString::fromStdString(folder)});
    }

    std::string Url() const { return server->Url(QStringLiteral("/archive.zip")).toString().toStdString(); }

    std::string const folder = FreshPath("served");
    std::string const path = folder + "/archive.zip";
    std::uint64_t bytes = 0;
    Engine::UniqueFd file;
    Testing::KeyPair const keys = Testing::MakeKeyPair(1);
    std::array<std::uint8_t, crypto_sign_BYTES> signature{};
    std::unique_ptr<Testing::FileServer> server;
};

/// A bundle of many files, most of them small.
Release const& Usual()
{
    static Release const release = []
    {
        std::vector<std::size_t> sizes;
        for (int i = 0; i < 200; ++i)
        {
            sizes.insert(sizes.end(), {900, 2500, 7000, 1500, 20000, 4000, 60000, 300000});
        }
        return Release(sizes, "deflate");
    }();
    return release;
}

struct UpdateResult
{
    double seconds = 0;
    double growthMebibytes = 0;
    double stallMilliseconds = 0;
    bool isStarted = false;
};

/// Installs version 1.0 in a new folder, updates it, and waits for the new version's line.
UpdateResult UpdateBy(Release const& release)
{
    std::string const root = FreshPath("installed");
    std::filesystem::create_directory(root);
    Testing::Workspace const place(root);
    place.Put(Testing::MakeBundle("1.0"));
    Bench::Settle();
    std::string const command = std::string("exec '") + PELNAR_BENCH_UPDATE_HOST + "' '" + release.Url() + "' " +
                                std::to_string(release.bytes) + " '" +
                                Testing::Base64({release.signature.begin(), release.signature.end()}) + "' '" +
                                release.keys.publicKey + "' '" + place.Path() + '/' + Testing::APP + "' '" +
                                Testing::IDENTIFIER + "' '" + FreshPath("downloads") + '\'';
    UpdateResult result;
    std::string text;
    result.seconds = Bench::SecondsOf(
        [&]
        {
            // The new version inherits the host's standard output, so the end of the output is the end of both.
            FILE* const output = ::popen(command.c_str(), "r");
            char piece[256];
            while (output && std::fgets(piece, sizeof piece, output))
            {
                text += piece;
            }
            result.isStarted = output && ::pclose(output) == 0 && text.find("\n2.0") != std::string::npos;
        });
    char* rest = nullptr;
    result.growthMebibytes = std::strtod(text.c_str(), &rest) / 1024;
    result.stallMilliseconds = std::strtod(rest, nullptr);
    return result;
}

void Count(UpdateResult const& result, benchmark::State& state)
{
    state.counters["growth_MiB"] = result.growthMebibytes;
    state.counters["stall_ms"] = result.stallMilliseconds;
}

void Update(benchmark::State& state)
{
    UpdateResult result;
    for (auto _ : state)
    {
        result = UpdateBy(Usual());
        state.SetIterationTime(result.seconds);
        if (!result.isStarted)
        {
            state.SkipWithError("the new version does not start");
        }
    }
    Count(result, state);
}
BENCHMARK(Update)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

void UpdateFloors(benchmark::State& state)
{
    Release const& release = Usual();
    for (auto _ : state)
    {
        std::string const downloaded = FreshPath("curl");
        std::string const folder = FreshPath("unpacked");
        std::filesystem::create_directory(folder);
        Bench::Settle();
        bool isGood = true;
        double const download = Bench::SecondsOf(
            [&] {
                isGood = Bench::Run({"curl", "--silent", "--fail", "--http1.1", "--output", downloaded, release.Url()});
            });
        double const verification = Bench::SecondsOf(
            [&]
            {
                Engine::FileMapping const mapping(release.file.Get(), release.bytes);
                isGood = isGood && crypto_sign_verify_detached(release.signature.data(), mapping.Content().data(),
                                                               release.bytes, release.keys.point.data()) == 0;
            });
        double const unpacking = Bench::SecondsOf(
            [&] {
                isGood = isGood && Bench::Run({"bsdtar", "-C", folder, "-x", "-f", downloaded});
            });
        state.SetIterationTime(download * MOST_OF_CURLS_TIME + verification * MOST_OF_VERIFICATION +
                               unpacking * MOST_OF_BSDTARS_TIME);
        state.counters["download_ms"] = download * 1000;
        state.counters["verification_ms"] = verification * 1000;
        state.counters["unpacking_ms"] = unpacking * 1000;
        if (!isGood)
        {
            state.SkipWithError("a peer fails");
        }
    }
}
BENCHMARK(UpdateFloors)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

/// Only the memory and the event loop are of interest here.
void UpdateOf1GiB(benchmark::State& state)
{
    static Release const release(std::vector<std::size_t>(33, std::size_t{32} << 20), "store");
    if (release.bytes < (std::uint64_t{1} << 30))
    {
        state.SkipWithError("the archive has less than 1 GiB");
        return;
    }
    UpdateResult result;
    for (auto _ : state)
    {
        result = UpdateBy(release);
        state.SetIterationTime(result.seconds);
        if (!result.isStarted)
        {
            state.SkipWithError("the new version does not start");
        }
    }
    Count(result, state);
    state.counters["limit_MiB"] = MOST_GROWTH_MEBIBYTES;
    state.counters["limit_ms"] = LONGEST_STALL_MILLISECONDS;
    if (result.growthMebibytes > MOST_GROWTH_MEBIBYTES)
    {
        state.SkipWithError("the host takes more than 32 MiB of memory");
    }
    if (result.stallMilliseconds > LONGEST_STALL_MILLISECONDS)
    {
        state.SkipWithError("the host's event loop is held up for more than 16 ms");
    }
}
BENCHMARK(UpdateOf1GiB)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1)->Repetitions(2);

Bench::StatedRatio const UPDATE_RATIO("Update/iterations:1/manual_time", "UpdateFloors/iterations:1/manual_time", 1.3);

} // namespace
