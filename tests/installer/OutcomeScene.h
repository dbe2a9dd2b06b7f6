// OutcomeScene.h: an update whose outcome is kept.
// Thread: one. Ownership: the fixture owns its folders and processes.
#pragma once

#include "Engine/core/helper/InstallRecord.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace Pelnar::Testing
{

class Outcome : public testing::Test
{
protected:
    explicit Outcome(std::string const& archive = MakeArchive(Container::Zip, MakeBundle("2.0"))) : scene(archive) {}

    /// A job whose outcome is kept.
    Engine::InstallJob Job()
    {
        Engine::InstallJob job = scene.PrepareForInstall();
        scene.KeepRecord(job);
        return job;
    }

    std::string RecordPath() const { return scene.Downloads().Path() + '/' + RECORD_NAME; }

    std::optional<Engine::InstallRecord> Record() const
    {
        std::ifstream file(RecordPath(), std::ios::binary);
        return Engine::DecodeInstallRecord(std::string(std::istreambuf_iterator<char>(file), {}));
    }

    UpdateScene scene;
};

} // namespace Pelnar::Testing
