// WindowContent.h: what the engine's windows show and what a person may answer, as plain values.
// Text that a server gave is marked so; every window shows it as plain text on one line, and shortens it.
// Thread: plain values. Ownership: their own data.
#pragma once

#include "Engine/core/notes/ReleaseNotesFilter.h"

#include <QString>
#include <QUrl>

namespace Pelnar::Engine
{

/// Who asked for the check. A window that nobody asked for does not take the focus and has no default button.
enum class CheckOrigin
{
    User,
    Background,
};

enum class UpdateChoice
{
    SkipThisVersion,
    RemindMeLater,
    InstallUpdate,
};

enum class ReadyChoice
{
    Later,
    InstallAndRelaunch,
};

enum class UpdateImportance
{
    Ordinary,
    Critical,
};

struct ReleaseNotes
{
    QString text; ///< given by a server; empty when there are none or they stand elsewhere
    ReleaseNotesFormat format = ReleaseNotesFormat::Html;
    QUrl address; ///< given by a server: where the notes can be read in a browser; may be empty
};

struct UpdateOffer
{
    QString applicationName;
    QString currentVersion;
    QString version;       ///< given by a server
    QString title;         ///< given by a server; may be empty
    quint64 sizeBytes = 0; ///< 0 when unknown
    UpdateImportance importance = UpdateImportance::Ordinary;
    ReleaseNotes notes;
};

/// An application and one version of it.
struct NamedVersion
{
    QString applicationName;
    QString version; ///< of an update: given by a server
};

enum class UpdatePhase
{
    Downloading,
    Preparing, ///< verifying and unpacking: the bytes are those of the archive, the rate does not count
};

struct UpdateProgress
{
    UpdatePhase phase = UpdatePhase::Downloading;
    quint64 doneBytes = 0;
    quint64 totalBytes = 0;     ///< 0 when unknown
    quint64 bytesPerSecond = 0; ///< 0 when unknown
};

} // namespace Pelnar::Engine
