#include "Engine/ui/EngineWindow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr int ICON_SIZE = 48;
constexpr int TEXT_WIDTH = 400;
constexpr int BUTTON_PADDING = 16;
constexpr double HEADING_SCALE = 1.15;

Qt::LayoutDirection DirectionOfTexts()
{
    QString const direction =
        QCoreApplication::translate("PelnarEngine_EngineWindow", "LTR",
                                    "Not shown: RTL in a language that is written from right to left, else LTR");
    return direction == QLatin1String("RTL") ? Qt::RightToLeft : Qt::LeftToRight;
}

} // namespace

EngineWindow::EngineWindow(QString const& objectName, CheckOrigin origin)
    : QDialog(nullptr, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , m_origin(origin)
    , m_icon(new QLabel(this))
    , m_content(new QVBoxLayout)
    , m_buttons(new QHBoxLayout)
{
    setObjectName(objectName);
    setWindowTitle(QCoreApplication::translate("PelnarEngine_EngineWindow", "Software Update"));
    setLayoutDirection(DirectionOfTexts());
    // Closing the last of these windows must not quit the host.
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_ShowWithoutActivating, origin == CheckOrigin::Background);

    QIcon const icon = QApplication::windowIcon();
    ShowIcon(icon.isNull() ? style()->standardIcon(QStyle::SP_MessageBoxInformation) : icon);
    m_buttons->addStretch();

    auto* const middle = new QHBoxLayout;
    middle->addWidget(m_icon, 0, Qt::AlignTop);
    middle->addSpacing(ICON_SIZE / 4);
    middle->addLayout(m_content, 1);
    auto* const outer = new QVBoxLayout(this);
    outer->addLayout(middle, 1);
    outer->addSpacing(ICON_SIZE / 8);
    outer->addLayout(m_buttons);
}

void EngineWindow::Present()
{
    adjustSize();
    GrowToContent();
    show();
    if (m_origin == CheckOrigin::User)
    {
        BringToFront();
    }
}

void EngineWindow::BringToFront()
{
    raise();
    activateWindow();
}

void EngineWindow::Dismiss()
{
    m_isAnswered = true;
    hide();
    deleteLater();
}

void EngineWindow::reject()
{
    Answer(m_onDismissed);
}

QLabel* EngineWindow::AddHeading(QString const& objectName, QString const& text)
{
    QLabel* const label = AddText(objectName, text);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * HEADING_SCALE);
    label->setFont(font);
    return label;
}

QString EngineWindow::Directed(QString const& text) const
{
    constexpr char16_t RIGHT_TO_LEFT_MARK = 0x200F;
    return layoutDirection() == Qt::RightToLeft && !text.isEmpty() ? QChar(RIGHT_TO_LEFT_MARK) + text : text;
}

QLabel* EngineWindow::AddText(QString const& objectName, QString const& text)
{
    return AddGivenText(objectName, Directed(text));
}

QLabel* EngineWindow::AddGivenText(QString const& objectName, QString const& text)
{
    auto* const label = new QLabel(this);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setMinimumWidth(TEXT_WIDTH);
    AddContent(label);
    return label;
}

QProgressBar* EngineWindow::AddProgressBar(QString const& objectName, QString const& accessibleName)
{
    auto* const bar = new QProgressBar(this);
    bar->setObjectName(objectName);
    bar->setAccessibleName(accessibleName);
    bar->setTextVisible(false);
    bar->setRange(0, 0);
    AddContent(bar);
    return bar;
}

void EngineWindow::AddContent(QWidget* widget)
{
    m_content->addWidget(widget);
}

QPushButton* EngineWindow::AddAnswer(QString const& objectName, QString const& text, ButtonPlace place,
                                     std::function<void()> onClicked)
{
    auto* const button = new QPushButton(text, this);
    button->setObjectName(objectName);
    // Otherwise the dialog would make the first button the default one.
    button->setAutoDefault(false);
    button->setMinimumWidth(button->sizeHint().width() + BUTTON_PADDING);
    connect(button, &QPushButton::clicked, this, [this, onClicked = std::move(onClicked)] { Answer(onClicked); });
    m_buttons->insertWidget(place == ButtonPlace::Start ? 0 : m_buttons->count(), button);
    return button;
}

void EngineWindow::AddOnlyAnswer(std::function<void()> const& onGiven)
{
    QPushButton* const button =
        AddAnswer(QStringLiteral("PelnarEngine_okButton"),
                  QCoreApplication::translate("PelnarEngine_EngineWindow", "&OK"), ButtonPlace::End, onGiven);
    SetDefaultAnswer(button, button);
    SetDismissal(onGiven);
}

void EngineWindow::AddCancelAnswer(std::function<void()> const& onCancelled)
{
    AddAnswer(QStringLiteral("PelnarEngine_cancelButton"),
              QCoreApplication::translate("PelnarEngine_EngineWindow", "&Cancel"), ButtonPlace::End, onCancelled)
        ->setFocus();
    SetDismissal(onCancelled);
}

void EngineWindow::SetDismissal(std::function<void()> onDismissed)
{
    m_onDismissed = std::move(onDismissed);
}

void EngineWindow::SetDefaultAnswer(QPushButton* button, QWidget* quiet)
{
    button->setDefault(m_origin == CheckOrigin::User);
    (m_origin == CheckOrigin::User ? button : quiet)->setFocus();
}

void EngineWindow::ShowWarningIcon()
{
    ShowIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
}

void EngineWindow::GrowToContent()
{
    layout()->activate();
    int const wanted = std::max(width(), layout()->totalMinimumSize().width());
    // The minimum size does not include the height that wrapped texts need at this width.
    resize(wanted, std::max(height(), layout()->totalHeightForWidth(wanted)));
}

void EngineWindow::Answer(std::function<void()> const& answer)
{
    if (m_isAnswered)
    {
        return;
    }
    m_isAnswered = true;
    hide();
    answer();
}

void EngineWindow::ShowIcon(QIcon const& icon)
{
    m_icon->setPixmap(icon.pixmap(ICON_SIZE, ICON_SIZE));
}

} // namespace Pelnar::Engine
