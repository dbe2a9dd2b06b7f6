// FolderScan.h: the files of a publisher's folder that belong in a feed: archives of bundles, installers, deltas, and
// their notes.
#pragma once

#include "Publisher/files/InputFile.h"

#include <QString>
#include <QStringList>

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

/// Notes as the text of an item's description: HTML that every client shows alike.
struct ReleaseNotes
{
    QString language; ///< as xml:lang writes it; empty for those that are for everybody else
    QString html;
    QString fileName; ///< in their folder
};

/// The notes beside an archive, those without a language first. Notes are STEM.html, .htm, .md, .markdown or .txt, and
/// in a language STEM.LANGUAGE.html and so on. Throws Refusal: for several of one language, for notes that cannot be
/// read, are not UTF-8, or are over the limits with which clients show them.
std::vector<ReleaseNotes> ReadReleaseNotes(QString const& folder, QString const& stem);

/// What \a folder has besides \a archives, notes of one, and \a feedFile; folders end in "/". Hidden files are left
/// out, those whose names cannot be decoded are not.
QStringList IgnoredFiles(QString const& folder, std::vector<FolderArchive> const& archives, QString const& feedFile);

/// Those of \a names, files of \a folder, that only some users may read: a web server is another user.
QStringList UnreadableForOthers(QString const& folder, QStringList const& names);

/// The path of \a fileName in \a folder, as it is shown as well.
QString PathIn(QString const& folder, QString const& fileName);

} // namespace Pelnar::Publisher
