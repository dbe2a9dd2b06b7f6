// NagScreenManager.h: the host's nag screens, by name.
//
//     class NoNagScreens : public Pelnar::App::NagScreen::Manager
//     {
//     public:
//         int GetContentState(QString const&) const override { return Pelnar::App::NagScreen::CONTENT_UNAVAILABLE; }
//         void Show(QString const&) override {}
//     };
//
// Thread: the Qt main thread. Ownership: the application holds it by std::shared_ptr and lends it. An interface for the
// host to implement.
#pragma once

#include "common/Export.h"

#include <QObject>
#include <QString>

namespace Pelnar::App::NagScreen
{

/// The nag screen that announces a new major version.
inline QString const MajorUpdate = QStringLiteral("major_update");

/// What Manager::GetContentState answers. A host may know more states; the updater then does nothing.
enum ContentState : int
{
    CONTENT_UNKNOWN = 0,     ///< not known yet: NagAvailable will tell
    CONTENT_UNAVAILABLE = 1, ///< there is no content for this name
    CONTENT_AVAILABLE = 2,   ///< Show may be called
};

class PELNAR_EXPORT Manager : public QObject
{
    Q_OBJECT

public:
    explicit Manager(QObject* parent = nullptr);
    ~Manager() override;

    virtual int GetContentState(QString const& name) const = 0;
    /// Shows the nag screen \a name and returns without waiting for the user.
    virtual void Show(QString const& name) = 0;

Q_SIGNALS:
    /// Ends CONTENT_UNKNOWN for \a name.
    void NagAvailable(QString const& name, bool available);
};

} // namespace Pelnar::App::NagScreen
