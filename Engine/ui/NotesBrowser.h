// NotesBrowser.h: shows release notes. It loads nothing and follows no link: a signal reports a clicked http, https or
// mailto link.
// Thread: the Qt main thread. Ownership: by its parent.
#pragma once

#include "Engine/core/notes/ReleaseNotesFilter.h"

#include <QTextBrowser>
#include <QUrl>

namespace Pelnar::Engine
{

class NotesBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit NotesBrowser(QWidget* parent);

    /// \a text is filtered before it is shown.
    void ShowNotes(QString const& text, ReleaseNotesFormat format);

    QVariant loadResource(int type, QUrl const& name) override;

Q_SIGNALS:
    void LinkActivated(QUrl const& address);

private:
    void ActivateIfSafe(QUrl const& address);
    void ShowAddressTooltip(QUrl const& address);
};

} // namespace Pelnar::Engine
