#include "HostFramework/Reference/ReferenceNagScreenManager.h"

#include <glog/logging.h>

#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

namespace Pelnar::App::NagScreen
{
namespace
{

constexpr int TEXT_WIDTH = 420;
constexpr int MARGIN = 24;
constexpr double HEADING_SCALE = 1.6;

QLabel* MakeLabel(QString const& text, QString const& objectName, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(TEXT_WIDTH);
    return label;
}

QPushButton* AddButton(QHBoxLayout* row, QString const& text, QString const& objectName, QWidget* window)
{
    auto* const button = new QPushButton(text, window);
    button->setObjectName(objectName);
    QObject::connect(button, &QPushButton::clicked, window, &QWidget::close);
    row->addWidget(button);
    return button;
}

} // namespace

ReferenceManager::ReferenceManager(QObject* parent) : Manager(parent) {}

ReferenceManager::~ReferenceManager()
{
    for (QPointer<QWidget> const& window : qAsConst(m_windows))
    {
        delete window;
    }
}

void ReferenceManager::ExpectContent(QString const& name)
{
    if (GetContentState(name) != CONTENT_AVAILABLE)
    {
        Set(name, {CONTENT_UNKNOWN, {}});
    }
}

void ReferenceManager::SetContent(QString const& name, Content const& content)
{
    Set(name, {CONTENT_AVAILABLE, content});
}

void ReferenceManager::SetUnavailable(QString const& name)
{
    Set(name, {});
}

void ReferenceManager::Set(QString const& name, Entry const& entry)
{
    bool const wasUnknown = GetContentState(name) == CONTENT_UNKNOWN;
    m_entries.insert(name, entry);
    if (wasUnknown && entry.state != CONTENT_UNKNOWN)
    {
        Q_EMIT NagAvailable(name, entry.state == CONTENT_AVAILABLE);
    }
}

int ReferenceManager::GetContentState(QString const& name) const
{
    return m_entries.value(name).state;
}

void ReferenceManager::Show(QString const& name)
{
    if (GetContentState(name) != CONTENT_AVAILABLE)
    {
        LOG(WARNING) << "no content for the nag screen \"" << name.toStdString() << '"';
        return;
    }
    if (QWidget* const open = Window(name))
    {
        open->raise();
        open->activateWindow();
        return;
    }
    Content const content = m_entries.value(name).content;
    auto* const window = new QWidget(nullptr, Qt::Window | Qt::WindowCloseButtonHint);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName(QStringLiteral("NagScreen_") + name);
    window->setWindowTitle(content.title);

    QLabel* const heading = MakeLabel(content.title, QStringLiteral("heading"), window);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * HEADING_SCALE);
    font.setBold(true);
    heading->setFont(font);

    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    AddButton(buttons, tr("Not Now"), QStringLiteral("notNow"), window);
    if (!content.actionText.isEmpty())
    {
        QPushButton* const follow = AddButton(buttons, content.actionText, QStringLiteral("followLink"), window);
        follow->setDefault(true);
        connect(follow, &QPushButton::clicked, this,
                [this, name, content] { Q_EMIT LinkRequested(name, content.link); });
    }

    auto* const layout = new QVBoxLayout(window);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(MARGIN / 2);
    layout->addWidget(heading);
    layout->addWidget(MakeLabel(content.text, QStringLiteral("text"), window));
    layout->addSpacing(MARGIN / 2);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    m_windows.insert(name, window);
    window->show();
}

QWidget* ReferenceManager::Window(QString const& name) const
{
    QPointer<QWidget> const window = m_windows.value(name);
    return window && window->isVisible() ? window.data() : nullptr;
}

} // namespace Pelnar::App::NagScreen
