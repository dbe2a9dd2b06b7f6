#include "Engine/ui/ProgressWindow.h"

#include "Engine/ui/ProgressText.h"
#include "Engine/ui/ServerText.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace Pelnar::Engine
{
namespace
{

QString JoinedByDash(QString const& first, QString const& second)
{
    return first.isEmpty() || second.isEmpty() ? first + second : first + QStringLiteral(" – ") + second;
}

} // namespace

ProgressWindow::ProgressWindow(NamedVersion const& update, std::function<void()> const& onCancelled)
    : EngineWindow(QStringLiteral("PelnarEngine_progressWindow"), CheckOrigin::User)
{
    QString const name = ShownName(update.applicationName);
    QString const version = ShownVersion(update.version);
    m_downloadingText = QCoreApplication::translate("PelnarEngine_ProgressWindow", "Downloading %1 %2…",
                                                    "%1 is the application's name, %2 the new version")
                            .arg(name, version);
    m_preparingText = QCoreApplication::translate("PelnarEngine_ProgressWindow", "Verifying and unpacking %1 %2…",
                                                  "%1 is the application's name, %2 the new version")
                          .arg(name, version);
    m_heading = AddHeading(QStringLiteral("PelnarEngine_heading"), m_downloadingText);
    m_bar = AddProgressBar(QStringLiteral("PelnarEngine_progressBar"),
                           QCoreApplication::translate("PelnarEngine_ProgressWindow", "Progress of the update"));
    m_amount = AddText(QStringLiteral("PelnarEngine_amount"),
                       QCoreApplication::translate("PelnarEngine_ProgressWindow", "Waiting for the server…"));
    m_speed = AddText(QStringLiteral("PelnarEngine_speed"), QString());
    // These texts change all the time: with word wrap the window would jump.
    for (QLabel* const label : {m_amount, m_speed})
    {
        label->setWordWrap(false);
        label->setMinimumWidth(0);
    }
    AddCancelAnswer(onCancelled);
}

void ProgressWindow::SetProgress(UpdateProgress const& progress)
{
    bool const isDownload = progress.phase == UpdatePhase::Downloading;
    bool const isTotalKnown = progress.totalBytes > 0;
    m_heading->setText(Directed(isDownload ? m_downloadingText : m_preparingText));
    m_bar->setRange(0, isTotalKnown ? 1000 : 0);
    m_bar->setValue(isTotalKnown ? DoneThousandths(progress) : 0);
    m_amount->setText(Directed(AmountText(progress)));
    m_speed->setText(isDownload ? Directed(JoinedByDash(RateText(progress), TimeLeftText(progress))) : QString());
    GrowToContent();
}

} // namespace Pelnar::Engine
