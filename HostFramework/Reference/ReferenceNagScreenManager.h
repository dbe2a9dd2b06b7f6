// ReferenceNagScreenManager.h: the nag screens of the reference host framework: content that the host gives, at once or
// later, and a window for each name. A name of which the host has said nothing has no nag screen.
//
//     using Pelnar::App::NagScreen::ReferenceManager;
//     auto const nagScreens = std::make_shared<ReferenceManager>();
//     nagScreens->SetContent(Pelnar::App::NagScreen::MajorUpdate,
//                            {QStringLiteral("Notes 6"), QStringLiteral("Notes has learnt to draw."),
//                             QStringLiteral("Have a Look"), QUrl(QStringLiteral("https://example.com/six"))});
//     QObject::connect(nagScreens.get(), &ReferenceManager::LinkRequested,
//                      [](QString const&, QUrl const& link) { QDesktopServices::openUrl(link); });
//
// Thread: the Qt main thread. Ownership: owns the windows that it shows; they go when they are closed or with it.
#pragma once

#include "HostFramework/NagScreenManager.h"

#include <QHash>
#include <QPointer>
#include <QUrl>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::App::NagScreen
{

/// What a nag screen says. All text is shown as plain text.
struct Content
{
    QString title;
    QString text;
    QString actionText; ///< on the button that follows the link; no such button when empty
    QUrl link;
};

class PELNAR_EXPORT ReferenceManager : public Manager
{
    Q_OBJECT

public:
    explicit ReferenceManager(QObject* parent = nullptr);
    ~ReferenceManager() override;

    /// Says that the content of \a name is being loaded: the name is CONTENT_UNKNOWN until SetContent or SetUnavailable
    /// follows. A major update that is found meanwhile waits, and so does every further check: call SetUnavailable when
    /// loading fails. A name that has content keeps it.
    void ExpectContent(QString const& name);
    /// Gives \a name its content, or takes it away. NagAvailable is emitted when this ends CONTENT_UNKNOWN.
    void SetContent(QString const& name, Content const& content);
    void SetUnavailable(QString const& name);

    int GetContentState(QString const& name) const override;

    /// Opens the window of \a name, or brings it to the front when it is open already. Does nothing but write a warning
    /// when there is no content.
    void Show(QString const& name) override;

    /// The open window of \a name, or null. Its object name is "NagScreen_" + name.
    QWidget* Window(QString const& name) const;

Q_SIGNALS:
    /// The user wants to follow the link of \a name; the window is closing. The host opens it.
    void LinkRequested(QString const& name, QUrl const& link);

private:
    struct Entry
    {
        ContentState state = CONTENT_UNAVAILABLE;
        Content content;
    };
    void Set(QString const& name, Entry const& entry);

    QHash<QString, Entry> m_entries; // a name without an entry is unavailable
    QHash<QString, QPointer<QWidget>> m_windows;
};

} // namespace Pelnar::App::NagScreen
