#include "tests/installer/FaultChecks.h"

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "tests/delta/ForgedProgram.h"
#include "tests/delta/PackedFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include <fcntl.h>
#include <zstd.h>

namespace Pelnar::Testing
{

using Engine::ContentHash;
using Engine::UniqueFd;

ContentHash TreeOf(std::string const& path)
{
    UniqueFd const folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder ? Engine::DigestTree(folder.Get()) : ContentHash{};
}

std::vector<ForgedEntry> MakeBundleForDeltas(std::string const& version)
{
    std::string const resources = std::string(APP) + "/Resources/";
    std::vector<ForgedEntry> entries = MakeBundle(version);
    std::string blob = Noise(1, 20000);
    blob.replace(5000, 3, version);
    // The new words are repeated later, so zlib makes other tokens of unchanged text.
    std::string words = WordsOf(1, 40000);
    for (std::size_t const place : {3000, 18000})
    {
        words.replace(place, 12, version == "1.0" ? std::string(12, '-') : words.substr(place + 9000, 12));
    }
    ProgramShape shape;
    shape.functions = 40;
    shape.insertedAt = 10;
    shape.insertedBytes = version == "1.0" ? 0 : 32;
    Engine::ByteBuffer const program = ForgeProgram(shape);
    entries.push_back({resources + "blob", 'f', blob});
    entries.push_back({resources + "same", 'f', Noise(2, 500)});
    entries.push_back({resources + "moved-" + version, 'f', Noise(3, 700)});
    entries.push_back({resources + "program", 'f', std::string(program.begin(), program.end())});
    entries.push_back({resources + "words.gz", 'f', GzipOf(words)});
    return entries;
}

std::string DeltaToTheNextVersion()
{
    Workspace const old;
    Workspace const fresh;
    old.Put(MakeBundleForDeltas("1.0"));
    fresh.Put(MakeBundleForDeltas("2.0"));
    std::string const path = old.Path() + "/delta";
    UniqueFd const container(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    Engine::DeltaReport const report =
        Engine::MakeDelta(old.Path() + '/' + APP, "1.0", fresh.Path() + '/' + APP, "2.0", container.Get());
    EXPECT_TRUE(report.outcome.HasSucceeded());
    EXPECT_GE(report.keptFiles, 2u);
    EXPECT_GE(report.patchedFiles, 2u);
    EXPECT_GT(report.wholeFiles, 0u);
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string MakeRecompressedArchive(std::vector<ForgedEntry> const& entries)
{
    constexpr int WINDOW_LOG = 25;
    std::string const tar = MakeTar(entries);
    std::string packed(ZSTD_compressBound(tar.size()), '\0');
    std::unique_ptr<ZSTD_CCtx, std::size_t (*)(ZSTD_CCtx*)> const context(ZSTD_createCCtx(), ZSTD_freeCCtx);
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_windowLog, WINDOW_LOG);
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_checksumFlag, 1);
    // With a size, the frame would need only a window of that size.
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_contentSizeFlag, 0);
    ZSTD_inBuffer in{tar.data(), tar.size(), 0};
    ZSTD_outBuffer out{packed.data(), packed.size(), 0};
    EXPECT_FALSE(ZSTD_isError(ZSTD_compressStream2(context.get(), &out, &in, ZSTD_e_continue)));
    EXPECT_EQ(ZSTD_compressStream2(context.get(), &out, &in, ZSTD_e_end), 0u);
    return packed.substr(0, out.pos);
}

UpdateScene& WithBase(UpdateScene& scene)
{
    std::filesystem::remove_all(scene.Place().Path() + '/' + APP);
    scene.Place().Put(MakeBundleForDeltas("1.0"));
    return scene;
}

Engine::PrepareJob DeltaJob(UpdateScene const& scene)
{
    Engine::PrepareJob job = scene.MakePrepareJob();
    job.kind = Engine::PayloadKind::Delta;
    return job;
}

Versions::Versions(std::vector<ForgedEntry> const& before, std::vector<ForgedEntry> const& after)
{
    Workspace const place;
    place.Put(before);
    previous = TreeOf(place.Path() + '/' + APP);
    UpdateScene scene(MakeArchive(Container::Zip, after));
    scene.PrepareForInstall();
    next = TreeOf(scene.StagingPath() + '/' + APP);
}

std::string ExpectWhole(Workspace const& place, Versions const& versions)
{
    ContentHash const tree = TreeOf(place.Path() + '/' + APP);
    EXPECT_TRUE(tree == versions.previous || tree == versions.next);
    std::string const version = tree == versions.next ? "2.0" : "1.0";
    EXPECT_EQ(place.StartedVersion(), version);
    return version;
}

std::string ExpectWhole(UpdateScene const& scene, Versions const& versions)
{
    return ExpectWhole(scene.Place(), versions);
}

void ExpectRecovered(UpdateScene& scene, Versions const& versions)
{
    scene.Host().End();
    scene.ReleaseStaging();
    bool const isThere = !scene.Place().StartedVersion().empty();
    HelperOutcome const first = scene.Recover(isThere ? ExpectWhole(scene, versions) : "1.0");
    EXPECT_EQ(first.exitStatus, 0);
    std::string const version = ExpectWhole(scene, versions);
    EXPECT_EQ(scene.Recover(version).exitStatus, 0);
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
    EXPECT_EQ(ExpectWhole(scene, versions), version);
}

void ExpectUpdated(UpdateScene& scene, HelperStart const& start)
{
    Versions const versions;
    HelperOutcome const prepared = scene.Prepare(scene.MakePrepareJob(), start);
    EXPECT_EQ(prepared.exitStatus, 0) << FaultName(prepared.Fault());
    EXPECT_TRUE(TreeOf(scene.StagingPath() + '/' + APP) == versions.next) << "modes included";
    Engine::InstallJob job = scene.MakeInstallJob(versions.next);
    job.targetPath = scene.Place().Path() + '/' + APP;
    scene.Host().End();
    HelperOutcome const installed = scene.Install(job, start);
    EXPECT_EQ(installed.exitStatus, 0) << FaultName(installed.Fault());
    auto const* const relaunched = installed.Find<Engine::RelaunchedReport>();
    ASSERT_NE(relaunched, nullptr) << "it was not started again";
    EXPECT_EQ(relaunched->bundle, Engine::RelaunchedBundle::Target);
    std::string const told = "2.0|" + job.targetPath + "/run|0|\n";
    bool const mayBeSilent = !start.before.empty(); // the helper may have no output stream to pass on
    EXPECT_TRUE(installed.output == told || (mayBeSilent && installed.output.empty())) << installed.output;
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("2.0", start).exitStatus, 0);
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
}

} // namespace Pelnar::Testing
