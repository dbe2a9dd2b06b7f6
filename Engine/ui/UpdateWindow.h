// UpdateWindow.h: offers an update: what is new, its size, and whether to install it.
// Thread: the Qt main thread. Ownership: the maker's.
#pragma once

#include "Engine/ui/EngineWindow.h"

#include <QUrl>

namespace Pelnar::Engine
{

class NotesBrowser;

class UpdateWindow : public EngineWindow
{
    Q_OBJECT

public:
    UpdateWindow(UpdateOffer const& offer, CheckOrigin origin);

    /// Shows \a notes in place of the previous ones. For notes at a link it shows a button.
    void SetReleaseNotes(ReleaseNotes const& notes);

Q_SIGNALS:
    void Chosen(Pelnar::Engine::UpdateChoice choice);
    /// A person clicked a link that may be followed.
    void LinkActivated(QUrl const& address);

private:
    void AddTexts(UpdateOffer const& offer);
    void AddNotes(ReleaseNotes const& notes);
    void AddAnswers(UpdateOffer const& offer);
    QPushButton* AddAgreement(UpdateOffer const& offer);

    NotesBrowser* m_notes = nullptr;
    QPushButton* m_linkButton = nullptr;
    QUrl m_notesAddress;
};

} // namespace Pelnar::Engine
