// InstallerFixture.h: a folder with an installed bundle, bundles to update it to, and the helper's real process.
// Thread: one. Ownership: scope objects; folders and processes end with them.
#pragma once

#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Engine/core/helper/UpdateJob.h"
#include "tests/installer/ArchiveForge.h"
#include "tests/installer/CallTracer.h"
#include "tests/installer/Ed25519Vectors.h"

#include <map>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

constexpr char IDENTIFIER[] = "org.pelnar.test";
constexpr char APP[] = "My App.app";
constexpr char RECORD_NAME[] = "outcome.record";

/// A bundle whose program prints its version, its path and the number of its arguments.
std::vector<ForgedEntry> MakeBundle(std::string const& version, std::string const& name = APP);
/// The bundle's information file.
std::string InformationText(std::string const& version, std::string const& identifier = IDENTIFIER);

/// A new folder that only this user can access. It is removed at the end with its content.
class Workspace
{
public:
    explicit Workspace(std::string const& parent = "/tmp");
    ~Workspace();
    Workspace(Workspace const&) = delete;
    Workspace& operator=(Workspace const&) = delete;

    std::string const& Path() const { return m_path; }
    int Descriptor() const { return m_folder.Get(); }
    /// Writes the entries to the folder without any check.
    void Put(std::vector<ForgedEntry> const& entries, std::string const& below = {}) const;
    /// The names in the folder, sorted.
    std::vector<std::string> Names(std::string const& below = {}) const;
    /// The output of the bundle's program in the folder; empty if it does not start.
    std::string StartBundle(std::string const& name = APP) const;
    /// The version that the bundle's program prints; empty if it does not start.
    std::string StartedVersion(std::string const& name = APP) const;

private:
    std::string m_path;
    Engine::UniqueFd m_folder;
};

/// A file below \a path, open for reading only.
Engine::UniqueFd WriteFile(std::string const& path, std::string const& bytes);

struct HelperOutcome
{
    int exitStatus = -1; ///< -1 if a signal ended it
    int signal = 0;
    std::vector<Engine::HelperReport> reports; ///< without progress
    std::vector<Engine::ProgressReport> progress;
    std::string output; ///< all output of the programs that the helper started
    TracedEnd traced;   ///< when its calls were visited

    /// The fault of the first refusal; None without a refusal.
    Engine::UpdateFault Fault() const;
    template <typename Report>
    Report const* Find() const
    {
        for (Engine::HelperReport const& report : reports)
        {
            if (auto const* found = std::get_if<Report>(&report))
            {
                return found;
            }
        }
        return nullptr;
    }
};

/// How the helper is started.
struct HelperStart
{
    std::vector<std::string> before = {};      ///< a program, with its arguments, that runs the helper
    std::vector<std::string> environment = {}; ///< none, as a host does it
    CallVisitor atEveryCall = {};              ///< called before each of the helper's system calls
};

/// Runs the helper to its end. It gets \a descriptors under their numbers, besides job and report.
HelperOutcome RunHelper(std::string const& mode, std::string const& job, std::map<int, int> const& descriptors,
                        HelperStart const& start = {});

/// A process that lives until it is told to end.
class StubHost
{
public:
    StubHost();
    ~StubHost();
    StubHost(StubHost const&) = delete;
    StubHost& operator=(StubHost const&) = delete;

    int ProcessDescriptor() const { return m_process.Get(); }
    void End();

private:
    int m_pid = -1;
    Engine::UniqueFd m_process;
    Engine::UniqueFd m_lifeline;
};

/// An installed version 1.0 and an archive of 2.0 that is ready to be prepared.
class UpdateScene
{
public:
    /// The bundle stands in a new folder of \a parent.
    explicit UpdateScene(std::string const& archive = MakeArchive(Container::Zip, MakeBundle("2.0")),
                         std::string const& parent = "/tmp");

    Engine::PrepareJob MakePrepareJob() const;
    HelperOutcome Prepare(Engine::PrepareJob const& job, HelperStart const& start = {});
    /// Prepares the update with the helper. The test fails if that fails.
    Engine::InstallJob PrepareForInstall();
    /// A job for the bundle APP of that tree. The new version is staged, and no program is started afterwards.
    Engine::InstallJob MakeInstallJob(Engine::ContentHash const& digest) const;
    /// Makes the helper keep the outcome of \a job, a third attempt, as RECORD_NAME next to the archive.
    static void KeepRecord(Engine::InstallJob& job);
    HelperOutcome Install(Engine::InstallJob const& job, HelperStart const& start = {});
    HelperOutcome Recover(std::string const& runningVersion, HelperStart const& start = {});
    HelperOutcome Recover(Engine::RecoverJob const& job, HelperStart const& start = {});

    Workspace const& Place() const { return m_place; }
    Workspace const& Downloads() const { return m_downloads; }
    int StagingDescriptor() const { return m_staging->Descriptor(); }
    std::string const& StagingName() const { return m_staging->Name(); }
    std::string StagingPath() const { return m_place.Path() + '/' + m_staging->Name(); }
    /// The host releases the staging folder, as at its end.
    void ReleaseStaging() { m_staging.reset(); }
    /// The host releases the archive, as after every helper.
    void ReleaseArchive() { m_archiveFile = Engine::UniqueFd(); }
    StubHost& Host() { return m_host; }
    KeyPair const& Keys() const { return m_keys; }

    int argumentsDescriptor = -1; ///< of the file with the new version's arguments; -1: none

private:
    Workspace m_place;
    Workspace m_downloads;
    KeyPair m_keys;
    std::string m_archive;
    Engine::UniqueFd m_archiveFile;
    std::optional<Engine::StagingFolder> m_staging;
    StubHost m_host;
};

} // namespace Pelnar::Testing

namespace Pelnar::Engine
{

inline void PrintTo(UpdateFault fault, std::ostream* out)
{
    *out << FaultName(fault);
}

} // namespace Pelnar::Engine
