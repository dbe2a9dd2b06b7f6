#include "Engine/ui/ErrorWindow.h"

#include "Engine/ui/ServerText.h"

#include <QCoreApplication>
#include <QLabel>

namespace Pelnar::Engine
{

ErrorWindow::ErrorWindow(Sentence const& sentence)
    : EngineWindow(QStringLiteral("PelnarEngine_errorWindow"), CheckOrigin::User)
{
    ShowWarningIcon();
    AddHeading(QStringLiteral("PelnarEngine_heading"),
               QCoreApplication::translate("PelnarEngine_ErrorWindow", "The update could not be completed"));
    // The sentence may contain a command to copy.
    AddText(QStringLiteral("PelnarEngine_detail"), ShownSentence(sentence, layoutDirection()))
        ->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    AddOnlyAnswer([this] { Q_EMIT Closed(); });
}

} // namespace Pelnar::Engine
