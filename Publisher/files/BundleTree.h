// BundleTree.h: a bundle on disk, given as its folder or taken out of an archive by the rules by which clients unpack.
// Ownership: a scope object; what it unpacked is removed with it.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/bundle/BundleInformation.h"
#include "Engine/core/feed/FeedParser.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/files/Leftovers.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Pelnar::Publisher
{

/// A folder for temporary files of this user's only.
class TemporaryFolder
{
public:
    /// Removes what killed runs have left there, first. Throws Refusal.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;

    std::filesystem::path const& Path() const { return m_path; }
    int Descriptor() const { return m_folder.Get(); }

private:
    std::filesystem::path m_path;
    std::optional<Leftover> m_leftover;
    Engine::UniqueFd m_parent;
    Engine::UniqueFd m_folder; ///< held, so that no later run takes the folder for one that was left behind
};

/// Told after each piece: bytes done so far, and in all.
using ByteProgress = std::function<void(std::uint64_t doneBytes, std::uint64_t totalBytes)>;

class BundleTree
{
public:
    /// The bundle whose folder is \a path, or the one in the archive \a path. Throws Refusal.
    static BundleTree Open(QString const& path, ByteProgress const& progress);
    /// The bundle in \a archive. Throws Refusal for what a client would refuse.
    static BundleTree Unpack(InputFile const& archive, ByteProgress const& progress);

    /// The bundle's folder.
    std::filesystem::path const& Path() const { return m_path; }
    int Descriptor() const { return m_folder.Get(); }
    /// The folder's name, "Name.app".
    std::string Name() const { return m_path.filename().string(); }
    Engine::BundleInformation const& Information() const { return m_information; }
    /// The system that the bundle's layout is of.
    Engine::FeedPlatform Platform() const { return m_platform; }

private:
    BundleTree(std::unique_ptr<TemporaryFolder> temporary, std::filesystem::path path, QString const& shownName);
    void ReadInformation(QString const& shownName);

    std::unique_ptr<TemporaryFolder> m_temporary; ///< null for a folder that was given
    std::filesystem::path m_path;
    Engine::UniqueFd m_folder;
    Engine::BundleInformation m_information;
    Engine::FeedPlatform m_platform = Engine::FeedPlatform::Linux;
};

} // namespace Pelnar::Publisher
