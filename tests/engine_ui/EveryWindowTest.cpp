// Rules for every window: one answer, keyboard, names for assistive tools, behaviour towards the person and the host.

#include "tests/engine_ui/WindowsFixture.h"
#include "tests/support/DialogDriver.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>

#include <algorithm>
#include <set>

namespace Pelnar::Testing
{
namespace
{

using Engine::CheckOrigin;
using Strings = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(Windows, EveryWindow, ::testing::ValuesIn(AllWindowCases()), WindowCaseName);

TEST_P(EveryWindow, TellsTheAnswerOfEachButtonOnceAndGoes)
{
    for (WindowButton const& row : GetParam().buttons)
    {
        std::size_t const before = Answers().size();
        Show(GetParam());
        auto* const button = Part<QPushButton>(row.objectName);
        ASSERT_NE(button, nullptr);
        button->click();
        button->click(); // the window lives until the event loop turns
        EXPECT_EQ(WindowOf(GetParam()), nullptr);
        ASSERT_EQ(Answers().size(), before + 1);
        EXPECT_EQ(Answers().back(), row.answer);
    }
}

TEST_P(EveryWindow, TakesEscAndClosingForAnAnswer)
{
    Show(GetParam());
    QTest::keyClick(WindowOf(GetParam()), Qt::Key_Escape);
    EXPECT_EQ(Answers(), Strings{GetParam().dismissal});
    EXPECT_EQ(WindowOf(GetParam()), nullptr);

    Show(GetParam());
    WindowOf(GetParam())->close();
    EXPECT_EQ(Answers(), (Strings{GetParam().dismissal, GetParam().dismissal}));
    EXPECT_EQ(WindowOf(GetParam()), nullptr);
}

TEST_P(EveryWindow, TellsNothingWhenItIsPutAwayOrReplaced)
{
    Show(GetParam());
    Ui().Close();
    EXPECT_TRUE(VisibleWindows().empty());
    Show(GetParam());
    Ui().ShowChecking([] {});
    EXPECT_EQ(VisibleWindows().size(), 1U);
    DestroyUi();
    EXPECT_TRUE(VisibleWindows().empty());
    EXPECT_EQ(Answers(), Strings());
}

TEST_P(EveryWindow, AnswersEnterOnlyWhereThereIsADefaultButton)
{
    Show(GetParam());
    QWidget* const window = WindowOf(GetParam());
    for (QPushButton* const button : window->findChildren<QPushButton*>())
    {
        EXPECT_FALSE(button->autoDefault()) << qPrintable(button->objectName());
        EXPECT_EQ(button->isDefault(), button->objectName() == QLatin1String(GetParam().defaultButton))
            << qPrintable(button->objectName());
    }
    QTest::keyClick(window, Qt::Key_Return);
    bool const hasDefault = GetParam().defaultButton[0] != '\0';
    ASSERT_EQ(Answers().size(), hasDefault ? 1U : 0U);
    if (hasDefault)
    {
        auto const button = std::find_if(GetParam().buttons.begin(), GetParam().buttons.end(),
                                         [](WindowButton const& row)
                                         { return std::string(row.objectName) == GetParam().defaultButton; });
        ASSERT_NE(button, GetParam().buttons.end());
        EXPECT_EQ(Answers().back(), button->answer);
    }
}

TEST_P(EveryWindow, AnswersItsMnemonicsWhichDiffer)
{
    std::set<QChar> mnemonics;
    for (WindowButton const& row : GetParam().buttons)
    {
        std::size_t const before = Answers().size();
        Show(GetParam());
        QWidget* const window = WindowOf(GetParam());
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        QString const text = Part<QPushButton>(row.objectName)->text();
        int const mark = text.indexOf(QLatin1Char('&'));
        ASSERT_GE(mark, 0) << qPrintable(text);
        QChar const mnemonic = text.at(mark + 1).toUpper();
        EXPECT_TRUE(mnemonics.insert(mnemonic).second) << qPrintable(text);
        QTest::keyClick(window, static_cast<Qt::Key>(mnemonic.unicode()), Qt::AltModifier);
        // A button that is pressed by its mnemonic looks pressed for a moment before it reports the click.
        ASSERT_TRUE(WaitFor([this, before] { return Answers().size() > before; })) << qPrintable(text);
        EXPECT_EQ(Answers().back(), row.answer);
    }
}

TEST_P(EveryWindow, LetsTabReachEverythingThatCanBeUsed)
{
    Show(GetParam());
    QWidget* const window = WindowOf(GetParam());
    QApplication::setActiveWindow(window);
    std::set<QString> reached;
    for (int i = 0; i < 12; ++i)
    {
        ASSERT_NE(window->focusWidget(), nullptr);
        reached.insert(window->focusWidget()->objectName());
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    for (QWidget* const part : window->findChildren<QWidget*>())
    {
        bool const isUsable =
            qobject_cast<QPushButton*>(part) != nullptr || qobject_cast<QTextBrowser*>(part) != nullptr;
        if (isUsable && part->isVisible())
        {
            EXPECT_EQ(reached.count(part->objectName()), 1U) << qPrintable(part->objectName());
        }
    }
}

TEST_P(EveryWindow, NamesItsPartsForAssistiveTools)
{
    Show(GetParam());
    QWidget* const window = WindowOf(GetParam());
    QList<QWidget*> parts = window->findChildren<QWidget*>();
    parts.append(window);
    int named = 0;
    for (QWidget* const part : parts)
    {
        bool const needsName = part == window || qobject_cast<QAbstractButton*>(part) != nullptr ||
                               qobject_cast<QProgressBar*>(part) != nullptr ||
                               qobject_cast<QTextBrowser*>(part) != nullptr ||
                               (qobject_cast<QLabel*>(part) != nullptr && !part->objectName().isEmpty());
        if (needsName && part->isVisible())
        {
            QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(part);
            ASSERT_NE(accessible, nullptr);
            EXPECT_NE(accessible->text(QAccessible::Name), QString()) << qPrintable(part->objectName());
            ++named;
        }
    }
    EXPECT_GE(named, 3);
}

TEST_P(EveryWindow, TakesTheFocusOnlyWhenAPersonAsked)
{
    QWidget host;
    host.show();
    host.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    Show(GetParam());
    QWidget* const window = WindowOf(GetParam());
    bool const isAsked = GetParam().origin == CheckOrigin::User;
    EXPECT_EQ(window->testAttribute(Qt::WA_ShowWithoutActivating), !isAsked);
    if (isAsked)
    {
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    }
    // In a window that opened by itself, no button that changes anything has the focus.
    std::set<QString> const harmless = {QStringLiteral("PelnarEngine_remindButton"),
                                        QStringLiteral("PelnarEngine_laterButton")};
    EXPECT_EQ(!isAsked, harmless.count(window->focusWidget()->objectName()) == 1U)
        << qPrintable(window->focusWidget()->objectName());
}

TEST_P(EveryWindow, CanBeBroughtToTheFrontWhenAPersonAsksAgain)
{
    Show(GetParam());
    Ui().BringToFront();
    EXPECT_TRUE(QTest::qWaitForWindowActive(WindowOf(GetParam())));
}

TEST_P(EveryWindow, DoesNotEndTheHostWhenItCloses)
{
    QSignalSpy lastWindowClosed(qApp, &QGuiApplication::lastWindowClosed);
    Show(GetParam());
    WindowOf(GetParam())->close();
    QCoreApplication::processEvents();
    EXPECT_EQ(lastWindowClosed.count(), 0);
}

TEST_P(EveryWindow, HasEveryPartInTheTableOfObjectNames)
{
    QFile file(QStringLiteral(PELNAR_SOURCE_FOLDER "/docs/engine-windows.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString const table = QString::fromUtf8(file.readAll());
    Show(GetParam());
    QWidget* const window = WindowOf(GetParam());
    QString const rowStart = QStringLiteral("| `") + window->objectName() + QStringLiteral("` | the window |");
    int const row = table.indexOf(rowStart);
    ASSERT_GE(row, 0);
    int const lineStart = table.lastIndexOf(QLatin1Char('\n'), row) + 1;
    QString const title = table.mid(lineStart, row - lineStart);
    for (QWidget* const part : window->findChildren<QWidget*>())
    {
        if (part->objectName().startsWith(QLatin1String("PelnarEngine_")))
        {
            EXPECT_TRUE(table.contains(title + QStringLiteral("| `") + part->objectName() + QStringLiteral("` |")))
                << qPrintable(title + part->objectName());
        }
    }
}

TEST_P(EveryWindow, ShowsPlainTextInItsLabels)
{
    Show(GetParam());
    for (QLabel* const label : WindowOf(GetParam())->findChildren<QLabel*>())
    {
        EXPECT_TRUE(label->objectName().isEmpty() || label->textFormat() == Qt::PlainText)
            << qPrintable(label->objectName());
    }
}

} // namespace
} // namespace Pelnar::Testing
