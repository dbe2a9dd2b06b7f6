// ScriptedDelegate.h: drives the engine's updater with a delegate whose answers a test scripts. Plain C++.
// Thread: main. Ownership: a scope object; the process owns the updater.
#pragma once

#include "Engine/core/fetch/FetchRules.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Pelnar::Engine
{
class IUpdateEnvironment;
class IUserInterface;
} // namespace Pelnar::Engine

namespace Pelnar::Testing
{

/// The delegate's answer to the question for the best item.
struct ScriptedChoice
{
    enum class Kind
    {
        None,
        Item,    ///< by its position in the appcast
        Delta,   ///< of the item, by the version that it starts from
        Foreign, ///< an item object of an appcast that the engine did not load in this check
        Dangling ///< an address without an object
    };
    Kind kind = Kind::None;
    int item = 0;
    QString deltaFrom;
};

struct ToldError
{
    std::string domain;
    int code = 0;
    std::string sentence;
    std::string underlyingDomain;
    int underlyingCode = 0;
    std::string underlyingText;
    std::string description; ///< the delegate's text in a log
};

/// The invocation that installs an update immediately. The test may keep and call it at any time.
class HeldInvocation
{
public:
    [[nodiscard]] bool Relaunches() const;
    [[nodiscard]] bool ShowsUserInterface() const;
    void SetRelaunches(bool value);
    void SetShowsUserInterface(bool value);
    void Invoke();

    struct Impl;
    std::shared_ptr<Impl> impl;
};

struct DelegateScript
{
    /// Answers question number \a question (from 0) about an appcast with these item versions.
    std::function<ScriptedChoice(int question, std::vector<QString> const& versions)> choose;
    /// As a version comparator. If empty, the delegate has no comparator (nil).
    std::function<int(QString const&, QString const&)> compare;
    /// Called after each event has been noted.
    std::function<void(std::string const& event)> onEvent;
    /// The methods that the delegate does not implement, by name. A call of one is noted as "hidden <name>".
    std::vector<std::string> hidden;
    /// Called while the delegate hears that a prepared update will be installed on quit.
    std::function<void(HeldInvocation)> onWillInstall = {};
    bool allowsRelaunch = true;
    QString relaunchPath = {}; ///< nil when empty
};

/// The methods that a check may call.
extern std::vector<std::string> const CHECK_METHODS;
/// The methods that an update after a check may call.
extern std::vector<std::string> const UPDATE_METHODS;

class UpdaterDriver
{
public:
    explicit UpdaterDriver(DelegateScript script);
    ~UpdaterDriver();
    UpdaterDriver(UpdaterDriver const&) = delete;
    UpdaterDriver& operator=(UpdaterDriver const&) = delete;

    void SetFeed(QUrl const& url);
    QUrl Feed() const;
    void SetLimits(Engine::FetchLimits const& limits);
    /// While this object lives, the updates use this server, this helper and these windows.
    void SetUpdate(Engine::IUpdateEnvironment& parts, Engine::IUserInterface& windows);
    void RemoveDelegate();

    void Probe();
    void CheckInBackground();
    void CheckInteractively();
    [[nodiscard]] bool IsInProgress() const;

    [[nodiscard]] bool DownloadsAutomatically() const;
    void SetDownloadsAutomatically(bool value);

    /// "asked", "found <version>", "not found", "aborted <code>", "will install <version>", "should relaunch?",
    /// "path?", "will relaunch", "cancelled <version>", in order.
    std::vector<std::string> const& Events() const;
    std::vector<ToldError> const& Errors() const;
    /// The properties of the found item.
    struct FoundItem
    {
        QString title;
        QString version;
        QUrl file;
        qint64 length = 0;
        bool isDelta = false;
        std::vector<QString> deltaVersions;
    };
    std::optional<FoundItem> const& Found() const;

    /// Runs the event loop until no check is in progress; false if that takes too long.
    [[nodiscard]] bool WaitForEnd();

    struct Impl;

private:
    std::unique_ptr<Impl> m_impl;
};

/// Raises an NSException with this reason.
void RaiseInFoundation(char const* reason);

/// The engine's own comparator: -1, 0 or 1.
int CompareByStandard(QString const& a, QString const& b);

} // namespace Pelnar::Testing
