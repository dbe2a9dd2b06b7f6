#include "Engine/objc/ApplicationPlaces_p.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/NoteFile.h"
#include "Settings/ApplicationFolder.h"

#include <QDir>
#include <QUrl>

#include <glog/logging.h>

#include <cerrno>

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

using Settings::BaseFolder;

/// The host may keep its own files next to it, and other users may be allowed to write there.
constexpr char OWN_FOLDER[] = "updates";

/// Empty for a person without a home.
std::string PathIn(BaseFolder base, QString const& bundleIdentifier)
{
    Settings::ApplicationFolder const folder = Settings::FolderOf(base, bundleIdentifier);
    return folder.base.empty() ? std::string() : folder.Path() + '/' + OWN_FOLDER;
}

std::string EarlierDownloadFolder(QString const& bundleIdentifier)
{
    std::string const base = Settings::BaseFolderPath(BaseFolder::Cache);
    return base.empty() ? base
                        : base + "/pelnar-updates/" + QUrl::toPercentEncoding(bundleIdentifier, {}, ".").toStdString();
}

void MoveRecord(int from, int to, std::string const& name)
{
    try
    {
        WriteNote(to, name, ReadNote(from, name));
        RemoveNote(from, name);
    }
    catch (UpdateRefusal const& refusal)
    {
        LOG(WARNING) << "The record of the last installation could not be moved: " << refusal.what();
    }
}

void TakeOver(UniqueFd const& earlier, std::string const& earlierPath, QString const& bundleIdentifier)
{
    QStringList const records = QDir(PathForQt(earlier.Get(), PathText(earlierPath)))
                                    .entryList({QStringLiteral("*.installation")}, QDir::Files);
    if (UniqueFd const state =
            records.isEmpty() ? UniqueFd() : OpenPrivateFolder(PathIn(BaseFolder::State, bundleIdentifier)))
    {
        for (QString const& name : records)
        {
            MoveRecord(earlier.Get(), state.Get(), name.toStdString());
        }
    }
    std::string const path = PathIn(BaseFolder::Cache, bundleIdentifier);
    MakeFoldersAbove(path);
    bool const isMoved = ::renameat2(AT_FDCWD, earlierPath.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0;
    PLOG_IF(WARNING, !isMoved && errno != EEXIST) << "The downloads in " << earlierPath << " could not be moved";
    // The parent folder is empty if this was the last application.
    static_cast<void>(::rmdir(earlierPath.substr(0, earlierPath.rfind('/')).c_str()));
}

} // namespace

QString DownloadFolderOf(QString const& bundleIdentifier)
{
    std::string const earlierPath = EarlierDownloadFolder(bundleIdentifier);
    UniqueFd const earlier = OpenFolder(AT_FDCWD, earlierPath);
    struct stat status;
    if (earlier && ::fstat(earlier.Get(), &status) == 0 && status.st_uid == ::geteuid())
    {
        TakeOver(earlier, earlierPath, bundleIdentifier);
    }
    return PathText(PathIn(BaseFolder::Cache, bundleIdentifier));
}

QString StateFolderOf(QString const& bundleIdentifier)
{
    return PathText(PathIn(BaseFolder::State, bundleIdentifier));
}

QString FeedRecordFileOf(QString const& bundleIdentifier)
{
    Settings::OpenedFolder const above = Settings::OpenApplicationFolder(
        Settings::FolderOf(BaseFolder::State, bundleIdentifier), Settings::MissingFolder::Leave);
    if (!above.folder && above.errorNumber != ENOENT)
    {
        LOG(WARNING) << "The record of the feed is neither read nor saved: " << above.reason;
        return {};
    }
    return StateFolderOf(bundleIdentifier) + QStringLiteral("/feed");
}

} // namespace Pelnar::Engine
