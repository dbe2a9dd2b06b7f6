// DeltaFile.h: makes, reads and verifies the delta between two bundles.
#pragma once

#include "Engine/core/delta/DeltaMaker.h"
#include "Publisher/Console.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/files/BundleTree.h"

namespace Pelnar::Publisher
{

struct DeltaManner
{
    Output const& progressOutput;
    Engine::DeltaEffort effort = Engine::DeltaEffort::Usual;
};

/// Writes the delta from \a oldBundle to \a newBundle to \a file, which is called \a path in messages, and applies it
/// once. Throws Refusal, also for bundles of two products or of one version.
Engine::DeltaReport MakeDelta(BundleTree const& oldBundle, BundleTree const& newBundle, AtomicFile const& file,
                              QString const& path, DeltaManner const& manner);

/// The statements in the delta. Throws Refusal.
Engine::DeltaManifest ReadDeltaFile(InputFile const& delta);

/// Applies \a delta to \a oldBundle within the empty folder \a targetFd, which the person calls \a target. Throws
/// Refusal.
void ApplyDeltaFile(InputFile const& delta, BundleTree const& oldBundle, int targetFd, QString const& target,
                    Output const& progressOutput);

/// Throws Refusal unless \a delta turns \a oldBundle into exactly \a newBundle, which came from an archive.
void ProveDelta(InputFile const& delta, BundleTree const& oldBundle, BundleTree const& newBundle,
                Output const& progressOutput);

} // namespace Pelnar::Publisher
