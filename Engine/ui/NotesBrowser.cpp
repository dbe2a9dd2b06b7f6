#include "Engine/ui/NotesBrowser.h"

#include "Engine/ui/SafeUrl.h"

#include <QVariant>

namespace Pelnar::Engine
{

NotesBrowser::NotesBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setOpenExternalLinks(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    connect(this, &QTextBrowser::anchorClicked, this, &NotesBrowser::ActivateIfSafe);
    connect(this, qOverload<QUrl const&>(&QTextBrowser::highlighted), this, &NotesBrowser::ShowAddressTooltip);
}

void NotesBrowser::ShowNotes(QString const& text, ReleaseNotesFormat format)
{
    std::string const html = FilterReleaseNotes(text.toStdString(), format).html;
    setHtml(QString::fromStdString(html));
}

QVariant NotesBrowser::loadResource(int, QUrl const&)
{
    return {};
}

void NotesBrowser::ActivateIfSafe(QUrl const& address)
{
    QUrl const safe = SafeUrl(address);
    if (!safe.isEmpty())
    {
        Q_EMIT LinkActivated(safe);
    }
}

/// A person sees the target of a link before a click. An encoded address contains no markup.
void NotesBrowser::ShowAddressTooltip(QUrl const& address)
{
    setToolTip(QString::fromLatin1(SafeUrl(address).toEncoded()));
}

} // namespace Pelnar::Engine
