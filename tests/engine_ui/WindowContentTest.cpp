// The content of each window, and the order of the windows.

#include "Engine/core/faults/EngineError.h"
#include "Engine/ui/NotesBrowser.h"
#include "Engine/ui/ProgressText.h"
#include "Engine/ui/ServerText.h"
#include "Engine/ui/Translations.h"
#include "tests/engine_ui/WindowsFixture.h"

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <limits>

namespace Pelnar::Testing
{
namespace
{

using namespace Engine;

class WindowContent : public WindowsFixture
{
protected:
    void ShowOffer(UpdateOffer const& offer)
    {
        Ui().ShowUpdate(offer, CheckOrigin::User, [this](UpdateChoice) { ++m_choices; });
    }
    static QString TextOf(char const* label) { return Part<QLabel>(label)->text(); }
    static bool HasPart(char const* name)
    {
        return VisibleWindows().front()->findChild<QWidget*>(QString::fromLatin1(name)) != nullptr;
    }
    /// Clicks the first character of \a text in the release notes.
    static void ClickInNotes(QString const& text)
    {
        auto* const notes = Part<QTextBrowser>("PelnarEngine_releaseNotes");
        QTextCursor cursor = notes->document()->find(text);
        ASSERT_FALSE(cursor.isNull()) << qPrintable(text);
        cursor.setPosition(cursor.selectionStart());
        notes->setTextCursor(cursor);
        notes->ensureCursorVisible();
        QTest::mouseClick(notes->viewport(), Qt::LeftButton, {}, notes->cursorRect().center() + QPoint(3, 0));
    }

    int m_choices = 0;
};

TEST_F(WindowContent, UpdateShowsBothVersionsSizeTitleAndNotes)
{
    ShowOffer(FullOffer());
    EXPECT_EQ(TextOf("PelnarEngine_heading"), QStringLiteral("A new version of Tidepool is available!"));
    EXPECT_EQ(TextOf("PelnarEngine_detail"),
              QStringLiteral("Tidepool 2.1.0 is now available; you have 2.0.3. Would you like to download it now?"));
    EXPECT_EQ(TextOf("PelnarEngine_size"), QStringLiteral("Download size: 45.6 MB"));
    EXPECT_EQ(TextOf("PelnarEngine_title"), QStringLiteral("Tidepool 2.1: the spring tide"));
    EXPECT_EQ(TextOf("PelnarEngine_importance"),
              QStringLiteral("This update is important: it should be installed soon."));
    auto* const notes = Part<QTextBrowser>("PelnarEngine_releaseNotes");
    EXPECT_TRUE(notes->isVisible());
    EXPECT_TRUE(notes->isReadOnly());
    EXPECT_TRUE(notes->toPlainText().contains(QStringLiteral("Faster start")));
    EXPECT_FALSE(Part<QPushButton>("PelnarEngine_showNotesButton")->isVisible());
}

TEST_F(WindowContent, CriticalUpdateCannotBeSkipped)
{
    ShowOffer(FullOffer());
    EXPECT_FALSE(HasPart("PelnarEngine_skipButton"));
}

TEST_F(WindowContent, UpdateWithAPageOpensItAndDownloadsNothing)
{
    UpdateOffer offer = FullOffer();
    offer.form = UpdateForm::Page;
    offer.page = QUrl(QStringLiteral("https://tidepool.example/2.1"));
    ShowOffer(offer);
    EXPECT_EQ(TextOf("PelnarEngine_detail"),
              QStringLiteral("Tidepool 2.1.0 is now available; you have 2.0.3. Its page says how to get it."));
    EXPECT_FALSE(HasPart("PelnarEngine_installButton"));
    Part<QPushButton>("PelnarEngine_pageButton")->click();
    EXPECT_EQ(Links(), std::vector<QUrl>{offer.page});
    EXPECT_EQ(m_choices, 1);
}

TEST_F(WindowContent, PageThatMayNotBeOpenedHasNoButton)
{
    UpdateOffer offer = FullOffer();
    offer.form = UpdateForm::Page;
    offer.page = QUrl(QStringLiteral("file:///etc/passwd"));
    ShowOffer(offer);
    EXPECT_FALSE(HasPart("PelnarEngine_pageButton"));
    EXPECT_FALSE(HasPart("PelnarEngine_installButton"));
}

TEST_F(WindowContent, UpdateLeavesOutWhatTheFeedDoesNotSay)
{
    UpdateOffer offer = FullOffer();
    offer.sizeBytes = 0;
    offer.title.clear();
    offer.importance = UpdateImportance::Ordinary;
    offer.notes = {};
    ShowOffer(offer);
    EXPECT_FALSE(HasPart("PelnarEngine_size"));
    EXPECT_FALSE(HasPart("PelnarEngine_title"));
    EXPECT_FALSE(HasPart("PelnarEngine_importance"));
    EXPECT_FALSE(Part<QTextBrowser>("PelnarEngine_releaseNotes")->isVisible());
    EXPECT_FALSE(Part<QPushButton>("PelnarEngine_showNotesButton")->isVisible());
}

TEST_F(WindowContent, TextOfTheServerIsPlainCleanAndShort)
{
    UpdateOffer offer = FullOffer();
    offer.title = QStringLiteral("<b>bold</b>\n\x07second\u202Eline ") + QString(5000, QLatin1Char('x'));
    offer.version = QStringLiteral("2.1\t<img src=x>%1%2%3") + QString(5000, QLatin1Char('9'));
    ShowOffer(offer);
    EXPECT_EQ(TextOf("PelnarEngine_title").left(26), QStringLiteral("<b>bold</b> secondline xxx"));
    EXPECT_EQ(TextOf("PelnarEngine_title").size(), 100);
    EXPECT_TRUE(TextOf("PelnarEngine_detail").startsWith(QStringLiteral("Tidepool 2.1 <img src=x>%1%2%3999")));
    EXPECT_LT(TextOf("PelnarEngine_detail").size(), 150);
    EXPECT_EQ(Part<QLabel>("PelnarEngine_title")->textFormat(), Qt::PlainText);
}

TEST_F(WindowContent, ErrorIsOneShortPlainSentenceThatCanBeCopied)
{
    QString const hostile = QStringLiteral("a\r\n<img src=x>\u2066b\u2069%2") + QString(100000, QLatin1Char('z'));
    Ui().ShowError(Sentence("Use %1 or %2.", {hostile, QStringLiteral("less")}), [] {});
    auto* const detail = Part<QLabel>("PelnarEngine_detail");
    EXPECT_TRUE(detail->text().startsWith(QStringLiteral("Use a <img src=x>b%2zz")));
    EXPECT_TRUE(detail->text().endsWith(QStringLiteral("zz\u2026 or less.")));
    EXPECT_EQ(detail->text().size(), 200 + 13);
    EXPECT_EQ(detail->textFormat(), Qt::PlainText);
    EXPECT_TRUE(detail->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
}

TEST_F(WindowContent, PathInAnErrorKeepsItsDirection)
{
    QString const path = QStringLiteral("/opt/Tidepool.AppImage");
    Sentence const error(MakeError(ErrorCause::BundleInImage).sentence.Source(), {path});
    for (char const* const language : {"en", "ar", "he"})
    {
        InstallTranslations(QLocale(QString::fromLatin1(language)));
        Ui().ShowError(error, [] {});
        QString const text = Part<QLabel>("PelnarEngine_detail")->text();
        bool const isTurned = qstrcmp(language, "en") != 0;
        EXPECT_EQ(text.isRightToLeft(), isTurned);
        EXPECT_EQ(text.contains(QChar(0x2068) + path + QChar(0x2069)), isTurned) << qPrintable(text);
        EXPECT_TRUE(text.contains(path)) << qPrintable(text);
    }
}

TEST_F(WindowContent, SizesInAnErrorAreThoseOfTheLanguage)
{
    QLocale::setDefault(QLocale(QLocale::German));
    InstallTranslations(QLocale());
    EngineError const error = MakeRoomError(ErrorCause::DownloadNoRoom, 45'600'000, 1'500);
    Ui().ShowError(error.sentence, [] {});
    QString const text = Part<QLabel>("PelnarEngine_detail")->text();
    EXPECT_TRUE(text.contains(QStringLiteral("45,6 MB")) && text.contains(QStringLiteral("1,5 kB")))
        << qPrintable(text);
    EXPECT_TRUE(error.sentence.English().contains(QStringLiteral("45.6 MB"))) << "a log is the same everywhere";
}

TEST_F(WindowContent, LinksInNotesAreTheHostsToOpen)
{
    ShowOffer(FullOffer());
    ClickInNotes(QStringLiteral("the manual"));
    ASSERT_EQ(Links().size(), 1U);
    EXPECT_EQ(Links().front(), QUrl(QStringLiteral("https://tidepool.example/manual")));
    EXPECT_EQ(m_choices, 0);
    EXPECT_TRUE(Part<QTextBrowser>("PelnarEngine_releaseNotes")->source().isEmpty());
    EXPECT_TRUE(Part<QTextBrowser>("PelnarEngine_releaseNotes")->toPlainText().contains(QStringLiteral("manual")));
}

TEST_F(WindowContent, LinksThatMustNotBeFollowedAreNoLinks)
{
    UpdateOffer offer = FullOffer();
    offer.notes.format = ReleaseNotesFormat::Html;
    offer.notes.text = QStringLiteral("<a href='javascript:x'>one</a> <a href='file:///etc/passwd'>two</a> "
                                      "<a href='mailto:a@b.example?attach=/etc/passwd'>three</a>");
    ShowOffer(offer);
    ClickInNotes(QStringLiteral("one"));
    ClickInNotes(QStringLiteral("two"));
    EXPECT_TRUE(Links().empty());
    ClickInNotes(QStringLiteral("three"));
    ASSERT_EQ(Links().size(), 1U);
    EXPECT_EQ(Links().front(), QUrl(QStringLiteral("mailto:a@b.example")));
}

TEST_F(WindowContent, AnAddressThatIsNotSafeIsNotToldEvenWhenTheViewIsTricked)
{
    ShowOffer(FullOffer());
    auto* const notes = Part<NotesBrowser>("PelnarEngine_releaseNotes");
    for (char const* const address : {"file:///etc/passwd", "javascript:alert(1)", "relative", "smb://host/share"})
    {
        Q_EMIT notes->anchorClicked(QUrl(QString::fromLatin1(address)));
    }
    EXPECT_TRUE(Links().empty());
    EXPECT_FALSE(
        notes->loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("file:///etc/passwd"))).isValid());
}

TEST_F(WindowContent, ALinkShowsWhereItLeads)
{
    ShowOffer(FullOffer());
    auto* const notes = Part<NotesBrowser>("PelnarEngine_releaseNotes");
    Q_EMIT notes->highlighted(QUrl(QStringLiteral("https://tidepool.example/<b>")));
    EXPECT_EQ(notes->toolTip(), QStringLiteral("https://tidepool.example/%3Cb%3E"));
    Q_EMIT notes->highlighted(QUrl());
    EXPECT_EQ(notes->toolTip(), QString());
}

TEST_F(WindowContent, NotesThatStandElsewhereAreOfferedByAButton)
{
    UpdateOffer offer = FullOffer();
    offer.notes.text.clear();
    offer.notes.address = QUrl(QStringLiteral("https://tidepool.example/notes"));
    ShowOffer(offer);
    EXPECT_FALSE(Part<QTextBrowser>("PelnarEngine_releaseNotes")->isVisible());
    ASSERT_TRUE(Part<QPushButton>("PelnarEngine_showNotesButton")->isVisible());
    Part<QPushButton>("PelnarEngine_showNotesButton")->click();
    ASSERT_EQ(Links().size(), 1U);
    EXPECT_EQ(Links().front(), offer.notes.address);
    EXPECT_EQ(m_choices, 0);
    EXPECT_EQ(VisibleWindows().size(), 1U) << "the window waits for its answer";
}

TEST_F(WindowContent, NotesAtAnAddressThatMustNotBeFollowedAreNotOffered)
{
    UpdateOffer offer = FullOffer();
    offer.notes.text.clear();
    offer.notes.address = QUrl(QStringLiteral("file:///etc/passwd"));
    ShowOffer(offer);
    EXPECT_FALSE(Part<QPushButton>("PelnarEngine_showNotesButton")->isVisible());
}

TEST_F(WindowContent, WhatComesForAnotherWindowIsIgnored)
{
    Ui().SetProgress({});
    Ui().BringToFront();
    EXPECT_TRUE(VisibleWindows().empty());
    Ui().ShowChecking([] {});
    Ui().SetProgress({});
    EXPECT_EQ(Part<QLabel>("PelnarEngine_heading")->text(), QStringLiteral("Checking for updates…"));
}

TEST_F(WindowContent, AnAnswerMayShowTheNextWindow)
{
    std::vector<std::string> order;
    Ui().ShowUpdate(FullOffer(), CheckOrigin::User,
                    [this, &order](UpdateChoice)
                    {
                        order.emplace_back("install");
                        Ui().ShowDownload({QStringLiteral("Tidepool"), QStringLiteral("2.1.0")},
                                          [this, &order]
                                          {
                                              order.emplace_back("cancel");
                                              Ui().ShowError(Sentence("Cancelled."), [] {});
                                          });
                    });
    Part<QPushButton>("PelnarEngine_installButton")->click();
    EXPECT_NE(Window(QStringLiteral("PelnarEngine_progressWindow")), nullptr);
    Part<QPushButton>("PelnarEngine_cancelButton")->click();
    EXPECT_NE(Window(QStringLiteral("PelnarEngine_errorWindow")), nullptr);
    EXPECT_EQ(VisibleWindows().size(), 1U);
    EXPECT_EQ(order, (std::vector<std::string>{"install", "cancel"}));
}

TEST_F(WindowContent, AnAnswerMayDestroyTheUserInterface)
{
    Ui().ShowReadyToInstall({}, CheckOrigin::User, [this](ReadyChoice) { DestroyUi(); });
    Part<QPushButton>("PelnarEngine_installAndRelaunchButton")->click();
    EXPECT_TRUE(VisibleWindows().empty());
}

struct ProgressRow
{
    char const* name;
    UpdateProgress progress;
    char const* heading;
    char const* amount;
    char const* speed;
    int barMaximum;
    int barValue;
};

TEST_F(WindowContent, ProgressTellsAmountRateAndTimeLeft)
{
    using Phase = UpdatePhase;
    constexpr quint64 MB = 1'000'000;
    constexpr quint64 HUGE_SIZE = std::numeric_limits<quint64>::max();
    std::vector<ProgressRow> const rows = {
        {"nothing known", {Phase::Downloading, 0, 0, 0}, "Downloading A 2…", "0 bytes", "", 0, 0},
        {"no total", {Phase::Downloading, 1500, 0, 1000}, "Downloading A 2…", "1.5 kB", "1.0 kB/s", 0, 0},
        {"no rate", {Phase::Downloading, MB, 4 * MB, 0}, "Downloading A 2…", "1.0 MB of 4.0 MB", "", 1000, 250},
        {"seconds",
         {Phase::Downloading, MB, 4 * MB, MB},
         "Downloading A 2…",
         "1.0 MB of 4.0 MB",
         "1.0 MB/s – About 3 second(s) left",
         1000,
         250},
        {"part of a second",
         {Phase::Downloading, 4 * MB - 1, 4 * MB, MB},
         "Downloading A 2…",
         "4.0 MB of 4.0 MB",
         "1.0 MB/s – About 1 second(s) left",
         1000,
         999},
        {"last second of a minute",
         {Phase::Downloading, 0, 59 * MB, MB},
         "Downloading A 2…",
         "0 bytes of 59.0 MB",
         "1.0 MB/s – About 59 second(s) left",
         1000,
         0},
        {"a minute",
         {Phase::Downloading, 0, 60 * MB, MB},
         "Downloading A 2…",
         "0 bytes of 60.0 MB",
         "1.0 MB/s – About 1 minute(s) left",
         1000,
         0},
        {"more than a minute",
         {Phase::Downloading, 0, 61 * MB, MB},
         "Downloading A 2…",
         "0 bytes of 61.0 MB",
         "1.0 MB/s – About 2 minute(s) left",
         1000,
         0},
        {"an hour",
         {Phase::Downloading, 0, 3600 * MB, MB},
         "Downloading A 2…",
         "0 bytes of 3.6 GB",
         "1.0 MB/s – About 60 minute(s) left",
         1000,
         0},
        {"more than an hour",
         {Phase::Downloading, 0, 3601 * MB, MB},
         "Downloading A 2…",
         "0 bytes of 3.6 GB",
         "1.0 MB/s – About 2 hour(s) left",
         1000,
         0},
        {"done",
         {Phase::Downloading, 4 * MB, 4 * MB, MB},
         "Downloading A 2…",
         "4.0 MB of 4.0 MB",
         "1.0 MB/s",
         1000,
         1000},
        {"more than all",
         {Phase::Downloading, 5 * MB, 4 * MB, MB},
         "Downloading A 2…",
         "4.0 MB of 4.0 MB",
         "1.0 MB/s",
         1000,
         1000},
        {"greatest numbers",
         {Phase::Downloading, 0, HUGE_SIZE, 1},
         "Downloading A 2…",
         "0 bytes of 9.2 EB",
         "1 bytes/s – About 1000 hour(s) left",
         1000,
         0},
        {"preparing",
         {Phase::Preparing, MB, 4 * MB, MB},
         "Verifying and unpacking A 2…",
         "1.0 MB of 4.0 MB",
         "",
         1000,
         250},
        {"preparing without total", {Phase::Preparing, 0, 0, 0}, "Verifying and unpacking A 2…", "0 bytes", "", 0, 0},
    };
    Ui().ShowDownload({QStringLiteral("A"), QStringLiteral("2")}, [] {});
    EXPECT_EQ(TextOf("PelnarEngine_amount"), QStringLiteral("Waiting for the server…"));
    for (ProgressRow const& row : rows)
    {
        Ui().SetProgress(row.progress);
        EXPECT_EQ(TextOf("PelnarEngine_heading"), QString::fromUtf8(row.heading)) << row.name;
        EXPECT_EQ(TextOf("PelnarEngine_amount"), QString::fromUtf8(row.amount)) << row.name;
        EXPECT_EQ(TextOf("PelnarEngine_speed"), QString::fromUtf8(row.speed)) << row.name;
        EXPECT_EQ(Part<QProgressBar>("PelnarEngine_progressBar")->maximum(), row.barMaximum) << row.name;
        EXPECT_EQ(Part<QProgressBar>("PelnarEngine_progressBar")->value(), row.barValue) << row.name;
    }
}

TEST_F(WindowContent, SizesFollowTheNumberFormatOfThePerson)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(SizeText(45'600'000), QStringLiteral("45,6 MB"));
    QLocale::setDefault(QLocale(QLocale::French));
    EXPECT_EQ(SizeText(45'600'000), QStringLiteral("45,6 Mo"));
}

TEST(ServerText, IsOneCleanShortLine)
{
    EXPECT_EQ(OneLine(QStringLiteral(" a\n\tb\u2028c\u00A0d "), 20), QStringLiteral("a b c d"));
    EXPECT_EQ(OneLine(QStringLiteral("a\x01\u200F\u202E\u2066\uFEFFb\uFFFE"), 20), QStringLiteral("ab"));
    EXPECT_EQ(OneLine(QStringLiteral("\u05D0e\u0301\U0001F600"), 20), QStringLiteral("\u05D0e\u0301\U0001F600"));
    EXPECT_EQ(OneLine(QString(20, QLatin1Char('x')), 20), QString(20, QLatin1Char('x')));
    EXPECT_EQ(OneLine(QString(21, QLatin1Char('x')), 20), QString(19, QLatin1Char('x')) + QChar(0x2026));
    EXPECT_EQ(OneLine(QString(18, QLatin1Char('x')) + QStringLiteral("\U0001F600\U0001F600"), 20),
              QString(18, QLatin1Char('x')) + QChar(0x2026))
        << "no half of a character is left";
    EXPECT_EQ(OneLine(QString(1000, QLatin1Char(' ')) + QLatin1Char('x'), 20), QString(QChar(0x2026)));
}

} // namespace
} // namespace Pelnar::Testing
