// FolderScan.h: the files of a publisher's folder that belong in a feed: archives of bundles, installers, deltas, and
// their notes.
#pragma once

#include "Publisher/TextLiterals.h"
#include "Publisher/files/InputFile.h"

#include <QString>
#include <QStringList>

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
    QString stem; ///< the common part of the archive's and its notes' names, without endings and marks
    ArchiveKind kind = ArchiveKind::Bundle;
    bool isNamedAsContainer = false; ///< has the ending of a zip or a tar, for any kind
};

/// For a delta that cannot be used.
inline QString const MEND_OF_DELTA = u"remove it: generate makes the delta again if it is needed"_s;

/// The archives of \a folder, sorted by name; hidden files are ignored. Throws Refusal for a folder that cannot be
/// read, and for a link with the name of an archive.
std::vector<FolderArchive> ScanFolder(QString const& folder);

/// Notes as the text of an item's description: HTML that every client shows in the same way.
struct ReleaseNotes
{
    QString language; ///< as xml:lang writes it; empty for those for all other languages
    QString html;
    QString fileName; ///< in their folder
};

/// The notes next to an archive, those without a language first. Notes are STEM.html, .htm, .md, .markdown or .txt, and
/// for a language STEM.LANGUAGE.html and so on. Throws Refusal for several notes of one language, and for notes that
/// cannot be read, are not UTF-8, or exceed the limits of clients.
std::vector<ReleaseNotes> ReadReleaseNotes(QString const& folder, QString const& stem);

/// The other names in \a folder: not \a archives, their notes or \a feedFile. Folders end in "/". Hidden files are left
/// out; names that cannot be decoded are included.
QStringList IgnoredFiles(QString const& folder, std::vector<FolderArchive> const& archives, QString const& feedFile);

/// Those of \a names, files of \a folder, that only some users may read. A web server runs as another user.
QStringList UnreadableForOthers(QString const& folder, QStringList const& names);

/// The path of \a fileName in \a folder, also for messages.
QString PathIn(QString const& folder, QString const& fileName);

} // namespace Pelnar::Publisher
