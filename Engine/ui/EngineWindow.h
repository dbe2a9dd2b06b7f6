// EngineWindow.h: the common parts of all windows of the engine: texts next to an icon, a row of buttons, one answer.
// It belongs to no window of the host, does not keep the application running, and takes the focus only if a person
// requested the check.
// Thread: the Qt main thread. Ownership: the maker's. Its texts are in the language of its creation time.
#pragma once

#include "Engine/core/update/WindowContent.h"

#include <QDialog>

#include <functional>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace Pelnar::Engine
{

class EngineWindow : public QDialog
{
    Q_OBJECT

public:
    enum class ButtonPlace
    {
        Start, ///< separate from the answers that continue
        End,
    };

    EngineWindow(QString const& objectName, CheckOrigin origin);

    /// Shows the window: in front and with the focus if a person requested the check, otherwise without both.
    void Present();
    void BringToFront();
    /// Closes the window without an answer. The event loop deletes it.
    void Dismiss();

    /// Esc and the close button are an answer too: each window defines which.
    void reject() override;

    QLabel* AddHeading(QString const& objectName, QString const& text);
    QLabel* AddText(QString const& objectName, QString const& text);
    /// A text that is not in the language of the windows; it keeps its own direction.
    QLabel* AddGivenText(QString const& objectName, QString const& text);
    /// Gives an own text the direction of the windows, even if it starts with a name in another script.
    [[nodiscard]] QString Directed(QString const& text) const;
    QProgressBar* AddProgressBar(QString const& objectName, QString const& accessibleName);
    void AddContent(QWidget* widget);
    /// Buttons are added from first to last in reading direction; a click gives the answer \a onClicked.
    QPushButton* AddAnswer(QString const& objectName, QString const& text, ButtonPlace place,
                           std::function<void()> onClicked);
    /// "OK", for a window with one choice; Enter, Esc and the close button give it too.
    void AddOnlyAnswer(std::function<void()> const& onGiven);
    /// "Cancel", which Esc and the close button give too. Enter does not cancel: no person intends that.
    void AddCancelAnswer(std::function<void()> const& onCancelled);
    /// The answer of Esc and of the close button.
    void SetDismissal(std::function<void()> onDismissed);
    /// The button that Enter presses in a window that a person requested; in other windows \a quiet has the focus.
    void SetDefaultAnswer(QPushButton* button, QWidget* quiet);
    void ShowWarningIcon();
    /// After a change of content: the window grows so that nothing is cut off. It never shrinks under the pointer.
    void GrowToContent();

private:
    void Answer(std::function<void()> const& answer);
    void ShowIcon(QIcon const& icon);

    CheckOrigin m_origin;
    QLabel* m_icon;
    QVBoxLayout* m_content;
    QHBoxLayout* m_buttons;
    std::function<void()> m_onDismissed;
    bool m_isAnswered = false;
};

} // namespace Pelnar::Engine
