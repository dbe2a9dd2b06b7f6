#include "Publisher/delta/DeltaFile.h"

#include "Engine/core/delta/DeltaApplier.h"
#include "Publisher/Progress.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/files/FaultText.h"

#include <QDir>

#include <optional>
#include <vector>

namespace Pelnar::Publisher
{
namespace
{

void CheckPair(Engine::BundleInformation const& before, Engine::BundleInformation const& after)
{
    if (before.version.empty() || after.version.empty())
    {
        throw Refusal({u"a bundle does not state its version"_s, u"write CFBundleVersion into its information file"_s});
    }
    if (before.identifier != after.identifier)
    {
        throw Refusal({u"the bundles belong to two products, %1 and %2"_s.arg(QString::fromStdString(before.identifier),
                                                                              QString::fromStdString(after.identifier)),
                       u"give two versions of one product"_s});
    }
    if (before.version == after.version)
    {
        throw Refusal({u"both bundles have the version %1"_s.arg(QString::fromStdString(before.version)),
                       u"give two versions"_s});
    }
}

/// The problem of a delta that is made or applied: with the file that cannot be written or read, as the person knows
/// it. \a target is where the new version is written.
Problem ProblemWith(Engine::DeltaOutcome outcome, QString const& name, std::vector<BundleTree const*> const& bundles,
                    QString const& target)
{
    QString file = outcome.error == Engine::DeltaError::CannotWrite ? target : name;
    for (BundleTree const* const bundle : bundles)
    {
        if (std::optional<QString> const shown = bundle->ShownPath(outcome.path))
        {
            file = *shown;
            outcome.path.clear();
        }
    }
    return ProblemOf(outcome, file);
}

/// Writes the new version to the folder \a targetFd, and the digest of its bundle to \a digest.
Engine::DeltaOutcome Apply(int deltaFd, BundleTree const& oldBundle, int targetFd, Output const& progressOutput,
                           Engine::ContentHash& digest)
{
    Progress bar(progressOutput, u"Applying"_s);
    // Deliberate: no signature is required. The container is checked against its own hashes, and the result is only
    // read, never run.
    return Engine::ApplyDelta(deltaFd, oldBundle.Descriptor(), targetFd, Engine::DeltaLimits(), std::ref(bar), digest);
}

/// Applies it to a temporary folder. Returns the digest of the bundle that was made.
Engine::ContentHash Try(int deltaFd, QString const& name, BundleTree const& oldBundle, Output const& progressOutput)
{
    TemporaryFolder const made;
    Engine::ContentHash digest{};
    Engine::DeltaOutcome outcome = Apply(deltaFd, oldBundle, made.Descriptor(), progressOutput, digest);
    if (!outcome.HasSucceeded())
    {
        if (outcome.error == Engine::DeltaError::CannotWrite)
        {
            outcome.path.clear(); // the temporary folder will be gone
        }
        throw Refusal(ProblemWith(outcome, name, {}, QDir::tempPath()));
    }
    return digest;
}

} // namespace

Engine::DeltaReport MakeDelta(BundleTree const& oldBundle, BundleTree const& newBundle, AtomicFile const& file,
                              QString const& path, DeltaManner const& manner)
{
    CheckPair(oldBundle.Information(), newBundle.Information());
    Engine::DeltaReport report;
    {
        Progress bar(manner.progressOutput, u"Comparing"_s);
        report = Engine::MakeDelta(oldBundle.Path(), oldBundle.Information().version, newBundle.Path(),
                                   newBundle.Information().version, file.Descriptor(), std::ref(bar), manner.effort);
    }
    if (!report.outcome.HasSucceeded())
    {
        throw Refusal(ProblemWith(report.outcome, path, {&oldBundle, &newBundle}, path));
    }
    Try(file.Descriptor(), path, oldBundle, manner.progressOutput);
    return report;
}

Engine::DeltaManifest ReadDeltaFile(InputFile const& delta)
{
    Engine::DeltaManifest manifest;
    std::uint64_t dataOffset = 0;
    Engine::DeltaOutcome const outcome =
        Engine::ReadDeltaManifest(delta.descriptor.Get(), Engine::DeltaLimits(), manifest, dataOffset);
    if (!outcome.HasSucceeded())
    {
        throw Refusal(ProblemOf(outcome, delta.name));
    }
    return manifest;
}

void ApplyDeltaFile(InputFile const& delta, BundleTree const& oldBundle, int targetFd, QString const& target,
                    Output const& progressOutput)
{
    Engine::ContentHash digest{};
    Engine::DeltaOutcome const outcome = Apply(delta.descriptor.Get(), oldBundle, targetFd, progressOutput, digest);
    if (!outcome.HasSucceeded())
    {
        throw Refusal(ProblemWith(outcome, delta.name, {}, target));
    }
}

void ProveDelta(InputFile const& delta, BundleTree const& oldBundle, BundleTree const& newBundle,
                Output const& progressOutput)
{
    Engine::ContentHash const digest = Try(delta.descriptor.Get(), delta.name, oldBundle, progressOutput);
    if (digest != newBundle.Digest())
    {
        throw Refusal({delta.name, u"does not make the bundle in the archive of that version"_s,
                       u"remove the delta; generate makes it again if it is needed"_s});
    }
}

} // namespace Pelnar::Publisher
