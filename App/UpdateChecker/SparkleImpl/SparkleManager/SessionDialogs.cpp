#include "App/UpdateChecker/SparkleImpl/SparkleManager/SessionDialogs.h"

#include "HostFramework/AlertBox.h"
#include "HostFramework/VersionText.h"
#include "common/ValueGuard.h"

#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>

namespace Pelnar::App::Session
{
namespace
{

using Util::AlertBox;

/// Owns a dialog whose parent may delete it while it runs.
class RunningBox
{
public:
    RunningBox(AlertBox::Level level, QString const& text, QMessageBox::StandardButtons buttons, QWidget* parent,
               QString const& objectName)
        : m_box(new AlertBox(level, QString(), text, buttons, parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint))
    {
        m_box->setObjectName(objectName);
    }
    ~RunningBox() { delete m_box; }
    RunningBox(RunningBox const&) = delete;
    RunningBox& operator=(RunningBox const&) = delete;

    AlertBox* operator->() const { return m_box; }

    /// The button that ended the dialog. Null if the dialog ended without a button, or was destroyed.
    QAbstractButton* Run(std::function<void()>& closeDialog)
    {
        Core::ValueGuard<std::function<void()>> const guard(closeDialog,
                                                            [box = m_box]
                                                            {
                                                                if (box)
                                                                {
                                                                    box->close();
                                                                }
                                                            });
        (void)m_box->Exec();
        return m_box ? m_box->clickedButton() : nullptr;
    }

private:
    QPointer<AlertBox> m_box;
};

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
