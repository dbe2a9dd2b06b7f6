// ClickPlugin.cpp: replaces the person in front of any Qt program: it agrees to install an update that is ready. Qt
// loads it if QT_QPA_GENERIC_PLUGINS names it, so the program needs no code for the test. Thread: the Qt main thread.
// Ownership: Qt owns the plugin's objects.

#include <QAbstractButton>
#include <QApplication>
#include <QGenericPlugin>
#include <QMessageBox>
#include <QTimer>

namespace
{

constexpr int PERIOD_MS = 50;
char const READY_DIALOG[] = "SparkleUpdater_updateIsReadyToInstallDialog";

void Agree()
{
    for (QWidget* const widget : QApplication::topLevelWidgets())
    {
        auto* const box = qobject_cast<QMessageBox*>(widget);
        if (!box || !box->isVisible() || box->objectName() != QLatin1String(READY_DIALOG))
        {
            continue;
        }
        for (QAbstractButton* const button : box->buttons())
        {
            if (box->buttonRole(button) == QMessageBox::AcceptRole)
            {
                button->click();
                return;
            }
        }
    }
}

} // namespace

class ClickPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ClickPlugin.json")

public:
    QObject* create(QString const&, QString const&) override
    {
        auto* const timer = new QTimer;
        QObject::connect(timer, &QTimer::timeout, timer, &Agree);
        timer->start(PERIOD_MS);
        return timer;
    }
};

#include "ClickPlugin.moc"
