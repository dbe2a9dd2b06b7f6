// UpdateCheckReport.h: the result of a check as pelnar-update-check prints it.
#pragma once

#include "Demo/NotificationRecorder.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

namespace Pelnar::Demo
{

enum class CheckOutcome
{
    Failed,
    NoUpdate,
    Update,
    MajorUpdate,
};

struct UpdateCheckReport
{
    Core::Version localVersion;
    std::vector<Notification> notifications;
    std::string failure; ///< why the check could not be completed; empty if it was
};

/// From the failure, otherwise from the versions of the first OnUpdateFound. Without one, or with a remote version that
/// is not newer, there is no update.
CheckOutcome OutcomeOf(UpdateCheckReport const& report);

/// One line: "update available: 5.9 -> 5.10".
QString SummaryOf(UpdateCheckReport const& report);

/// One JSON object: "outcome" (failed, no-update, update or major-update), "current", "remote" if there is an update,
/// "error" if there is a failure, "notifications".
QByteArray JsonOf(UpdateCheckReport const& report);

/// 1 for a failure, otherwise 0 or, with \a outcomeInExitStatus, 10 for an update and 11 for a major one.
int ExitStatusOf(CheckOutcome outcome, bool outcomeInExitStatus);

} // namespace Pelnar::Demo
