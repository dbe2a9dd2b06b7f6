// UpdateCheckReport.h: the outcome of a check as pelnar-update-check prints it.
// Thread: any. Ownership: plain values.
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
    std::string failure; ///< why the check could not be completed; empty when it was
};

/// By the failure, else by the versions of the first OnUpdateFound: without one, or with a remote version that is not
/// newer, there is no update.
CheckOutcome OutcomeOf(UpdateCheckReport const& report);

/// One line: "update available: 5.9 -> 5.10".
QString SummaryOf(UpdateCheckReport const& report);

/// One JSON object: "outcome" (failed, no-update, update or major-update), "current", "remote" where there is an
/// update, "error" where there is a failure, "notifications".
QByteArray JsonOf(UpdateCheckReport const& report);

/// 1 for a failure, else 0 or, with \a outcomeInExitStatus, 10 for an update and 11 for a major one.
int ExitStatusOf(CheckOutcome outcome, bool outcomeInExitStatus);

} // namespace Pelnar::Demo
