// FolderScan.h: what of a publisher's folder belongs into a feed: archives of bundles, installers, deltas, and the
// notes beside them. Thread: the main thread. Ownership: values only.
#pragma once

#include "Publisher/files/InputFile.h"

#include <QString>

#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

enum class ArchiveKind
{
    Bundle,               ///< a zip or a tar of one bundle
    GuidedInstaller,      ///< an installer program that asks a person
    InteractiveInstaller, ///< one that a person runs alone
    Delta,
};

struct FolderArchive
{
    QString fileName;
    QString stem; ///< the name that notes beside it share: without endings and marks
    ArchiveKind kind = ArchiveKind::Bundle;
    bool isNamedAsContainer = false; ///< ends as a zip or a tar does, no matter what its kind is
};

/// The archives of \a folder in ascending order of their names; hidden files are left alone. Throws Refusal: for a
/// folder that cannot be read, and for a link with the name of an archive.
std::vector<FolderArchive> ScanFolder(QString const& folder);

/// The notes beside an archive as the text of an item's description: HTML that every client shows alike. Notes are
/// STEM.html, .htm, .md, .markdown or .txt. Nothing when there are none. Throws Refusal: for several, for notes that
/// cannot be read, are not UTF-8, or are over the limits with which clients show them.
std::optional<QString> ReadReleaseNotes(QString const& folder, QString const& stem);

/// The path of \a fileName in \a folder, as it is shown as well.
QString PathIn(QString const& folder, QString const& fileName);

} // namespace Pelnar::Publisher
