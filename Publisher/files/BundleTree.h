// BundleTree.h: a bundle on disk: a given folder, or unpacked from an archive by the rules of clients.
// Ownership: a scope object; it removes what it unpacked.
#pragma once

#include "Engine/core/base/ContentHasher.h"
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

/// A temporary folder that only this user can access.
class TemporaryFolder
{
public:
    /// Removes the folders of killed runs first. Throws Refusal.
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
    Engine::UniqueFd m_folder; ///< locked, so that no later run removes the folder
};

/// Called after each piece: bytes done so far, and in all.
using ByteProgress = std::function<void(std::uint64_t doneBytes, std::uint64_t totalBytes)>;

class BundleTree
{
public:
    /// The bundle whose folder is \a path, or the one in the archive \a path. Throws Refusal.
    static BundleTree Open(QString const& path, ByteProgress const& progress);
    /// The bundle in \a archive. Throws Refusal if a client would refuse it.
    static BundleTree Unpack(InputFile const& archive, ByteProgress const& progress);

    /// The bundle's folder.
    std::filesystem::path const& Path() const { return m_path; }
    int Descriptor() const { return m_folder.Get(); }
    /// \a path in the bundle's folder, as the person knows it: the archive's name stands for the temporary folder.
    std::optional<QString> ShownPath(std::string const& path) const;
    /// The hash of all its files. Throws Refusal.
    [[nodiscard]] Engine::ContentHash Digest() const;
    /// The folder's name, "Name.app".
    std::string Name() const { return m_path.filename().string(); }
    Engine::BundleInformation const& Information() const { return m_information; }
    /// The system for which the bundle is laid out.
    Engine::FeedPlatform Platform() const { return m_platform; }

private:
    BundleTree(std::unique_ptr<TemporaryFolder> temporary, std::filesystem::path path, QString const& shownName);
    void ReadInformation();

    std::unique_ptr<TemporaryFolder> m_temporary; ///< null for a given folder
    std::filesystem::path m_path;
    QString m_shownName;
    Engine::UniqueFd m_folder;
    Engine::BundleInformation m_information;
    Engine::FeedPlatform m_platform = Engine::FeedPlatform::Linux;
};

} // namespace Pelnar::Publisher
