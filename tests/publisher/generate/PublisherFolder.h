// PublisherFolder.h: a publisher's folder with a key and archives of a product's versions, and runs of "generate" for
// it.
// Thread: the test's. Ownership: a scope object.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/publisher/support/AppcastTool.h"

#include <QStringList>

#include <string>
#include <vector>

namespace Pelnar::Testing
{

/// The entries of the information file of a bundle in the folder.
struct BundleText
{
    std::string version = {};
    std::string identifier = "org.pelnar.test";
    std::string displayVersion = {};
    std::string minimumSystem = {};
    std::string publicKey = MakeKeyPair(7).publicKey;
    std::string payloadKind = {};
    std::string nextKey = {};
    std::string rootKey = {};
    std::string executable = {}; ///< NSExecutable; empty: without the entry
    std::string allowsInstallers = {};
    std::string requiresSignedFeed = {};
    std::string feedUrl = {};
    std::string disablesUpdates = {};
    std::string maximumFeedBytes = {};
    std::string feedPlatform = {};
    std::string program = {}; ///< the program's bytes; empty: a script
    std::uint32_t programMode = 0755;
};

/// The start of a program for that machine (an ELF number). No test reads more of it.
std::string ElfProgram(std::uint16_t machine);

/// A bundle for Linux with a file that grows a little with every version.
std::vector<ForgedEntry> MakePublishedBundle(BundleText const& text, std::string const& name = "Test.app");
/// The same for macOS.
std::vector<ForgedEntry> MakeMacBundle(BundleText const& text, std::string const& name = "Test.app");

/// Runs under SOURCE_DATE_EPOCH, noon of 2 January 2026.
class PublisherFolder
{
public:
    PublisherFolder();

    QString PathOf(std::string const& name) const;
    /// Writes a file with a time of change of noon of a day in January 2026. The result must not depend on it.
    void Put(std::string const& name, std::string const& bytes, int day = 1) const;
    /// Adds the bundle of that version as the zip "Test-VERSION.zip".
    void PutVersion(std::string const& version, int day = 1) const;
    /// Adds that bundle as the zip "Test-VERSION.zip".
    void PutBundle(BundleText const& text) const;
    void Remove(std::string const& name) const;
    std::string ContentOf(std::string const& name) const;
    std::vector<std::string> Names() const { return m_folder.Names(); }
    std::string Path() const { return m_folder.Path(); }
    QString KeyFile() const { return QString::fromStdString(m_private.Path() + "/key"); }

    ToolRun Generate(QStringList const& more = {}) const;
    /// As a user who has the files but is not the administrator, who may read every file.
    ToolRun GenerateAsOrdinaryUser() const;
    /// Signs with the key of \a seed instead.
    ToolRun GenerateWithKey(char seed, QStringList const& more = {}) const;
    /// Runs it and expects success. Returns the feed.
    std::string GeneratedFeed(QStringList const& more = {}) const;
    /// The items of the feed, as a client reads them.
    std::vector<Engine::FeedItem> Items(Engine::FeedPlatform platform = Engine::FeedPlatform::Linux) const;
    KeyPair const& Keys() const { return m_pair; }

private:
    /// Gives all files, including the key, to \a user.
    void GiveTo(unsigned user) const;

    Workspace m_folder;
    Workspace m_private;
    KeyPair m_pair;
};

/// Makes a delta between two archives of the folder, as a person would.
ToolRun MakeGivenDelta(PublisherFolder const& folder, char const* from, char const* to);

} // namespace Pelnar::Testing
