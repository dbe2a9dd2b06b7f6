// ReleaseFiles.h: the downloads of a published feed: in the folder that is uploaded, or where the feed says.
// Thread: the main thread, with Qt's event loop. Ownership: fetched files are removed with the object.
#pragma once

#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/feed/FeedItem.h"
#include "Publisher/Console.h"
#include "Publisher/files/BundleTree.h"
#include "Publisher/files/InputFile.h"

#include <optional>
#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// Fetches the download of \a item into \a folder, as clients do, but from any address.
Engine::DownloadOutcome FetchDownload(Engine::FeedItem const& item, QString const& folder, Console const& console);

/// The key among \a publicKeys that made \a signature of \a file; empty if none did. Malformed keys are ignored.
std::optional<std::string> SignerOf(InputFile const& file, QString const& signature,
                                    std::vector<std::string> const& publicKeys);

/// Throws Refusal unless \a file, the download of \a item, is as long as the feed says.
void CheckLength(InputFile const& file, Engine::FeedItem const& item);

class ReleaseFiles
{
public:
    /// \a folder is empty for a release on its server.
    ReleaseFiles(QString folder, Console const& console);

    /// The file of \a item, or of a delta; empty if the folder does not have it. Throws Refusal if it cannot be
    /// fetched.
    std::optional<InputFile> Open(Engine::FeedItem const& item);

private:
    InputFile Fetch(Engine::FeedItem const& item);

    QString const m_folder;
    Console const& m_console;
    TemporaryFolder const m_fetched;
};

} // namespace Pelnar::Publisher
