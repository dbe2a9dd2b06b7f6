#include "Engine/ui/PlainWindows.h"

#include "Engine/ui/ServerText.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace Pelnar::Engine
{

std::unique_ptr<EngineWindow> MakeCheckingWindow(std::function<void()> const& onCancelled)
{
    auto window = std::make_unique<EngineWindow>(QStringLiteral("PelnarEngine_checkingWindow"), CheckOrigin::User);
    QString const text = QCoreApplication::translate("PelnarEngine_CheckingWindow", "Checking for updates…");
    window->AddHeading(QStringLiteral("PelnarEngine_heading"), text);
    window->AddProgressBar(QStringLiteral("PelnarEngine_progressBar"), text);
    window->AddCancelAnswer(onCancelled);
    return window;
}

std::unique_ptr<EngineWindow> MakeUpToDateWindow(NamedVersion const& installed, std::function<void()> const& onClosed)
{
    auto window = std::make_unique<EngineWindow>(QStringLiteral("PelnarEngine_upToDateWindow"), CheckOrigin::User);
    window->AddHeading(QStringLiteral("PelnarEngine_heading"),
                       QCoreApplication::translate("PelnarEngine_UpToDateWindow", "You're up to date!"));
    window->AddText(QStringLiteral("PelnarEngine_detail"),
                    QCoreApplication::translate("PelnarEngine_UpToDateWindow",
                                                "%1 %2 is currently the newest version available.",
                                                "%1 is the application's name, %2 its version")
                        .arg(ShownName(installed.applicationName), ShownVersion(installed.version)));
    window->AddOnlyAnswer(onClosed);
    return window;
}

std::unique_ptr<EngineWindow> MakeReadyWindow(NamedVersion const& update, CheckOrigin origin,
                                              std::function<void(ReadyChoice)> const& onChosen)
{
    auto window = std::make_unique<EngineWindow>(QStringLiteral("PelnarEngine_readyWindow"), origin);
    auto const later = [onChosen] { onChosen(ReadyChoice::Later); };
    window->AddHeading(QStringLiteral("PelnarEngine_heading"),
                       QCoreApplication::translate("PelnarEngine_ReadyWindow", "Ready to install"));
    window->AddText(QStringLiteral("PelnarEngine_detail"),
                    QCoreApplication::translate("PelnarEngine_ReadyWindow",
                                                "%1 %2 has been downloaded and verified. To install it, %1 will be "
                                                "closed and opened again.",
                                                "%1 is the application's name, %2 the new version")
                        .arg(ShownName(update.applicationName), ShownVersion(update.version)));
    QPushButton* const laterButton = window->AddAnswer(
        QStringLiteral("PelnarEngine_laterButton"), QCoreApplication::translate("PelnarEngine_ReadyWindow", "&Later"),
        EngineWindow::ButtonPlace::End, later);
    QPushButton* const installButton =
        window->AddAnswer(QStringLiteral("PelnarEngine_installAndRelaunchButton"),
                          QCoreApplication::translate("PelnarEngine_ReadyWindow", "&Install and Relaunch"),
                          EngineWindow::ButtonPlace::End, [onChosen] { onChosen(ReadyChoice::InstallAndRelaunch); });
    window->SetDefaultAnswer(installButton, laterButton);
    window->SetDismissal(later);
    return window;
}

std::unique_ptr<EngineWindow> MakeErrorWindow(Sentence const& sentence, std::function<void()> const& onClosed)
{
    auto window = std::make_unique<EngineWindow>(QStringLiteral("PelnarEngine_errorWindow"), CheckOrigin::User);
    window->ShowWarningIcon();
    window->AddHeading(QStringLiteral("PelnarEngine_heading"),
                       QCoreApplication::translate("PelnarEngine_ErrorWindow", "The update could not be completed"));
    // The sentence may contain a command to copy.
    window->AddText(QStringLiteral("PelnarEngine_detail"), ShownSentence(sentence, window->layoutDirection()))
        ->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    window->AddOnlyAnswer(onClosed);
    return window;
}

} // namespace Pelnar::Engine
