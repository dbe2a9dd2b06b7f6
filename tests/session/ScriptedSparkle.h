// ScriptedSparkle.h: the update framework as tests script it: what it answers, what it was asked, and the callbacks
// that it sends to its delegate. Plain C++ over Objective-C doubles of the framework's classes.
// Thread: the Qt main thread. Ownership: all objects made here live as long as the process; one test is one process.
#pragma once

#include <QString>
#include <QUrl>
#include <QVariant>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Pelnar::Testing
{

/// Raises an NSException; a null \a reason is a nil one.
[[noreturn]] void RaiseException(QString const& reason);

/// What the shared updater answers and what it was asked.
struct UpdaterScript
{
    /// The selectors received, in order, with a plain argument where there is one: "setFeedURL:",
    /// "setSendsSystemProfile:NO". Getters are not recorded.
    std::vector<std::string> calls;
    bool updateInProgress = false;
    bool automaticallyDownloadsUpdates = false;
    QUrl feedUrl;
    bool hasDelegate = false;
    /// Run inside each of the three checks; may raise or throw.
    std::function<void()> onCheck;
    /// Run inside updateInProgress; may raise or throw.
    std::function<void()> onAskInProgress;
    /// Run inside setAutomaticallyChecksForUpdates:; may raise or throw.
    std::function<void()> onSetAutomaticChecks;
    /// Run inside every setFeedURL:; may raise or throw.
    std::function<void()> onSetFeedUrl;
};
UpdaterScript& Updater();

/// What the framework's own comparator answers and what it was asked.
struct StandardComparatorScript
{
    int answer = 0;
    std::vector<std::pair<QString, QString>> compared;
};
StandardComparatorScript& StandardComparator();

class ScriptedItem;

/// A null text or address is nil to the reader.
struct ItemProperties
{
    QString title;
    QString dateString;
    QString itemDescription;
    QString minimumSystemVersion;
    QString maximumSystemVersion;
    QString fileUrl;
    QString versionString;
    quint64 contentLength = 0;
    bool isDelta = false;
    /// From the version that a delta starts from to the delta; none at all is a nil dictionary.
    std::vector<std::pair<QString, ScriptedItem>> deltas;
    /// Attributes: text becomes an NSString, a number an NSNumber. Empty is an empty dictionary.
    std::map<QString, QVariant> properties;
    /// Run by the getter of that name before it answers; may raise or throw.
    std::map<std::string, std::function<void()>> onRead;
    /// How often each getter was read.
    std::map<std::string, int> reads;
};

/// A reference to one item of a feed; copies name the same item.
class ScriptedItem
{
public:
    explicit ScriptedItem(ItemProperties properties = {});
    ItemProperties& Properties() const;

    /// The references to the item: this one, and those of anyone else who keeps it.
    int References() const;
    /// The framework drops its reference; nothing but References and IsGone may be asked then, unless others keep it.
    void LetGo() const;
    bool IsGone() const;

    struct Object;
    Object& GetObject() const { return *m_object; }
    friend bool operator==(ScriptedItem const& a, ScriptedItem const& b) { return a.m_object == b.m_object; }
    friend bool operator!=(ScriptedItem const& a, ScriptedItem const& b) { return !(a == b); }

private:
    Object* m_object;
};

/// The items of a loaded feed; nothing is a nil list.
using ScriptedAppcast = std::optional<std::vector<ScriptedItem>>;

/// A real NSInvocation of an installing call whose two BOOL arguments stand at index 2 and 3.
class ScriptedInvocation
{
public:
    ScriptedInvocation(bool argument2, bool argument3);

    /// The two arguments of each call that was made.
    std::vector<std::pair<bool, bool>> const& Calls() const;
    /// Run inside the call.
    void OnInvoke(std::function<void()> action) const;

    int References() const;
    /// The framework drops its reference: only those who took one of their own may still call.
    void LetGo() const;

    struct Object;
    Object& GetObject() const { return *m_object; }

private:
    Object* m_object;
};

/// A real NSError.
struct ScriptedError
{
    QString domain = QStringLiteral("SUSparkleErrorDomain");
    int code = 2001;
    QString localizedDescription;
};
/// The text that Foundation gives as the error's description.
std::string DescriptionOf(ScriptedError const& error);

/// The framework calling its delegate. REQUIRES: a delegate is set.
struct Callbacks
{
    static void DidFind(ScriptedItem const& item);
    static void DidNotFind();
    static void DidAbort(ScriptedError const& error);
    static void WillInstallOnQuit(ScriptedItem const& item, ScriptedInvocation const& invocation);
    static bool ShouldRelaunch();
    static void WillRelaunch();
    static void DidCancelInstall(ScriptedItem const& item);
    static QString PathToRelaunch();
    static std::optional<ScriptedItem> BestValidUpdate(ScriptedAppcast const& appcast);
    /// Through the comparator that the delegate hands out; null texts are nil.
    static int CompareVersions(QString const& versionA, QString const& versionB);
};

// The process's own Foundation objects.
QString MainBundlePath();
/// Nothing when the key has no value.
std::optional<QString> UserDefault(QString const& key);
/// The value that another process would read: from the file, not from memory.
std::optional<QString> StoredUserDefault(QString const& key);
/// Whether Foundation keeps the user defaults of this process where nobody else's are.
bool HasUserDefaultsOfItsOwn();

} // namespace Pelnar::Testing
