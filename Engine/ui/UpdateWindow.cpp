#include "Engine/ui/UpdateWindow.h"

#include "Engine/ui/NotesBrowser.h"
#include "Engine/ui/ProgressText.h"
#include "Engine/ui/SafeUrl.h"
#include "Engine/ui/ServerText.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

namespace Pelnar::Engine
{
namespace
{

constexpr int NOTES_WIDTH = 480;
constexpr int NOTES_HEIGHT = 240;

} // namespace

UpdateWindow::UpdateWindow(UpdateOffer const& offer, CheckOrigin origin, std::function<void(UpdateChoice)> onChosen,
                           std::function<void(QUrl const&)> openLink)
    : EngineWindow(QStringLiteral("PelnarEngine_updateWindow"), origin)
    , m_onChosen(std::move(onChosen))
    , m_openLink(std::move(openLink))
{
    AddTexts(offer);
    AddNotes(offer.notes);
    AddAnswers(offer);
}

void UpdateWindow::AddTexts(UpdateOffer const& offer)
{
    QString const name = ShownName(offer.applicationName);
    AddHeading(QStringLiteral("PelnarEngine_heading"),
               QCoreApplication::translate("PelnarEngine_UpdateWindow", "A new version of %1 is available!",
                                           "%1 is the application's name")
                   .arg(name));
    QString const detail =
        offer.form == UpdateForm::Page
            ? QCoreApplication::translate("PelnarEngine_UpdateWindow",
                                          "%1 %2 is now available; you have %3. Its page says how to get it.",
                                          "%1 is the application's name, %2 the new version, %3 the installed version")
            : QCoreApplication::translate("PelnarEngine_UpdateWindow",
                                          "%1 %2 is now available; you have %3. Would you like to download it now?",
                                          "%1 is the application's name, %2 the new version, %3 the installed version");
    AddText(QStringLiteral("PelnarEngine_detail"),
            detail.arg(name, ShownVersion(offer.version), ShownVersion(offer.currentVersion)));
    if (offer.importance == UpdateImportance::Critical)
    {
        AddText(QStringLiteral("PelnarEngine_importance"),
                QCoreApplication::translate("PelnarEngine_UpdateWindow",
                                            "This update is important: it should be installed soon."));
    }
    if (offer.sizeBytes > 0)
    {
        AddText(QStringLiteral("PelnarEngine_size"),
                QCoreApplication::translate("PelnarEngine_UpdateWindow", "Download size: %1", "%1 is a size like 40 MB")
                    .arg(SizeText(offer.sizeBytes)));
    }
    QString const title = ShownName(offer.title);
    if (!title.isEmpty())
    {
        QLabel* const label = AddGivenText(QStringLiteral("PelnarEngine_title"), title);
        QFont font = label->font();
        font.setBold(true);
        label->setFont(font);
    }
}

void UpdateWindow::AddNotes(ReleaseNotes const& notes)
{
    auto* const browser = new NotesBrowser(this);
    browser->setObjectName(QStringLiteral("PelnarEngine_releaseNotes"));
    browser->setAccessibleName(QCoreApplication::translate("PelnarEngine_UpdateWindow", "Release notes"));
    browser->setMinimumSize(NOTES_WIDTH, NOTES_HEIGHT);
    connect(browser, &NotesBrowser::LinkActivated, this, m_openLink);
    browser->ShowNotes(notes.text, notes.format);
    bool const hasText = !browser->document()->isEmpty();
    browser->setVisible(hasText);
    AddContent(browser);

    QUrl const address = SafeUrl(notes.address);
    auto* const button = new QPushButton(
        QCoreApplication::translate("PelnarEngine_UpdateWindow", "Show Release &Notes in Browser"), this);
    button->setObjectName(QStringLiteral("PelnarEngine_showNotesButton"));
    button->setAutoDefault(false);
    button->setToolTip(QString::fromLatin1(address.toEncoded()));
    button->setVisible(!hasText && !address.isEmpty());
    connect(button, &QPushButton::clicked, this, [this, address] { m_openLink(address); });
    AddContent(button);
}

QPushButton* UpdateWindow::AddAgreement(UpdateOffer const& offer)
{
    if (offer.form == UpdateForm::Download)
    {
        return AddAnswer(QStringLiteral("PelnarEngine_installButton"),
                         QCoreApplication::translate("PelnarEngine_UpdateWindow", "&Install Update"), ButtonPlace::End,
                         [this] { m_onChosen(UpdateChoice::InstallUpdate); });
    }
    QUrl const page = SafeUrl(offer.page);
    if (page.isEmpty())
    {
        return nullptr;
    }
    QPushButton* const button =
        AddAnswer(QStringLiteral("PelnarEngine_pageButton"),
                  QCoreApplication::translate("PelnarEngine_UpdateWindow", "&Open Its Page"), ButtonPlace::End,
                  [this, page]
                  {
                      m_openLink(page);
                      m_onChosen(UpdateChoice::RemindMeLater);
                  });
    button->setToolTip(QString::fromLatin1(page.toEncoded()));
    return button;
}

void UpdateWindow::AddAnswers(UpdateOffer const& offer)
{
    auto const choose = [this](UpdateChoice choice) { return [this, choice] { m_onChosen(choice); }; };
    if (offer.importance != UpdateImportance::Critical)
    {
        AddAnswer(QStringLiteral("PelnarEngine_skipButton"),
                  QCoreApplication::translate("PelnarEngine_UpdateWindow", "&Skip This Version"), ButtonPlace::Start,
                  choose(UpdateChoice::SkipThisVersion));
    }
    QPushButton* const remindButton =
        AddAnswer(QStringLiteral("PelnarEngine_remindButton"),
                  QCoreApplication::translate("PelnarEngine_UpdateWindow", "&Remind Me Later"), ButtonPlace::End,
                  choose(UpdateChoice::RemindMeLater));
    QPushButton* const agreement = AddAgreement(offer);
    SetDefaultAnswer(agreement ? agreement : remindButton, remindButton);
    SetDismissal(choose(UpdateChoice::RemindMeLater));
}

} // namespace Pelnar::Engine
