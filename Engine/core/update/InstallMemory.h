// InstallMemory.h: what a start of the application finds of the last installation, which ended when nobody was there to
// hear of it. What is over, it forgets, and with it the archive that was kept for one more attempt.
// Thread: the one that made it. Ownership: its end waits for what it still writes or removes.
#pragma once

#include "Engine/core/payload/InstallRecord.h"
#include "Engine/core/update/DiskChores.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <string>

namespace Pelnar::Engine
{

/// So many attempts to install a version fail before only a person's wish leads to another.
constexpr std::uint64_t MAX_AUTOMATIC_ATTEMPTS = 3;

/// Whether an installation that nobody asks for has to wait at \a now, after the one that \a failure tells of.
[[nodiscard]] bool IsHeldBack(InstallRecord const& failure, QDateTime const& now);

class InstallMemory
{
public:
    /// \a folder holds the records, \a downloads the archives; \a bundlePath is the running bundle's, \a version the
    /// running one. Reads one file.
    InstallMemory(QString const& folder, QString const& downloads, QString const& bundlePath, QString const& version);

    /// Of the last installation, which left this version in its place; nothing otherwise.
    std::optional<InstallRecord> const& Failure() const { return m_failure; }
    /// A person asked for that installation, and has not heard of its end.
    [[nodiscard]] bool IsToBeTold() const;
    void SetTold();

private:
    void Settle(InstallRecord record, PastInstallation meaning);
    void Forget();
    void Keep(InstallRecord const& record);

    QString m_folder;
    QString m_downloads;
    std::string m_name;
    std::optional<InstallRecord> m_failure;
    DiskChores m_chores;
};

} // namespace Pelnar::Engine
