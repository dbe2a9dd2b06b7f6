// ArchiveDownload.h: downloads one archive to a file, in constant memory. It continues an interrupted download of the
// same archive, even one of a killed process. DownloadBudget.h limits the cost of an archive over all runs.
// Thread: its maker's, with Qt's event loop. Ownership: its maker owns it. Destroying it cancels the download and keeps
// the bytes on the disk for the next one; no callback follows.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/Result.h"
#include "Engine/core/fetch/FetchRules.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>

namespace Pelnar::Engine
{

/// For whom an archive is downloaded.
enum class DownloadFor
{
    Nobody, ///< an automatic download ends after a while, so that it does not block checks; the next one continues it
    Person, ///< a person watches it, and may spend a second budget after the first
};

struct DownloadRequest
{
    QUrl url;
    quint64 declaredBytes = 0; ///< the length in the feed; a body of any other length is refused
    QString signature;         ///< as in the feed; address, length and signature identify an archive
    QUrl feedUrl;              ///< the feed's address; its user name and password also go to its own origin for
                               ///< archives
    AddressReach feedReach = AddressReach::Network; ///< the archive comes from no nearer address
    QString folder; ///< absolute; created if missing; only this user may access it; contains the file
    InsecureHttp insecureHttp = InsecureHttp::LoopbackOnly;
    FetchLimits limits; ///< maxBodyBytes and totalTimeout do not apply to an archive
    DownloadFor purpose = DownloadFor::Nobody;
    std::chrono::milliseconds unwatchedTurn = std::chrono::minutes(30); ///< the longest run of an automatic download
    /// After this time an automatic download ends if its rate so far cannot complete it within its budget.
    std::chrono::milliseconds unwatchedTrial = std::chrono::minutes(1);
};

struct DownloadProgress
{
    quint64 doneBytes = 0; ///< including bytes of earlier runs
    quint64 totalBytes = 0;
    quint64 bytesPerSecond = 0; ///< over the last seconds; 0 while unknown
};

/// The archive, opened for reading only, at its start. No process has it open for writing. While it or a copy of it is
/// open, no other process downloads the same archive.
using DownloadOutcome = Result<UniqueFd>;

class IDownload
{
public:
    virtual ~IDownload() = default;
    /// Both callbacks come from the event loop: \a progress at most about ten times a second, \a finished once and
    /// last. Either may destroy this object. REQUIRES: called once.
    virtual void Start(std::function<void(DownloadProgress const&)> progress,
                       std::function<void(DownloadOutcome)> finished) = 0;
};

class ArchiveDownload final : public IDownload
{
public:
    explicit ArchiveDownload(DownloadRequest request);
    ~ArchiveDownload() override;
    ArchiveDownload(ArchiveDownload const&) = delete;
    ArchiveDownload& operator=(ArchiveDownload const&) = delete;

    void Start(std::function<void(DownloadProgress const&)> progress,
               std::function<void(DownloadOutcome)> finished) override;

    /// Removes the whole or partial file of \a request, after an archive was refused or is no longer needed. The record
    /// of its cost stays. Without a file nothing happens. The disk space is free after the returned descriptor (which
    /// may be empty) is closed. Closing takes longer for a larger file.
    [[nodiscard]] static UniqueFd Discard(DownloadRequest const& request);

    /// Removes all unused archives in \a folder and their records, for an application that needs none. May take long.
    static void Clear(QString const& folder);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Pelnar::Engine
