// DeltaScene.h: shared by the tests of invalid deltas.
#pragma once

#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "tests/delta/SeparateDelta.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <fstream>

namespace Pelnar::Testing
{

inline std::string const BLOB = std::string(APP) + "/Resources/blob";

inline std::string ReadAll(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline std::string TextOf(Engine::ByteBuffer const& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// DeltaToTheNextVersion in the previous format.
inline std::string RightSeparateDelta()
{
    Workspace const old;
    Workspace const fresh;
    old.Put(MakeBundleForDeltas("1.0"));
    fresh.Put(MakeBundleForDeltas("2.0"));
    return MakeSeparateDelta(old.Path() + '/' + APP, fresh.Path() + '/' + APP);
}

inline std::string AppIn(UpdateScene const& scene)
{
    return scene.Place().Path() + '/' + APP;
}

} // namespace Pelnar::Testing
