#include "App/UpdateChecker/SparkleImpl/SparkleManager/SessionDialogs.h"

#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/RunningBox.h"
#include "HostFramework/VersionText.h"

#include <QCoreApplication>

namespace Pelnar::App::Session
{
namespace
{

using Util::AlertBox;

QString Translate(char const* text)
{
    return QCoreApplication::translate("SparkleUpdater", text);
}

} // namespace

void ShowUpdateError(QString const& text, QWidget* parent, std::function<void()>& closeDialog)
{
    RunningBox box(AlertBox::Critical, text, QMessageBox::Ok, parent,
                   QStringLiteral("SparkleUpdater_updateErrorDialog"));
    (void)box.Run(closeDialog);
}

ReadyToInstallAnswer AskReadyToInstall(QString const& applicationName, Core::Version const& version, QWidget* parent,
                                       std::function<void()>& closeDialog)
{
    QString const versionText =
        Util::VersionToString(version, Util::VersionToStringDetail::PresentComponents, QStringLiteral("."));
    QString const heading =
        Translate("A new version of %1 %2 is ready to install").arg(applicationName, QString::number(version.Major()));
    // The detail is markup, for its "<br>"; the heading is plain text.
    QString const detail =
        Translate("The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install "
                  "the update and relaunch %1 now?")
            .arg(applicationName.toHtmlEscaped(), versionText.toHtmlEscaped());

    RunningBox box(AlertBox::Question, heading, QMessageBox::NoButton, parent,
                   QStringLiteral("SparkleUpdater_updateIsReadyToInstallDialog"));
    box->setInformativeText(detail + QStringLiteral("<br>"));
    QAbstractButton const* const skip = box->addButton(Translate("Skip This Version"), QMessageBox::DestructiveRole);
    box->addButton(Translate("Remind Me Later"), QMessageBox::RejectRole);
    QAbstractButton const* const install = box->addButton(Translate("Install and Relaunch"), QMessageBox::AcceptRole);

    QAbstractButton const* const clicked = box.Run(closeDialog);
    if (clicked && clicked == skip)
    {
        return ReadyToInstallAnswer::SkipThisVersion;
    }
    if (clicked && clicked == install)
    {
        return ReadyToInstallAnswer::InstallAndRelaunch;
    }
    return ReadyToInstallAnswer::RemindLater;
}

} // namespace Pelnar::App::Session
