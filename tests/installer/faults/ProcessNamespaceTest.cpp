// ProcessNamespaceTest.cpp: host and helper in their own process namespace, as in a container: the process numbers are
// small, and number 1 becomes the parent of orphans.

#include "tests/installer/FaultChecks.h"
#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <sys/mount.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr char NOT_PERMITTED[] = "the kernel lets this user make no container";

void UpdateOnce()
{
    EXPECT_EQ(::getpid(), 1);
    UpdateScene scene(MakeArchive(Container::Zip, MakeBundle("2.0")), "/");
    ExpectUpdated(scene);
}

TEST(ProcessNamespace, ChangesNothing)
{
    if (!RunInContainer(&UpdateOnce))
    {
        GTEST_SKIP() << NOT_PERMITTED;
    }
}

TEST(ProcessNamespace, WithFilesOfItsOwnProcessesChangesNothing)
{
    auto const updateOnce = []
    {
        ASSERT_EQ(::mount("proc", "/proc", "proc", MS_NOSUID | MS_NODEV | MS_NOEXEC, nullptr), 0);
        UpdateOnce();
    };
    if (!RunInContainer(updateOnce))
    {
        GTEST_SKIP() << NOT_PERMITTED;
    }
}

} // namespace
