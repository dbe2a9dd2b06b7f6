// FaultChecks.h: checks for every fault: the bundle is exactly one of the two versions, and it starts.
// Thread: the test's.
#pragma once

#include "tests/installer/InstallerFixture.h"
#include "tests/support/EveryPlace.h"

#include <string>

namespace Pelnar::Testing
{

/// The hash of the tree of the folder at \a path, or of an empty tree if the folder does not exist.
Engine::ContentHash TreeOf(std::string const& path);

/// A bundle for a delta that keeps one file, keeps one under another name, patches one, and packs one again.
std::vector<ForgedEntry> MakeBundleForDeltas(std::string const& version);

/// The delta from 1.0 to 2.0 of that bundle.
std::string DeltaToTheNextVersion();

/// The archive of \a entries that a publisher makes from a zip: a tar under zstd whose window is 32 MiB.
std::string MakeRecompressedArchive(std::vector<ForgedEntry> const& entries);

/// Puts 1.0 of that bundle in the place of the installed one.
UpdateScene& WithBase(UpdateScene& scene);

/// Prepares the update by a delta.
Engine::PrepareJob DeltaJob(UpdateScene const& scene);

/// The trees of both versions.
struct Versions
{
    explicit Versions(std::vector<ForgedEntry> const& before = MakeBundle("1.0"),
                      std::vector<ForgedEntry> const& after = MakeBundle("2.0"));
    static Versions ForDeltas() { return Versions(MakeBundleForDeltas("1.0"), MakeBundleForDeltas("2.0")); }
    Engine::ContentHash previous;
    Engine::ContentHash next;
};

/// Fails unless the bundle is exactly one of the versions and starts as it. Returns that version.
std::string ExpectWhole(Workspace const& place, Versions const& versions);
std::string ExpectWhole(UpdateScene const& scene, Versions const& versions);

/// The next two starts leave a whole bundle and no other files.
void ExpectRecovered(UpdateScene& scene, Versions const& versions);

/// Prepares, installs, starts and confirms the new version with helpers that are started in this way.
void ExpectUpdated(UpdateScene& scene, HelperStart const& start = {});

} // namespace Pelnar::Testing
