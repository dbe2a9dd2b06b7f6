// InstallMemory.h: the result of the last installation, as a start of the application finds it. It removes a completed
// record, together with the archive that was kept for another attempt.
// Thread: its maker's. Ownership: its destructor waits for its pending writes and removals.
#pragma once

#include "Engine/core/base/DiskChores.h"
#include "Engine/core/helper/InstallRecord.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <string>

namespace Pelnar::Engine
{

/// After this many failed attempts to install a version, only a person's request starts another.
constexpr std::uint64_t MAX_AUTOMATIC_ATTEMPTS = 3;

/// True if an automatic installation has to wait at \a now, after the failed one that \a failure records.
[[nodiscard]] bool IsHeldBack(InstallRecord const& failure, QDateTime const& now);

class InstallMemory
{
public:
    /// \a folder holds the records, \a downloads the archives. \a bundlePath is the running bundle's path, \a version
    /// the running version. Reads the record of this place, and logs a failure.
    InstallMemory(QString const& folder, QString const& downloads, QString const& bundlePath, QString const& version);

    /// The failure of the last installation that left this version in place; empty otherwise. It has no attempts if
    /// this one was no attempt.
    std::optional<InstallRecord> const& Failure() const { return m_failure; }
    /// The failure or the rollback that the application has not heard of; null if it has heard of all.
    InstallRecord const* News() const;
    /// The application has heard of the News().
    void SetHeard();
    /// A person requested that installation and has not seen its result.
    [[nodiscard]] bool IsToBeTold() const;
    void SetTold();
    /// The update to \a failedVersion was rolled back: this is news unless an earlier start has told it.
    void TakeRollback(QString const& failedVersion);

private:
    void Settle(InstallRecord record, PastInstallation meaning);
    std::string RollbackName() const;
    void Forget();
    void Keep(std::string const& name, std::string const& bytes);

    QString m_folder;
    QString m_downloads;
    std::string m_name;
    std::optional<InstallRecord> m_failure;
    bool m_isNews = false;                   ///< the failure is
    std::optional<InstallRecord> m_rollback; ///< if it is news
    DiskChores m_chores;
};

} // namespace Pelnar::Engine
