#include "tests/installer/InstallerFixture.h"

#include "Engine/core/archive/TreeManifest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

using Engine::UniqueFd;

constexpr int FIRST_FREE_DESCRIPTOR = 100; ///< larger than every number that a helper expects

/// A copy with a number that no descriptor of the helper gets.
UniqueFd CopyHigh(int descriptor)
{
    return UniqueFd(::fcntl(descriptor, F_DUPFD_CLOEXEC, FIRST_FREE_DESCRIPTOR));
}

struct Pipe
{
    Pipe()
    {
        int ends[2];
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        UniqueFd const low0(ends[0]);
        UniqueFd const low1(ends[1]);
        reader = CopyHigh(ends[0]);
        writer = CopyHigh(ends[1]);
    }
    UniqueFd reader;
    UniqueFd writer;
};

UniqueFd MemoryFile(std::string const& bytes)
{
    UniqueFd const file(::memfd_create("job", MFD_CLOEXEC));
    EXPECT_EQ(::pwrite(file.Get(), bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
    return CopyHigh(file.Get());
}

pid_t Spawn(std::vector<std::string> words, std::map<int, int> const& descriptors, std::vector<std::string> environment)
{
    std::vector<char*> arguments;
    for (std::string& word : words)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    std::vector<char*> variables;
    for (std::string& variable : environment)
    {
        variables.push_back(variable.data());
    }
    variables.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    std::vector<UniqueFd> copies;
    for (auto const& [number, descriptor] : descriptors)
    {
        copies.push_back(CopyHigh(descriptor));
        ::posix_spawn_file_actions_adddup2(&actions, copies.back().Get(), number);
    }
    pid_t process = -1;
    EXPECT_EQ(::posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), variables.data()), 0)
        << words[0];
    ::posix_spawn_file_actions_destroy(&actions);
    return process;
}

/// Reads both pipes to their ends.
void ReadBoth(UniqueFd const& first, std::string& firstText, UniqueFd const& second, std::string& secondText)
{
    pollfd waiting[] = {{first.Get(), POLLIN, 0}, {second.Get(), POLLIN, 0}};
    std::string* const texts[] = {&firstText, &secondText};
    while (waiting[0].fd >= 0 || waiting[1].fd >= 0)
    {
        if (::poll(waiting, 2, -1) < 0)
        {
            continue;
        }
        for (int i = 0; i < 2; ++i)
        {
            if (waiting[i].fd < 0 || waiting[i].revents == 0)
            {
                continue;
            }
            char buffer[4096];
            ssize_t const count = ::read(waiting[i].fd, buffer, sizeof buffer);
            if (count > 0)
            {
                texts[i]->append(buffer, static_cast<std::size_t>(count));
            }
            else
            {
                waiting[i].fd = -1;
            }
        }
    }
}

void TakeReports(std::string const& text, HelperOutcome& outcome)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
    {
        auto const report = Engine::DecodeHelperReport(line);
        if (!report)
        {
            ADD_FAILURE() << "not a report: " << line;
            continue;
        }
        if (auto const* progress = std::get_if<Engine::ProgressReport>(&*report))
        {
            outcome.progress.push_back(*progress);
        }
        else
        {
            outcome.reports.push_back(*report);
        }
    }
}

} // namespace

std::string InformationText(std::string const& version, std::string const& identifier)
{
    return "{\n    CFBundleIdentifier = \"" + identifier + "\";\n    CFBundleVersion = \"" + version +
           "\";\n    NSExecutable = run;\n    SUPublicEDKey = \"" + MakeKeyPair(7).publicKey + "\";\n}\n";
}

std::vector<ForgedEntry> MakeBundle(std::string const& version, std::string const& name)
{
    return {
        {name + "/", 'd', {}, 0755},
        {name + "/run", 'f', "#!/bin/sh\necho \"" + version + "|$0|$#|$PELNAR_TEST\"\n", 0755},
        {name + "/Resources/", 'd', {}, 0755},
        {name + "/Resources/Info-gnustep.plist", 'f', InformationText(version)},
        {name + "/Resources/data-" + version, 'f', std::string(3000, version[0])},
        {name + "/Resources/data", 'l', "data-" + version, 0777},
    };
}

Workspace::Workspace(std::string const& parent)
{
    m_path = (std::filesystem::path(parent) / "pelnar-installer-XXXXXX").string();
    EXPECT_NE(::mkdtemp(m_path.data()), nullptr) << m_path;
    m_folder = UniqueFd(::open(m_path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

Workspace::~Workspace()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void Workspace::Put(std::vector<ForgedEntry> const& entries, std::string const& below) const
{
    for (ForgedEntry const& entry : entries)
    {
        std::string const path = m_path + '/' + below + entry.path;
        if (entry.type == 'd')
        {
            std::filesystem::create_directories(path);
            ::chmod(path.c_str(), entry.mode);
        }
        else if (entry.type == 'l')
        {
            ASSERT_EQ(::symlink(entry.content.c_str(), path.c_str()), 0);
        }
        else
        {
            WriteFile(path, entry.content);
            ::chmod(path.c_str(), entry.mode);
        }
    }
}

std::vector<std::string> Workspace::Names(std::string const& below) const
{
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(m_path + '/' + below))
    {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string Workspace::StartBundle(std::string const& name) const
{
    std::string const program = m_path + '/' + name + "/run";
    if (::access(program.c_str(), X_OK) != 0)
    {
        return {};
    }
    Pipe output;
    pid_t const process = Spawn({program}, {{1, output.writer.Get()}}, {});
    output.writer = UniqueFd();
    std::string text;
    std::string none;
    ReadBoth(output.reader, text, UniqueFd(), none);
    int status = 0;
    ::waitpid(process, &status, 0);
    return text;
}

std::string Workspace::StartedVersion(std::string const& name) const
{
    std::string const text = StartBundle(name);
    return text.substr(0, text.find('|'));
}

UniqueFd WriteFile(std::string const& path, std::string const& bytes)
{
    UniqueFd writer(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    EXPECT_EQ(::write(writer.Get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size())) << path;
    writer = UniqueFd();
    return UniqueFd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
}

Engine::UpdateFault HelperOutcome::Fault() const
{
    auto const* refusal = Find<Engine::RefusedReport>();
    return refusal ? refusal->fault : Engine::UpdateFault::None;
}

HelperOutcome RunHelper(std::string const& mode, std::string const& job, std::map<int, int> const& descriptors,
                        HelperStart const& start)
{
    Pipe report;
    Pipe output;
    UniqueFd const jobFile = MemoryFile(job);
    std::map<int, int> all = descriptors;
    all[1] = output.writer.Get();
    all[Engine::HelperDescriptors::JOB] = jobFile.Get();
    all[Engine::HelperDescriptors::REPORT] = report.writer.Get();
    std::vector<std::string> words = start.before;
    if (start.atEveryCall)
    {
        words = StartWhenTraced();
        words.insert(words.end(), start.before.begin(), start.before.end());
    }
    words.insert(words.end(), {PELNAR_INSTALLER_PROGRAM, mode});
    pid_t const process = Spawn(words, all, start.environment);
    report.writer = UniqueFd();
    output.writer = UniqueFd();
    HelperOutcome outcome;
    std::string lines;
    // A traced helper writes less than its pipes hold.
    if (start.atEveryCall)
    {
        outcome.traced = TraceToTheEnd(process, start.atEveryCall);
    }
    int status = outcome.traced.waitStatus;
    ReadBoth(report.reader, lines, output.reader, outcome.output);
    if (!start.atEveryCall)
    {
        ::waitpid(process, &status, 0);
    }
    outcome.exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    outcome.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    if (outcome.signal != 0)
    {
        // A killed helper may leave half a line.
        lines.resize(lines.rfind('\n') == std::string::npos ? 0 : lines.rfind('\n') + 1);
    }
    TakeReports(lines, outcome);
    return outcome;
}

StubHost::StubHost()
{
    Pipe lifeline;
    m_pid = ::fork();
    if (m_pid == 0)
    {
        lifeline.writer = UniqueFd();
        char byte;
        static_cast<void>(!::read(lifeline.reader.Get(), &byte, 1));
        ::_exit(0);
    }
    m_process = UniqueFd(static_cast<int>(::syscall(SYS_pidfd_open, m_pid, 0)));
    m_lifeline = std::move(lifeline.writer);
}

StubHost::~StubHost()
{
    End();
}

void StubHost::End()
{
    m_lifeline = UniqueFd();
    if (m_pid > 0)
    {
        int status = 0;
        ::waitpid(m_pid, &status, 0);
        m_pid = -1;
    }
}

UpdateScene::UpdateScene(std::string const& archive, std::string const& parent)
    : m_place(parent)
    , m_keys(MakeKeyPair(7))
    , m_archive(archive)
    , m_archiveFile(WriteFile(m_downloads.Path() + "/update", archive))
{
    m_place.Put(MakeBundle("1.0"));
    m_staging = Engine::StagingFolder::Create(m_place.Descriptor(), APP);
}

Engine::PrepareJob UpdateScene::MakePrepareJob() const
{
    Engine::PrepareJob job;
    job.archiveBytes = m_archive.size();
    job.signature = Base64(Sign(m_archive, m_keys));
    job.publicKeys = {m_keys.publicKey};
    job.bundleName = APP;
    job.bundleIdentifier = IDENTIFIER;
    job.expectedVersion = "2.0";
    job.installedVersion = "1.0";
    return job;
}

HelperOutcome UpdateScene::Prepare(Engine::PrepareJob const& job, HelperStart const& start)
{
    UniqueFd const target(::open((m_place.Path() + '/' + APP).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return RunHelper("prepare", Engine::EncodeUpdateJob(job),
                     {{Engine::HelperDescriptors::ARCHIVE, m_archiveFile.Get()},
                      {Engine::HelperDescriptors::STAGING, m_staging->Descriptor()},
                      {Engine::HelperDescriptors::TARGET, target.Get()}},
                     start);
}

Engine::InstallJob UpdateScene::PrepareForInstall()
{
    HelperOutcome const outcome = Prepare(MakePrepareJob());
    auto const* prepared = outcome.Find<Engine::PreparedReport>();
    EXPECT_NE(prepared, nullptr) << FaultName(outcome.Fault());
    Engine::InstallJob job = MakeInstallJob(prepared ? prepared->digest : Engine::ContentHash{});
    job.targetPath = m_place.Path() + '/' + APP;
    return job;
}

Engine::InstallJob UpdateScene::MakeInstallJob(Engine::ContentHash const& digest) const
{
    Engine::InstallJob job;
    job.targetName = APP;
    job.stagingName = m_staging ? m_staging->Name() : std::string();
    job.stagedName = APP;
    job.digest = digest;
    job.bundleIdentifier = IDENTIFIER;
    job.expectedVersion = "2.0";
    job.installedVersion = "1.0";
    return job;
}

void UpdateScene::KeepRecord(Engine::InstallJob& job)
{
    Engine::InstallRecord record;
    record.fromVersion = job.installedVersion;
    record.toVersion = job.expectedVersion;
    record.wish = Engine::InstallWish::Person;
    record.attempts = 3;
    job.recordName = RECORD_NAME;
    job.record = record;
}

HelperOutcome UpdateScene::Install(Engine::InstallJob const& job, HelperStart const& start)
{
    std::map<int, int> descriptors{{Engine::HelperDescriptors::PARENT, m_place.Descriptor()},
                                   {Engine::HelperDescriptors::STAGING, m_staging->Descriptor()},
                                   {Engine::HelperDescriptors::HOST, m_host.ProcessDescriptor()},
                                   {Engine::HelperDescriptors::RECORDS, m_downloads.Descriptor()}};
    if (argumentsDescriptor >= 0)
    {
        descriptors[Engine::HelperDescriptors::ARGUMENTS] = argumentsDescriptor;
    }
    return RunHelper("install", Engine::EncodeUpdateJob(job), descriptors, start);
}

HelperOutcome UpdateScene::Recover(std::string const& runningVersion, HelperStart const& start)
{
    return Recover(Engine::RecoverJob{APP, runningVersion}, start);
}

HelperOutcome UpdateScene::Recover(Engine::RecoverJob const& job, HelperStart const& start)
{
    return RunHelper("recover", Engine::EncodeUpdateJob(job),
                     {{Engine::HelperDescriptors::PARENT, m_place.Descriptor()}}, start);
}

} // namespace Pelnar::Testing
