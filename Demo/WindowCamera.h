// WindowCamera.h: leaves a picture of every window that opens, for a demonstration that nobody watches.
// Thread: the Qt main thread. Ownership: watches the application while it lives.
#pragma once

#include <QDir>
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
        DismissDialogs, ///< closes a dialog as its close button does
    };

    /// Pictures go to \a folder as "<object name>.png"; a null path takes none.
    WindowCamera(QString const& folder, AfterPicture afterPicture);

    /// Takes a picture now, in the place of an earlier one of the same name.
    void TakePicture(QWidget& window) const;
    /// False when a picture could not be written.
    [[nodiscard]] bool HasWrittenAll() const { return m_hasWrittenAll; }

Q_SIGNALS:
    /// The window has been shown, and its picture taken.
    void WindowShown(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void HandleShown(QWidget& window);
    /// A window that opens with an empty progress bar is more telling once half is done.
    void TakeAgainAtHalf(QWidget& window);

    QString m_folder;
    AfterPicture m_afterPicture;
    mutable bool m_hasWrittenAll = true;
};

} // namespace Pelnar::Demo
