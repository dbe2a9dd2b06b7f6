#include "Engine/core/update/UpdateRules.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/bundle/Ed25519Signature.h"

#include <QDir>

#include <glog/logging.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include <limits.h>

namespace Pelnar::Engine
{
namespace
{

constexpr quint64 UNPACKED_PER_PACKED = 3;
constexpr char const* INSTALLER_MARKS[] = {".sparkle_guided.", ".sparkle_interactive."};

} // namespace

UpdateMode ModeOf(CheckKind kind, AutomaticDownload automaticDownload, FeedItem const& item)
{
    bool const isSilent =
        kind == CheckKind::Background && automaticDownload == AutomaticDownload::On && !item.policy.isToBeAsked;
    return isSilent ? UpdateMode::Silent : UpdateMode::Windows;
}

CheckOrigin OriginOf(CheckKind kind)
{
    return kind == CheckKind::Interactive ? CheckOrigin::User : CheckOrigin::Background;
}

PayloadKind KindOf(UpdateCandidate const& candidate)
{
    if (candidate.item.isDelta)
    {
        return PayloadKind::Delta;
    }
    QString const fileName = candidate.item.fileUrl.fileName();
    bool const isInstaller =
        std::any_of(std::begin(INSTALLER_MARKS), std::end(INSTALLER_MARKS),
                    [&fileName](char const* mark) { return fileName.contains(QLatin1String(mark)); });
    return isInstaller ? PayloadKind::Installer : PayloadKind::WholeBundle;
}

Result<void> JudgeBundle(RunningBundle const& bundle)
{
    if (UpdateFault const fault = bundle.publicKeys.Fault(); fault != UpdateFault::None)
    {
        return Failure(MakeFaultError(fault));
    }
    if (bundle.identifier.isEmpty() || bundle.version.isEmpty() || !QDir::isAbsolutePath(bundle.path))
    {
        return Failure(ErrorCause::BundleUnnamed);
    }
    return {};
}

Result<void> JudgeItem(FeedItem const& item)
{
    if (item.contentLength == 0)
    {
        return Failure(ErrorCause::DownloadLengthInvalid);
    }
    if (item.edSignature.isEmpty())
    {
        return Failure(MakeFaultError(UpdateFault::SignatureMissing));
    }
    Ed25519SignatureBytes signature;
    UpdateFault const fault = ParseSignature(item.edSignature.toStdString(), signature);
    return fault == UpdateFault::None ? Result<void>() : Failure(MakeFaultError(fault));
}

quint64 NeededBytes(std::vector<UpdateCandidate> const& candidates)
{
    quint64 longest = 0;
    for (UpdateCandidate const& candidate : candidates)
    {
        longest = std::max(longest, candidate.item.contentLength);
    }
    return std::min(longest, std::numeric_limits<quint64>::max() / UNPACKED_PER_PACKED) * UNPACKED_PER_PACKED;
}

DownloadRequest DownloadOf(FeedItem const& item, UpdateSettings const& settings)
{
    DownloadRequest request;
    request.url = item.fileUrl;
    request.declaredBytes = item.contentLength;
    request.signature = item.edSignature;
    request.folder = settings.downloadFolder;
    request.feedUrl = settings.check.feedUrl;
    request.feedReach = settings.feedReach;
    request.insecureHttp = settings.check.insecureHttp;
    request.limits = settings.check.fetchLimits;
    return request;
}

PrepareJob PreparationOf(UpdateCandidate const& candidate, RunningBundle const& bundle, std::string const& targetName)
{
    PrepareJob job;
    job.kind = KindOf(candidate);
    job.archiveBytes = candidate.item.contentLength;
    job.signature = candidate.item.edSignature.toStdString();
    job.publicKeys = bundle.publicKeys;
    job.bundleName = targetName;
    job.bundleIdentifier = bundle.identifier.toStdString();
    job.expectedVersion = candidate.item.versionString.toStdString();
    job.installedVersion = bundle.version.toStdString();
    return job;
}

InstallJob InstallationOf(UpdateCandidate const& candidate, RunningBundle const& bundle, std::string const& targetName)
{
    InstallJob job;
    // The result of a delta is a whole bundle here.
    job.kind = KindOf(candidate) == PayloadKind::Installer ? PayloadKind::Installer : PayloadKind::WholeBundle;
    job.targetName = targetName;
    job.bundleIdentifier = bundle.identifier.toStdString();
    job.expectedVersion = candidate.item.versionString.toStdString();
    job.installedVersion = bundle.version.toStdString();
    return job;
}

QString ShownVersionOf(FeedItem const& item)
{
    return item.displayVersionString.isEmpty() ? item.versionString : item.displayVersionString;
}

UpdateOffer OfferOf(FeedItem const& item, RunningBundle const& bundle)
{
    UpdateOffer offer;
    offer.applicationName = bundle.shownName;
    offer.currentVersion = bundle.shownVersion;
    offer.version = ShownVersionOf(item);
    offer.title = item.title;
    offer.sizeBytes = item.contentLength;
    offer.importance = item.isCritical ? UpdateImportance::Critical : UpdateImportance::Ordinary;
    if (item.policy.isInformational)
    {
        offer.form = UpdateForm::Page;
        offer.page = item.infoUrl.isEmpty() ? item.releaseNotesUrl : item.infoUrl;
        offer.sizeBytes = 0;
    }
    offer.notes.text = item.description;
    offer.notes.format = ReleaseNotesFormatFromText(item.descriptionFormat.toStdString());
    offer.notes.address = item.releaseNotesUrl;
    return offer;
}

bool IsShown(EngineError const& error, PersonAsked asked)
{
    return asked == PersonAsked::Yes && error.cause != ErrorCause::NoUpdate && error.cause != ErrorCause::Cancelled;
}

bool CountsForBackOff(EngineError const& error)
{
    switch (BlameOf(error))
    {
    case Blame::Network:
    case Blame::Server:
    case Blame::Feed:
    case Blame::Archive:
        return true;
    case Blame::Nobody:
    case Blame::Publisher:
    case Blame::Application:
    case Blame::Computer:
        return false;
    }
    return false;
}

std::string RelaunchPathOf(QString const& path)
{
    std::string bytes = PathBytes(path);
    if (path.isEmpty())
    {
        return bytes;
    }
    bool const isPath = bytes.front() == '/' && bytes.size() < PATH_MAX && bytes.find('\0') == std::string::npos;
    if (!isPath)
    {
        LOG(WARNING) << "The relaunch path " << EscapedRemoteText(path).toStdString()
                     << " is not absolute or not a path; the installed application is started instead";
        return {};
    }
    return bytes;
}

std::vector<std::string> EnvironmentOf(char const* const* environment)
{
    std::vector<std::string> entries;
    for (; environment && *environment; ++environment)
    {
        char const* const equals = std::strchr(*environment, '=');
        if (equals && equals != *environment)
        {
            entries.emplace_back(*environment);
        }
    }
    return entries;
}

} // namespace Pelnar::Engine
