// EngineWindow.h: what all windows of the engine share: texts beside an icon, a row of buttons, one answer.
// It belongs to no window of the host, keeps no application alive, and takes the focus only when a person asked.
// Thread: the Qt main thread. Ownership: the maker's; its texts are those of the language at that time.
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
    /// Shows the window: in front and with the focus when a person asked for the check, else without either.
    void Present();
    void BringToFront();

    /// Esc and the close button are an answer too: each window says which.
    void reject() override;

protected:
    enum class ButtonPlace
    {
        Start, ///< apart from the answers that go on
        End,
    };

    EngineWindow(QString const& objectName, CheckOrigin origin);

    QLabel* AddHeading(QString const& objectName, QString const& text);
    QLabel* AddText(QString const& objectName, QString const& text);
    /// A text that is not of the language of the windows; it keeps its own direction.
    QLabel* AddGivenText(QString const& objectName, QString const& text);
    /// Makes a text of ours run in the direction of the windows even when it starts with a name in other letters.
    [[nodiscard]] QString Directed(QString const& text) const;
    QProgressBar* AddProgressBar(QString const& objectName, QString const& accessibleName);
    void AddContent(QWidget* widget);
    /// Buttons are added from the first to the last in reading direction; a click gives the answer \a onClicked.
    QPushButton* AddAnswer(QString const& objectName, QString const& text, ButtonPlace place,
                           std::function<void()> onClicked);
    /// "OK", for a window that leaves no choice; Enter, Esc and the close button give it too.
    void AddOnlyAnswer(std::function<void()> const& onGiven);
    /// The answer of Esc and of the close button.
    void SetDismissal(std::function<void()> onDismissed);
    /// The button that Enter presses in a window that a person asked for; otherwise \a quiet has the focus.
    void SetDefaultAnswer(QPushButton* button, QWidget* quiet);
    void ShowWarningIcon();
    /// After a change of content: nothing is cut off, and the window never shrinks under the pointer.
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
