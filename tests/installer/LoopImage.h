// LoopImage.h: file systems in files, for power cuts: a copy of the file at any time is the content of the disk.
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

/// Empty if this process, which then gets its own mount table, can mount images; otherwise the reason.
std::string WhyImagesCannotBeMounted();

/// A new file system in the file at \a path; false if it cannot be made.
[[nodiscard]] bool MakeImage(FileSystemKind const& kind, std::string const& path);
/// The file's bytes at this moment; holes are left out.
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
