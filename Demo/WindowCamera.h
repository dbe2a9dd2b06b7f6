// WindowCamera.h: saves a picture of every window that opens, for a demonstration without a person.
// Thread: the Qt main thread. Ownership: observes the application while it lives.
#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::Demo
{

class WindowCamera : public QObject
{
    Q_OBJECT

public:
    enum class AfterPicture
    {
        LeaveOpen,
        DismissDialogs, ///< closes a dialog like its close button
    };

    /// Pictures are saved in \a folder as "<object name>.png"; with a null path none are saved.
    WindowCamera(QString const& folder, AfterPicture afterPicture);

    /// Takes a picture now; it replaces an earlier one with the same name.
    void TakePicture(QWidget& window) const;
    /// False if a picture could not be written.
    [[nodiscard]] bool HasWrittenAll() const { return m_hasWrittenAll; }

Q_SIGNALS:
    /// The window has been shown and its picture taken.
    void WindowShown(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void HandleShown(QWidget& window);
    /// For a window that opens with an empty progress bar, a picture at half progress says more.
    void TakeAgainAtHalf(QWidget& window);

    QString m_folder;
    AfterPicture m_afterPicture;
    mutable bool m_hasWrittenAll = true;
};

} // namespace Pelnar::Demo
