// ArchiveDownload.h: brings one archive from a server to a file, in constant memory, and goes on where an interrupted
// download of the same archive stopped, even one of a process that was killed. What an archive costs is limited over
// all runs: DownloadBudget.h. Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker;
// destroying it cancels the download, keeps what is on the disk for the next one, and nothing is called any more.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/fetch/FetchPolicy.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Pelnar::Engine
{

/// For whom an archive is downloaded.
enum class DownloadFor
{
    Nobody, ///< it ends after a while, so that it keeps no check away; the next one goes on with it
    Person, ///< who watches it, and may spend another budget when the first one is spent
};

struct DownloadRequest
{
    QUrl url;
    quint64 declaredBytes = 0; ///< the length that the feed gives; a body of any other length is refused
    QString signature;         ///< as the feed gives it; with address and length it tells one archive from another
    QUrl feedUrl;              ///< the feed's, whose user name and password its own origin gets as well
    AddressReach feedReach = AddressReach::Network; ///< the archive is fetched from no nearer address
    QString folder; ///< absolute; made if missing; this user's alone; where the file grows
    InsecureHttp insecureHttp = InsecureHttp::LoopbackOnly;
    FetchLimits limits; ///< maxBodyBytes and totalTimeout do not apply to an archive
    DownloadFor purpose = DownloadFor::Nobody;
    std::chrono::milliseconds unwatchedTurn = std::chrono::minutes(30); ///< how long one for nobody runs at a time
    /// After so long one for nobody ends that cannot come to its end within its budget at the pace so far.
    std::chrono::milliseconds unwatchedTrial = std::chrono::minutes(1);
};

struct DownloadProgress
{
    quint64 doneBytes = 0; ///< with what was there before
    quint64 totalBytes = 0;
    quint64 bytesPerSecond = 0; ///< over the last seconds; 0 while unknown
};

struct DownloadOutcome
{
    std::optional<EngineError> error;
    /// Opened for reading only, at its start; nobody has it open for writing, and while it or a copy of it is open no
    /// other process downloads the same archive. Not set on error.
    UniqueFd archive;
};

class ArchiveDownload
{
public:
    explicit ArchiveDownload(DownloadRequest request);
    ~ArchiveDownload();
    ArchiveDownload(ArchiveDownload const&) = delete;
    ArchiveDownload& operator=(ArchiveDownload const&) = delete;

    /// Both callbacks come from the event loop, \a progress at most some ten times a second, \a finished once and last;
    /// either may destroy this object. REQUIRES: called once.
    void Start(std::function<void(DownloadProgress const&)> progress, std::function<void(DownloadOutcome)> finished);

    /// Removes the file of \a request, whole or partial: for an archive that was refused, or is not needed any more.
    /// What it has cost is remembered. Nothing happens when there is none. The room on the disk is free when the
    /// answer, which may be unset, has been closed, and closing it takes the longer the larger the file is.
    [[nodiscard]] static UniqueFd Discard(DownloadRequest const& request);

    /// Removes all archives in \a folder that nobody uses, and all that is known of them: for an application that needs
    /// none. May take long.
    static void Clear(QString const& folder);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Pelnar::Engine
