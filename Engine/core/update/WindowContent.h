// WindowContent.h: the content of the engine's windows and a person's possible answers, as plain values. Text from a
// server is marked as such; every window shows it as shortened plain text on one line.
#pragma once

#include "Engine/core/notes/ReleaseNotesFilter.h"

#include <QString>
#include <QUrl>

namespace Pelnar::Engine
{

/// Who requested the check. A window of an automatic check does not take the focus and has no default button.
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

/// What a person can do with an offered update.
enum class UpdateForm
{
    Download,
    Page, ///< read a page that says how to get it; nothing is downloaded
};

struct ReleaseNotes
{
    QString text; ///< from a server; empty if there are none or they are at a link
    ReleaseNotesFormat format = ReleaseNotesFormat::Html;
    QUrl address; ///< from a server: where the notes can be read in a browser; may be empty
};

struct UpdateOffer
{
    QString applicationName;
    QString currentVersion;
    QString version;                                          ///< from a server
    QString title;                                            ///< from a server; may be empty
    quint64 sizeBytes = 0;                                    ///< 0 when unknown
    UpdateImportance importance = UpdateImportance::Ordinary; ///< a critical one cannot be skipped
    UpdateForm form = UpdateForm::Download;
    QUrl page; ///< from a server; may be empty
    ReleaseNotes notes;
};

/// An application and one version of it.
struct NamedVersion
{
    QString applicationName;
    QString version; ///< for an update: from a server
};

enum class UpdatePhase
{
    Downloading,
    Preparing, ///< verifying and unpacking: the bytes are those of the archive; the rate is not used
};

struct UpdateProgress
{
    UpdatePhase phase = UpdatePhase::Downloading;
    quint64 doneBytes = 0;
    quint64 totalBytes = 0;     ///< 0 when unknown
    quint64 bytesPerSecond = 0; ///< 0 when unknown
};

} // namespace Pelnar::Engine
