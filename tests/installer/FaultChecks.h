// FaultChecks.h: what holds after every fault: the bundle is exactly one of the two versions, and starts.
// Thread: the test's.
#pragma once

#include "tests/installer/InstallerFixture.h"

#include <string>

namespace Pelnar::Testing
{

/// True when the environment asks for faults at every place, instead of a sample of the places.
bool IsEveryPlaceWanted();

/// The hash of the tree of the folder at \a path; of nothing when there is none.
Engine::ContentHash TreeOf(std::string const& path);

/// The delta from the installed version to the next one.
std::string DeltaToTheNextVersion();

/// The trees of both versions, as they are when whole.
struct Versions
{
    Versions();
    Engine::ContentHash previous;
    Engine::ContentHash next;
};

/// Fails unless the bundle is exactly one of the versions and starts as it; that version.
std::string ExpectWhole(Workspace const& place, Versions const& versions);
std::string ExpectWhole(UpdateScene const& scene, Versions const& versions);

/// The next start, and the one after it, leave a whole bundle and nothing else.
void ExpectRecovered(UpdateScene& scene, Versions const& versions);

/// Prepares, installs, starts and confirms the new version, by helpers that are started like this.
void ExpectUpdated(UpdateScene& scene, HelperStart const& start = {});

} // namespace Pelnar::Testing
