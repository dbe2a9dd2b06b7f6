#include "Demo/DemoWindow.h"

#include "Demo/CheckRun.h"

#include <QAction>
#include <QComboBox>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <cstdio>

namespace Pelnar::Demo
{
namespace
{

constexpr QSize INITIAL_SIZE(560, 380);

QLabel* MakeLabel(QString const& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

DemoWindow::DemoWindow(DemoOptions const& options)
    : m_recorder([this](Notification const& notification) { AddLine(TextOf(notification)); })
    , m_checkAction(new QAction(tr("Check for Updates…"), this))
    , m_mode(new QComboBox)
    , m_lines(new QListWidget)
{
    QString const name = QString::fromStdString(options.customization.displayName);
    setObjectName(QStringLiteral("PelnarDemoWindow"));
    setWindowTitle(name);
    resize(INITIAL_SIZE);

    QMenu* const menu = menuBar()->addMenu(tr("&Application"));
    menu->addAction(m_checkAction);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close);
    connect(m_checkAction, &QAction::triggered, this, &DemoWindow::CheckForUpdates);

    QWidget* const content = new QWidget(this);
    QLabel* const heading =
        MakeLabel(QStringLiteral("%1 %2").arg(name, TextOf(options.customization.applicationVersion)), content);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    auto const feed = options.links.find(URLKeys::SPARKLE_APPCAST_URL);
    QLabel* const address = MakeLabel(
        feed == options.links.end() ? tr("No feed address is set.") : tr("Feed: %1").arg(feed->second), content);
    address->setWordWrap(true);

    // In the order of the modes' numbers.
    m_mode->addItems({tr("Started by the user"), tr("Automatic"), tr("Silent")});
    m_mode->setCurrentIndex(static_cast<int>(options.mode));
    auto* const button = new QToolButton(content);
    button->setDefaultAction(m_checkAction);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto* const row = new QHBoxLayout;
    row->addWidget(button);
    row->addSpacing(row->spacing());
    row->addWidget(MakeLabel(tr("The check is:"), content));
    row->addWidget(m_mode);
    row->addStretch();

    m_lines->setObjectName(QStringLiteral("notifications"));
    auto* const layout = new QVBoxLayout(content);
    layout->addWidget(heading);
    layout->addWidget(address);
    layout->addLayout(row);
    layout->addWidget(MakeLabel(tr("Notifications:"), content));
    layout->addWidget(m_lines);
    setCentralWidget(content);
    AddLine(tr("%1 is running").arg(heading->text()));
}

void DemoWindow::CheckForUpdates()
{
    if (!m_checkAction->isEnabled())
    {
        return;
    }
    m_checkAction->setEnabled(false);
    AddLine(tr("Checking for updates (%1)").arg(m_mode->currentText().toLower()));
    App::UpdateManager::Initializer check(this);
    check.checkMode = static_cast<App::UpdateCheckMode>(m_mode->currentIndex());
    check.parentWidgetGetter = [this] { return this; };
    check.observers = {&m_recorder};
    StartCheck(check, [this] { EndCheck(); });
}

void DemoWindow::EndCheck()
{
    m_checkAction->setEnabled(true);
    AddLine(tr("The check is over"));
    Q_EMIT CheckEnded();
}

void DemoWindow::AddLine(QString const& line)
{
    m_lines->addItem(line);
    m_lines->scrollToBottom();
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

} // namespace Pelnar::Demo
