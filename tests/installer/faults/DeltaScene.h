// DeltaScene.h: two versions of a bundle, and right deltas between them.
#pragma once

#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "tests/delta/SeparateDelta.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

#include <fcntl.h>

namespace Pelnar::Testing
{

inline std::string const BLOB = std::string(APP) + "/Resources/blob";

inline std::string Noise(std::size_t size)
{
    std::mt19937 random(42);
    std::string text(size, '\0');
    std::generate(text.begin(), text.end(), [&random] { return static_cast<char>(random()); });
    return text;
}

/// With a file that is worth a patch, and one that both versions have.
inline std::vector<ForgedEntry> BundleWithBlob(std::string const& version)
{
    std::vector<ForgedEntry> entries = MakeBundle(version);
    std::string blob = Noise(20000);
    blob.replace(5000, 3, version);
    entries.push_back({BLOB, 'f', blob});
    entries.push_back({std::string(APP) + "/Resources/same", 'f', Noise(500)});
    return entries;
}

inline std::string ReadAll(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline std::string RightDelta()
{
    Workspace const old;
    Workspace const fresh;
    old.Put(BundleWithBlob("1.0"));
    fresh.Put(BundleWithBlob("2.0"));
    std::string const path = old.Path() + "/delta";
    Engine::UniqueFd const container(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    Engine::DeltaReport const report =
        Engine::MakeDelta(old.Path() + '/' + APP, "1.0", fresh.Path() + '/' + APP, "2.0", container.Get());
    EXPECT_TRUE(report.outcome.HasSucceeded());
    EXPECT_GT(report.patchedFiles, 0u);
    EXPECT_GT(report.keptFiles, 0u);
    EXPECT_GT(report.wholeFiles, 0u);
    return ReadAll(path);
}

inline std::string TextOf(Engine::ByteBuffer const& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// The same in the format before.
inline std::string RightSeparateDelta()
{
    Workspace const old;
    Workspace const fresh;
    old.Put(BundleWithBlob("1.0"));
    fresh.Put(BundleWithBlob("2.0"));
    return MakeSeparateDelta(old.Path() + '/' + APP, fresh.Path() + '/' + APP);
}

inline std::string AppIn(UpdateScene const& scene)
{
    return scene.Place().Path() + '/' + APP;
}

/// The scene whose installed bundle is the one that the delta starts from.
inline UpdateScene& WithBase(UpdateScene& scene)
{
    std::filesystem::remove_all(AppIn(scene));
    scene.Place().Put(BundleWithBlob("1.0"));
    return scene;
}

inline Engine::PrepareJob DeltaJob(UpdateScene const& scene)
{
    Engine::PrepareJob job = scene.MakePrepareJob();
    job.kind = Engine::PayloadKind::Delta;
    return job;
}

} // namespace Pelnar::Testing
