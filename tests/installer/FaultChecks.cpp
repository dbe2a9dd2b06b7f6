#include "tests/installer/FaultChecks.h"

#include "Engine/core/payload/TreeManifest.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include <fcntl.h>

namespace Pelnar::Testing
{

using Engine::Sha256;
using Engine::UniqueFd;

bool IsEveryPlaceWanted()
{
    return std::getenv("PELNAR_EVERY_PLACE") != nullptr;
}

Sha256 TreeOf(std::string const& path)
{
    UniqueFd const folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder ? Engine::DigestTree(folder.Get()) : Sha256{};
}

Versions::Versions()
{
    Workspace const place;
    place.Put(MakeBundle("1.0"));
    previous = TreeOf(place.Path() + '/' + APP);
    UpdateScene scene;
    scene.PrepareForInstall();
    next = TreeOf(scene.StagingPath() + '/' + APP);
}

std::string ExpectWhole(Workspace const& place, Versions const& versions)
{
    Sha256 const tree = TreeOf(place.Path() + '/' + APP);
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

} // namespace Pelnar::Testing
