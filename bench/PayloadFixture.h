// PayloadFixture.h: the data of the payload benchmarks: a folder, realistic bundles, and the programs for comparison.
// Thread: main. Ownership: scope objects. Files on the disk are removed when the process ends.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Bench
{

/// A folder below PELNAR_BENCH_FOLDER, or below /tmp.
std::string const& PayloadFolder();
/// A new name below it. Nothing is removed between rounds: on some file systems, creating files soon after removing
/// others takes longer than everything else.
std::string FreshPath(std::string const& name);

void WriteFile(std::string const& path, std::string const& bytes);
std::string ReadFile(std::string const& path);

/// Text and code as in programs: repeated words, tables, and some noise.
std::string ContentLikeCode(std::uint32_t seed, std::size_t size);
/// A program as the build of its next version leaves it: some new code, and calls across it.
std::string NextVersionOf(std::string const& program, std::uint32_t seed);

/// Runs a program to its end; returns false if it fails.
[[nodiscard]] bool Run(std::vector<std::string> const& words);
/// Writes all pending data of the folder's file system to the disk.
void Settle();
/// The time that \a act takes, in seconds.
double SecondsOf(std::function<void()> const& act);

} // namespace Pelnar::Bench
