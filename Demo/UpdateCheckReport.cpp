#include "Demo/UpdateCheckReport.h"

#include "Demo/CheckRun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Pelnar::Demo
{
namespace
{

constexpr int STATUS_COMPLETED = 0;
constexpr int STATUS_FAILED = 1;
constexpr int STATUS_UPDATE = 10;
constexpr int STATUS_MAJOR_UPDATE = 11;

std::optional<Versions> FoundVersions(UpdateCheckReport const& report)
{
    for (Notification const& notification : report.notifications)
    {
        if (notification.name == QLatin1String("OnUpdateFound"))
        {
            return notification.versions;
        }
    }
    return std::nullopt;
}

QString NameOf(CheckOutcome outcome)
{
    switch (outcome)
    {
    case CheckOutcome::Failed:
        return QStringLiteral("failed");
    case CheckOutcome::NoUpdate:
        return QStringLiteral("no-update");
    case CheckOutcome::Update:
        return QStringLiteral("update");
    case CheckOutcome::MajorUpdate:
        return QStringLiteral("major-update");
    }
    return QString();
}

QString JoinedVersions(UpdateCheckReport const& report)
{
    return TextOf(report.localVersion) + QStringLiteral(" -> ") + TextOf(FoundVersions(report)->remote);
}

} // namespace

CheckOutcome OutcomeOf(UpdateCheckReport const& report)
{
    if (!report.failure.empty())
    {
        return CheckOutcome::Failed;
    }
    std::optional<Versions> const found = FoundVersions(report);
    int const all = Core::Version::COMPONENT_COUNT;
    if (!found || !(Core::Util::ShrinkVersion(found->current, all) < Core::Util::ShrinkVersion(found->remote, all)))
    {
        return CheckOutcome::NoUpdate;
    }
    return found->remote.Major() > found->current.Major() ? CheckOutcome::MajorUpdate : CheckOutcome::Update;
}

QString SummaryOf(UpdateCheckReport const& report)
{
    switch (OutcomeOf(report))
    {
    case CheckOutcome::Failed:
        return QStringLiteral("the check could not be completed: ") + QString::fromStdString(report.failure);
    case CheckOutcome::NoUpdate:
        return QStringLiteral("no update: ") + TextOf(report.localVersion);
    case CheckOutcome::Update:
        return QStringLiteral("update available: ") + JoinedVersions(report);
    case CheckOutcome::MajorUpdate:
        return QStringLiteral("major update available: ") + JoinedVersions(report);
    }
    return QString();
}

QByteArray JsonOf(UpdateCheckReport const& report)
{
    CheckOutcome const outcome = OutcomeOf(report);
    QJsonArray notifications;
    for (Notification const& notification : report.notifications)
    {
        QJsonObject entry{{QStringLiteral("name"), notification.name}};
        if (notification.versions)
        {
            entry.insert(QStringLiteral("current"), TextOf(notification.versions->current));
            entry.insert(QStringLiteral("remote"), TextOf(notification.versions->remote));
        }
        notifications.append(entry);
    }
    QJsonObject object{{QStringLiteral("outcome"), NameOf(outcome)},
                       {QStringLiteral("current"), TextOf(report.localVersion)},
                       {QStringLiteral("notifications"), notifications}};
    if (outcome == CheckOutcome::Failed)
    {
        object.insert(QStringLiteral("error"), QString::fromStdString(report.failure));
    }
    if (outcome == CheckOutcome::Update || outcome == CheckOutcome::MajorUpdate)
    {
        object.insert(QStringLiteral("remote"), TextOf(FoundVersions(report)->remote));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

int ExitStatusOf(CheckOutcome outcome, bool outcomeInExitStatus)
{
    switch (outcome)
    {
    case CheckOutcome::Failed:
        return STATUS_FAILED;
    case CheckOutcome::NoUpdate:
        return STATUS_COMPLETED;
    case CheckOutcome::Update:
        return outcomeInExitStatus ? STATUS_UPDATE : STATUS_COMPLETED;
    case CheckOutcome::MajorUpdate:
        return outcomeInExitStatus ? STATUS_MAJOR_UPDATE : STATUS_COMPLETED;
    }
    return STATUS_FAILED;
}

} // namespace Pelnar::Demo
