// RunningBox.h: a modal box that can be closed from outside, and whose parent may delete it while it runs.
// Thread: the Qt main thread; it runs a nested event loop. Ownership: the scope owns the box.
#pragma once

#include "HostFramework/AlertBox.h"
#include "common/ScopedFunctionCall.h"
#include "common/ValueGuard.h"

#include <QPointer>
#include <QPushButton>

#include <functional>

namespace Pelnar::App
{

class RunningBox
{
public:
    RunningBox(Util::AlertBox::Level level, QString const& text, QMessageBox::StandardButtons buttons, QWidget* parent,
               QString const& objectName)
        : m_box(new Util::AlertBox(level, QString(), text, buttons, parent,
                                   Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint))
    {
        m_box->setObjectName(objectName);
    }
    ~RunningBox() { delete m_box; }
    RunningBox(RunningBox const&) = delete;
    RunningBox& operator=(RunningBox const&) = delete;

    Util::AlertBox* operator->() const { return m_box; }

    /// Returns the button that ended the box. Null if it ended without a button, or was destroyed. Meanwhile \a close
    /// closes it; afterwards \a close has its previous value, unless the object \a owner that holds it was destroyed.
    QAbstractButton* Run(std::function<void()>& close, QObject* owner = nullptr)
    {
        QPointer<QObject> const self(owner);
        Core::ValueGuard<std::function<void()>> guard(close,
                                                      [box = m_box]
                                                      {
                                                          if (box)
                                                          {
                                                              box->close();
                                                          }
                                                      });
        Core::ScopedFunctionCall const forgetDeadOwner(
            nullptr,
            [owner, &self, &guard]
            {
                if (owner && !self)
                {
                    guard.Forget();
                }
            },
            true);
        (void)m_box->Exec();
        return m_box ? m_box->clickedButton() : nullptr;
    }

private:
    QPointer<Util::AlertBox> m_box;
};

} // namespace Pelnar::App
