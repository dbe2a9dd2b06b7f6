// LoopImage.h: file systems in files, to be cut off from power at will: a copy of the file is what a disk would hold.
// Thread: the test's. Ownership: scope objects; mounts end with them. Needs root and loop devices.
#pragma once

#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct FileSystemKind
{
    char const* name;
    char const* makeCommand; ///< the image's path is added
    char const* type;
    char const* options;
    int megabytes;
};

/// ext4 in two modes, xfs, btrfs.
std::vector<FileSystemKind> const& FileSystemKinds();

/// Empty when images can be mounted by this process, which then has a mount table of its own; else the reason.
std::string WhyImagesCannotBeMounted();

/// A new file system in the file at \a path; false when it cannot be made.
[[nodiscard]] bool MakeImage(FileSystemKind const& kind, std::string const& path);
/// The file's bytes as they are, its holes left out.
void CopyImage(std::string const& from, std::string const& to);

/// A mounted image.
class MountedImage
{
public:
    MountedImage(FileSystemKind const& kind, std::string const& image, std::string point);
    ~MountedImage();
    MountedImage(MountedImage const&) = delete;
    MountedImage& operator=(MountedImage const&) = delete;

    [[nodiscard]] bool IsMounted() const { return m_isMounted; }
    std::string const& Point() const { return m_point; }

private:
    std::string m_point;
    bool m_isMounted = false;
};

} // namespace Pelnar::Testing
