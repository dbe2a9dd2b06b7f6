// NotesViewer.cpp: a program that shows every hostile document that refers to something, one after another, for a test
// that watches its system calls. Usage: notes_viewer window|plain CANARY_PATH CANARY_ADDRESS
//   window  in the engine's update window
//   plain   unfiltered in an ordinary rich-text view: proves that the watcher sees what it watches for

#include "tests/engine_ui/HostileNotes.h"
#include "tests/engine_ui/WindowCases.h"

#include <QApplication>
#include <QPixmap>
#include <QPushButton>
#include <QTextBrowser>

namespace
{

void ShowInWindow(QString const& text, Pelnar::Engine::ReleaseNotesFormat format)
{
    using namespace Pelnar::Engine;
    WidgetUserInterface ui([](QUrl const&) {});
    UpdateOffer offer = Pelnar::Testing::FullOffer();
    offer.notes.text = text;
    offer.notes.format = format;
    ui.ShowUpdate(offer, CheckOrigin::User, [](UpdateChoice) {});
    QCoreApplication::processEvents();
    for (QWidget* const window : QApplication::topLevelWidgets())
    {
        (void)window->grab();
    }
}

void ShowPlain(QString const& text)
{
    QTextBrowser browser;
    browser.setHtml(text);
    browser.show();
    QCoreApplication::processEvents();
    (void)browser.grab();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication const application(argc, argv);
    if (argc != 4)
    {
        return 2;
    }
    bool const isPlain = qstrcmp(argv[1], "plain") == 0;
    QString const exhausting = QStringLiteral("exhaust.");
    int shown = 0;
    for (Pelnar::Testing::HostileNotes const& notes : Pelnar::Testing::AllHostileNotes(argv[2], argv[3]))
    {
        QString const text = QString::fromStdString(notes.text);
        if (QString::fromStdString(notes.name).startsWith(exhausting))
        {
            continue; // refers to nothing that could be opened
        }
        if (!isPlain)
        {
            ShowInWindow(text, notes.format);
            ++shown;
        }
        else
        {
            ShowPlain(text);
            ++shown;
        }
    }
    return shown > 100 ? 0 : 1;
}
