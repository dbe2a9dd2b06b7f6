// NagScreenManager.h: the host's nag screens, by name.
//
//     class NoNagScreens : public Pelnar::App::NagScreen::Manager
//     {
//     public:
//         int GetContentState(QString const&) const override { return Pelnar::App::NagScreen::CONTENT_UNAVAILABLE; }
//         void Show(QString const&) override {}
//     };
//
// Thread: the Qt main thread. Ownership: the application holds it by std::shared_ptr and lends it. The host implements
// this interface.
#pragma once

#include "common/Export.h"

#include <QObject>
#include <QString>

namespace Pelnar::App::NagScreen
{

/// The nag screen that announces a new major version.
inline QString const MajorUpdate = QStringLiteral("major_update");

/// The results of Manager::GetContentState. A host may define more states; the updater then does nothing.
enum ContentState : int
{
    CONTENT_UNKNOWN = 0,     ///< not known yet; NagAvailable will report it
    CONTENT_UNAVAILABLE = 1, ///< this name has no content
    CONTENT_AVAILABLE = 2,   ///< Show may be called
};

/// Shows nag screens. A nag screen is identified by its name.
class PELNAR_EXPORT Manager : public QObject
{
    Q_OBJECT

public:
    explicit Manager(QObject* parent = nullptr);
    ~Manager() override;

    /// Whether \a name has content: a ContentState, or a further state of the host.
    virtual int GetContentState(QString const& name) const = 0;
    /// Shows the nag screen \a name and returns without waiting for the user.
    virtual void Show(QString const& name) = 0;

Q_SIGNALS:
    /// Ends the state CONTENT_UNKNOWN of \a name.
    void NagAvailable(QString const& name, bool available);
};

} // namespace Pelnar::App::NagScreen
