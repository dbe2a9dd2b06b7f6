// PayloadFixture.h: what the benchmarks of an update's payload work on: a folder for it, bundles like real ones, peers'
// programs. Thread: main. Ownership: scope objects; what stands on the disk goes with the process.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Bench
{

/// A folder below PELNAR_BENCH_FOLDER, or below /tmp.
std::string const& PayloadFolder();
/// A name below it that was not given before. Nothing is removed between rounds: on some file systems making files
/// soon after removing others costs more than all the rest.
std::string FreshPath(std::string const& name);

void WriteFile(std::string const& path, std::string const& bytes);
std::string ReadFile(std::string const& path);

/// Text and code as they are in programs: words that come again, tables, and a share of noise.
std::string ContentLikeCode(std::uint32_t seed, std::size_t size);
/// A program as a build of its next version leaves it: new code here and there, and calls that lead over it.
std::string NextVersionOf(std::string const& program, std::uint32_t seed);

/// Runs a program to its end; false when it fails.
[[nodiscard]] bool Run(std::vector<std::string> const& words);
/// Writes everything that is waiting to be written to the folder's file system.
void Settle();
/// How long \a act takes, in seconds.
double SecondsOf(std::function<void()> const& act);

} // namespace Pelnar::Bench
