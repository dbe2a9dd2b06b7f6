// HelperProcesses.h: helpers that this process, or a program in its place, starts.
#pragma once

#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/update/HelperLaunch_p.h"
#include "Engine/core/update/HelperProcess.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApplication.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Testing
{

constexpr int HIGH_DESCRIPTOR = 50;

/// An event loop, which is needed to hear helpers, and no child of an earlier test. At the end it restores what a test
/// has changed in this process.
class HelperProcesses : public testing::Test
{
protected:
    HelperProcesses()
    {
        ::getrlimit(RLIMIT_NOFILE, &m_descriptors);
        ::sigprocmask(SIG_BLOCK, nullptr, &m_blocked);
        while (::waitpid(-1, nullptr, 0) > 0) // this test does not wait for released ones
        {
        }
    }
    ~HelperProcesses() override
    {
        ::setrlimit(RLIMIT_NOFILE, &m_descriptors);
        ::sigprocmask(SIG_SETMASK, &m_blocked, nullptr);
        ::signal(SIGPIPE, SIG_DFL);
        ::signal(SIGUSR1, SIG_DFL);
        ::unsetenv("LD_PRELOAD");
        ::setenv("PATH", m_searchPath.c_str(), 1);
    }

    rlimit m_descriptors{};

private:
    sigset_t m_blocked{};
    std::string m_searchPath = std::getenv("PATH") ? std::getenv("PATH") : "";
    TestApplication<> m_application;
};

inline std::string ReadFile(std::string const& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The probe before it obeys one order, with a staging folder, and a connection in the archive's place.
class ProbeScene
{
public:
    explicit ProbeScene(std::string const& order, std::string const& program = PELNAR_HELPER_PROBE)
        : m_helper(std::make_unique<Engine::HelperProcess>(std::make_shared<Engine::SealedProgram>(program)))
    {
        m_job.bundleName = APP;
        m_job.bundleIdentifier = IDENTIFIER;
        m_job.installedVersion = "1.0";
        m_job.expectedVersion = order;
        int pair[2];
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair), 0);
        m_near = Engine::UniqueFd(pair[0]);
        m_far = Engine::UniqueFd(pair[1]);
    }

    void Start()
    {
        m_helper->Start(
            m_job, DescriptorMap(m_job, {m_place.Descriptor(), m_far.Get()}),
            [this](Engine::HelperReport const& report)
            {
                reports.push_back(report);
                if (onReport)
                {
                    onReport();
                }
            },
            [this](Engine::HelperEnd end) { ends.push_back(end); });
        m_far = Engine::UniqueFd(); // only the helper's copy is left
    }

    Engine::HelperEnd RunToEnd()
    {
        Start();
        EXPECT_TRUE(WaitFor([this] { return !ends.empty(); }));
        return ends.empty() ? Engine::HelperEnd::Done : ends.front();
    }

    bool WaitForReport()
    {
        return WaitFor([this] { return !reports.empty(); });
    }

    /// Waits until the helper has ended. With MSG_DONTWAIT it returns false at once if the helper still runs.
    bool HasEnded(int flags = 0) const
    {
        char byte = 0;
        return ::recv(m_near.Get(), &byte, 1, flags) == 0;
    }

    void TellToEnd() const { EXPECT_EQ(::send(m_near.Get(), "x", 1, 0), 1); }
    Engine::HelperProcess& Helper() { return *m_helper; }
    void Destroy() { m_helper.reset(); }
    std::string Seen() const { return ReadFile(m_place.Path() + "/seen"); }

    std::vector<Engine::HelperReport> reports;
    std::vector<Engine::HelperEnd> ends;
    std::function<void()> onReport;

private:
    Workspace m_place;
    Engine::PrepareJob m_job;
    Engine::UniqueFd m_near;
    Engine::UniqueFd m_far;
    std::unique_ptr<Engine::HelperProcess> m_helper;
};

} // namespace Pelnar::Testing
