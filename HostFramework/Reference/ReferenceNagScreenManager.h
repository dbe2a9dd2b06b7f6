// ReferenceNagScreenManager.h: the nag screens of the reference host framework. The host sets the content, immediately
// or later, and each name has a window. A name that the host has not set has no nag screen.
//
//     using Pelnar::App::NagScreen::ReferenceManager;
//     auto const nagScreens = std::make_shared<ReferenceManager>();
//     nagScreens->SetContent(Pelnar::App::NagScreen::MajorUpdate,
//                            {QStringLiteral("Notes 6"), QStringLiteral("Notes has learnt to draw."),
//                             QStringLiteral("Have a Look"), QUrl(QStringLiteral("https://example.com/six"))});
//     QObject::connect(nagScreens.get(), &ReferenceManager::LinkRequested,
//                      [](QString const&, QUrl const& link) { QDesktopServices::openUrl(link); });
//
// Thread: the Qt main thread. Ownership: it owns its windows. A window is destroyed when it is closed or with this
// object.
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

/// The content of a nag screen. All text is shown as plain text.
struct Content
{
    QString title;
    QString text;
    QString actionText; ///< text of the button that follows the link; if empty, there is no such button
    QUrl link;          ///< the target of that button
};

/// Nag screens with plain text and one link.
class PELNAR_EXPORT ReferenceManager : public Manager
{
    Q_OBJECT

public:
    explicit ReferenceManager(QObject* parent = nullptr);
    ~ReferenceManager() override;

    /// Says that the content of \a name is being loaded. The name is CONTENT_UNKNOWN until SetContent or SetUnavailable
    /// is called. A major update that is found meanwhile waits, and so does every further check: call SetUnavailable if
    /// loading fails. A name with content keeps it.
    void ExpectContent(QString const& name);
    /// Sets or removes the content of \a name. Emits NagAvailable if this ends CONTENT_UNKNOWN.
    void SetContent(QString const& name, Content const& content);
    /// Says that \a name has no content. Emits NagAvailable if this ends CONTENT_UNKNOWN.
    void SetUnavailable(QString const& name);

    int GetContentState(QString const& name) const override;

    /// Opens the window of \a name, or brings an open window to the front. Without content it only writes a warning.
    void Show(QString const& name) override;

    /// The open window of \a name, or null. Its object name is "NagScreen_" + name.
    QWidget* Window(QString const& name) const;

Q_SIGNALS:
    /// The user wants to follow the link of \a name; the window closes. The host opens the link.
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
