// PayloadBench.cpp: the verification of an archive's signature, compared with the library's bare call; and unpacking a
// zip durably, compared with bsdtar, which does not sync its files.

#include "Engine/core/archive/UnpackArchive.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/bundle/TrustedKeys.h"
#include "bench/PayloadFixture.h"
#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <sodium.h>

#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Bench;
using namespace Pelnar::Engine;

constexpr std::size_t ARCHIVE_BYTES = std::size_t{64} << 20;
constexpr int BUNDLE_FILES = 1600;

std::string Base64(std::uint8_t const* bytes, std::size_t size)
{
    std::string text(sodium_base64_ENCODED_LEN(size, sodium_base64_VARIANT_ORIGINAL), '\0');
    sodium_bin2base64(text.data(), text.size(), bytes, size, sodium_base64_VARIANT_ORIGINAL);
    text.resize(text.size() - 1);
    return text;
}

struct SignedFile
{
    SignedFile()
    {
        if (sodium_init() < 0)
        {
            std::abort();
        }
        std::string const content = ContentLikeCode(1, ARCHIVE_BYTES);
        std::uint8_t secret[crypto_sign_SECRETKEYBYTES];
        crypto_sign_keypair(key, secret);
        crypto_sign_detached(signature, nullptr, reinterpret_cast<std::uint8_t const*>(content.data()), content.size(),
                             secret);
        std::string const path = FreshPath("signed");
        WriteFile(path, content);
        file = UniqueFd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    }
    std::uint8_t key[crypto_sign_PUBLICKEYBYTES];
    std::uint8_t signature[crypto_sign_BYTES];
    UniqueFd file;
};

SignedFile const& Signed()
{
    static SignedFile const file;
    return file;
}

void Verify(benchmark::State& state)
{
    SignedFile const& file = Signed();
    std::string const signature = Base64(file.signature, sizeof file.signature);
    std::vector<std::string> const keys{Base64(file.key, sizeof file.key)};
    for (auto _ : state)
    {
        if (VerifyFileSignature(file.file.Get(), signature, keys) != UpdateFault::None)
        {
            state.SkipWithError("a right signature is refused");
        }
    }
}
BENCHMARK(Verify)->Unit(benchmark::kMillisecond);

void VerifyByTheBareCall(benchmark::State& state)
{
    SignedFile const& file = Signed();
    for (auto _ : state)
    {
        FileMapping const mapping(file.file.Get(), ARCHIVE_BYTES);
        if (crypto_sign_verify_detached(file.signature, mapping.Content().data(), ARCHIVE_BYTES, file.key) != 0)
        {
            state.SkipWithError("a right signature is refused");
        }
    }
}
BENCHMARK(VerifyByTheBareCall)->Unit(benchmark::kMillisecond);

/// A zip of a bundle of many files, most of them small.
std::string const& Zip()
{
    static std::string const zip = []
    {
        std::string const root = FreshPath("bundle");
        std::size_t const sizes[] = {900, 2500, 7000, 1500, 20000, 4000, 60000, 300000};
        for (int i = 0; i < BUNDLE_FILES; ++i)
        {
            WriteFile(root + "/Large.app/Resources/part" + std::to_string(i % 40) + "/file" + std::to_string(i),
                      ContentLikeCode(static_cast<std::uint32_t>(i), sizes[i % 8]));
        }
        std::string path = FreshPath("archive") + ".zip";
        return Run({"bsdtar", "-C", root, "-c", "-f", path, "--format", "zip", "Large.app"}) ? path : std::string();
    }();
    return zip;
}

std::uintmax_t FilesIn(std::string const& folder)
{
    std::uintmax_t files = 0;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(folder))
    {
        files += entry.is_regular_file() ? 1 : 0;
    }
    return files;
}

/// Each round unpacks into its own folder, after all earlier writes have reached the disk.
template <typename UnpackInto>
void TimeUnpacking(benchmark::State& state, UnpackInto const& unpackInto)
{
    if (Zip().empty())
    {
        state.SkipWithError("bsdtar cannot make the archive");
        return;
    }
    for (auto _ : state)
    {
        std::string const folder = FreshPath("unpacked");
        std::filesystem::create_directory(folder);
        Settle();
        state.SetIterationTime(SecondsOf([&] { unpackInto(folder); }));
        if (FilesIn(folder) != BUNDLE_FILES)
        {
            state.SkipWithError("not every file came out");
        }
    }
}

void Unpack(benchmark::State& state)
{
    TimeUnpacking(state,
                  [](std::string const& folder)
                  {
                      UniqueFd const archive(::open(Zip().c_str(), O_RDONLY | O_CLOEXEC));
                      UniqueFd const staging(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
                      UnpackArchive(archive.Get(), staging.Get(), [](std::uint64_t, std::uint64_t) {});
                      benchmark::DoNotOptimize(::syncfs(staging.Get()));
                  });
}
BENCHMARK(Unpack)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

void UnpackByBsdtar(benchmark::State& state)
{
    TimeUnpacking(state,
                  [&state](std::string const& folder)
                  {
                      if (!Run({"bsdtar", "-C", folder, "-x", "-f", Zip()}))
                      {
                          state.SkipWithError("bsdtar fails");
                      }
                  });
}
BENCHMARK(UnpackByBsdtar)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

StatedRatio const VERIFY_RATIO("Verify", "VerifyByTheBareCall", 1.0 / 0.95);
StatedRatio const UNPACK_RATIO("Unpack/iterations:1/manual_time", "UnpackByBsdtar/iterations:1/manual_time", 1.3);

} // namespace
