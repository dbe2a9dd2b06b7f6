#include "tests/installer/LoopImage.h"

#include "Engine/core/base/Descriptor.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <linux/loop.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

using Engine::UniqueFd;

/// A loop device for the file, released with its last user. Empty if there is no free one.
UniqueFd AttachLoop(int imageFd, std::string& path)
{
    UniqueFd const control(::open("/dev/loop-control", O_RDWR | O_CLOEXEC));
    for (int attempt = 0; control && attempt < 100; ++attempt)
    {
        int const number = ::ioctl(control.Get(), LOOP_CTL_GET_FREE);
        if (number < 0)
        {
            return {};
        }
        path = "/dev/loop" + std::to_string(number);
        UniqueFd device(::open(path.c_str(), O_RDWR | O_CLOEXEC));
        loop_config config{};
        config.fd = static_cast<unsigned>(imageFd);
        config.info.lo_flags = LO_FLAGS_AUTOCLEAR;
        if (device && ::ioctl(device.Get(), LOOP_CONFIGURE, &config) == 0)
        {
            return device;
        }
        if (errno != EBUSY) // another process was quicker
        {
            return {};
        }
    }
    return {};
}

} // namespace

std::vector<FileSystemKind> const& FileSystemKinds()
{
    // mkfs.xfs wants 300 MB, except in its test mode.
    static std::vector<FileSystemKind> const kinds{
        {"Ext4Ordered", "mkfs.ext4 -q -F", "ext4", "data=ordered", 16},
        {"Ext4Writeback", "mkfs.ext4 -q -F", "ext4", "data=writeback", 16},
        {"Xfs", "TEST_DIR=1 TEST_DEV=1 QA_CHECK_FS=1 mkfs.xfs -q -f", "xfs", "nouuid", 16},
        {"Btrfs", "mkfs.btrfs -q -f --mixed -m single -d single", "btrfs", "", 16},
    };
    return kinds;
}

std::string WhyImagesCannotBeMounted()
{
    if (::geteuid() != 0 || ::access("/dev/loop-control", R_OK | W_OK) != 0)
    {
        return "mounting images needs root and loop devices";
    }
    static bool const isAlone =
        ::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return isAlone ? "" : "mounting images needs a mount table of one's own";
}

bool MakeImage(FileSystemKind const& kind, std::string const& path)
{
    UniqueFd const file(::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    std::string const command = std::string(kind.makeCommand) + " '" + path + "' >/dev/null 2>&1";
    return file && ::ftruncate(file.Get(), off_t{kind.megabytes} << 20) == 0 && std::system(command.c_str()) == 0;
}

void CopyImage(std::string const& from, std::string const& to)
{
    UniqueFd const source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    UniqueFd const target(::open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
    struct stat status;
    ASSERT_EQ(::fstat(source.Get(), &status), 0);
    ASSERT_EQ(::ftruncate(target.Get(), status.st_size), 0);
    std::vector<char> buffer(std::size_t{1} << 20);
    for (off_t at = ::lseek(source.Get(), 0, SEEK_DATA); at >= 0; at = ::lseek(source.Get(), at, SEEK_DATA))
    {
        for (off_t const end = ::lseek(source.Get(), at, SEEK_HOLE); at < end;)
        {
            std::size_t const most = std::min(buffer.size(), static_cast<std::size_t>(end - at));
            ssize_t const count = ::pread(source.Get(), buffer.data(), most, at);
            ASSERT_GT(count, 0);
            ASSERT_EQ(::pwrite(target.Get(), buffer.data(), static_cast<std::size_t>(count), at), count);
            at += count;
        }
    }
}

MountedImage::MountedImage(FileSystemKind const& kind, std::string const& image, std::string point)
    : m_point(std::move(point))
{
    UniqueFd const file(::open(image.c_str(), O_RDWR | O_CLOEXEC));
    std::string path;
    UniqueFd const device = AttachLoop(file.Get(), path);
    ::mkdir(m_point.c_str(), 0755);
    m_isMounted = device && ::mount(path.c_str(), m_point.c_str(), kind.type, MS_NOATIME, kind.options) == 0;
    EXPECT_TRUE(m_isMounted) << kind.name << ": " << std::strerror(errno);
}

MountedImage::~MountedImage()
{
    if (m_isMounted)
    {
        EXPECT_EQ(::umount(m_point.c_str()), 0) << std::strerror(errno);
    }
}

} // namespace Pelnar::Testing
