// UpdateWindow.h: offers an update: what is new, its size, and whether to install it.
// Thread: the Qt main thread. Ownership: the maker's.
#pragma once

#include "Engine/ui/EngineWindow.h"

#include <QUrl>

namespace Pelnar::Engine
{

class UpdateWindow : public EngineWindow
{
    Q_OBJECT

public:
    /// \a openLink gets an address that a person clicked and that may be followed.
    UpdateWindow(UpdateOffer const& offer, CheckOrigin origin, std::function<void(UpdateChoice)> onChosen,
                 std::function<void(QUrl const&)> openLink);

private:
    void AddTexts(UpdateOffer const& offer);
    void AddNotes(ReleaseNotes const& notes);
    void AddAnswers(UpdateOffer const& offer);
    QPushButton* AddAgreement(UpdateOffer const& offer);

    std::function<void(UpdateChoice)> m_onChosen;
    std::function<void(QUrl const&)> m_openLink;
};

} // namespace Pelnar::Engine
