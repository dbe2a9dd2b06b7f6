// DeltaFile.h: makes, reads and proves the delta between two bundles.
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

/// Writes the delta from \a oldBundle to \a newBundle to the new file \a path, once it has been applied and has made
/// what it should. Throws Refusal: for a file that is there already, for bundles of two products or of one version.
Engine::DeltaReport MakeDeltaFile(BundleTree const& oldBundle, BundleTree const& newBundle, QString const& path,
                                  DeltaManner const& manner);

/// The same into \a file, which is shown as \a path and keeps its hidden name.
Engine::DeltaReport MakeDelta(BundleTree const& oldBundle, BundleTree const& newBundle, AtomicFile const& file,
                              QString const& path, DeltaManner const& manner);

/// What the delta says of itself. Throws Refusal.
Engine::DeltaManifest ReadDeltaFile(InputFile const& delta);

/// Applies \a delta to \a oldBundle within the empty folder \a target. Throws Refusal.
void ApplyDeltaFile(InputFile const& delta, BundleTree const& oldBundle, int targetFd, Output const& progressOutput);

/// Throws Refusal unless \a delta makes exactly \a newBundle, which an archive brought, of \a oldBundle.
void ProveDelta(InputFile const& delta, BundleTree const& oldBundle, BundleTree const& newBundle,
                Output const& progressOutput);

/// A progress bar for bytes.
ByteProgress BarFor(class Progress& progress);

} // namespace Pelnar::Publisher
