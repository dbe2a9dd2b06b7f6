// LatePart.h: the functions that few runs of the tool need: fetching from servers, serving, and writing archives. They
// are in a library of their own, which is loaded when a verb first needs it, because libcurl, OpenSSL, Qt Network and
// libarchive bring fifty libraries.
// Thread: the main thread, with Qt's event loop. Ownership: the library's, which stays loaded.
#pragma once

#include "Engine/core/download/ArchiveDownload.h"
#include "Engine/core/fetch/FeedFetcher.h"
#include "Publisher/files/BundleTree.h"
#include "Publisher/serve/ServeVerb.h"
#include "common/Export.h"

#include <functional>

namespace Pelnar::Publisher
{

struct LatePart
{
    /// The build that made the library. This stays the first field: it is read before the meaning of the others is
    /// known.
    char const* version;
    /// Fetches a feed, or another small page, from any address.
    Engine::FetchOutcome (*fetchFeed)(QUrl const& address);
    Engine::DownloadOutcome (*download)(Engine::DownloadRequest const& request,
                                        std::function<void(Engine::DownloadProgress const&)> const& progress);
    /// Serve.
    ExitStatus (*serve)(Console const& console, ServeOptions const& options);
    /// WriteZstdTar.
    void (*writeZstdTar)(BundleTree const& bundle, std::int64_t time, int fd, QString const& name,
                         ByteProgress const& progress);
};

/// Loads the library at the first call. Throws Refusal if the library, or another one that it needs, cannot be loaded.
[[nodiscard]] LatePart const& LoadLatePart();

} // namespace Pelnar::Publisher

extern "C" PELNAR_EXPORT Pelnar::Publisher::LatePart const pelnarAppcastLate;
