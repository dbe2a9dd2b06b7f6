// ScriptedSparkle.h: a scripted update framework: its answers, its recorded calls, and the callbacks to its delegate.
// Plain C++ with Objective-C doubles of the framework's classes.
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

/// The shared updater's answers and recorded calls.
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

/// The answers and recorded calls of the framework's own comparator.
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
    /// From the version that a delta starts from to the delta. Without a value, the dictionary is nil.
    std::vector<std::pair<QString, ScriptedItem>> deltas;
    /// Attributes: text becomes an NSString, a number an NSNumber. Empty is an empty dictionary.
    std::map<QString, QVariant> properties;
    /// Run by the getter of that name before it answers; may raise or throw.
    std::map<std::string, std::function<void()>> onRead;
    /// How often each getter was read.
    std::map<std::string, int> reads;
};

/// A reference to one item of a feed. Copies refer to the same item.
class ScriptedItem
{
public:
    explicit ScriptedItem(ItemProperties properties = {});
    ItemProperties& Properties() const;

    /// The number of references to the item: this one, and all others.
    int References() const;
    /// The framework releases its reference. After that only References and IsGone may be called, unless others hold
    /// one.
    void LetGo() const;
    bool IsGone() const;

    struct Object;
    Object& GetObject() const { return *m_object; }
    friend bool operator==(ScriptedItem const& a, ScriptedItem const& b) { return a.m_object == b.m_object; }
    friend bool operator!=(ScriptedItem const& a, ScriptedItem const& b) { return !(a == b); }

private:
    Object* m_object;
};

/// The items of a loaded feed; without a value, a nil list.
using ScriptedAppcast = std::optional<std::vector<ScriptedItem>>;

/// A real NSInvocation of an installing call with two BOOL arguments at index 2 and 3.
class ScriptedInvocation
{
public:
    ScriptedInvocation(bool argument2, bool argument3);

    /// The two arguments of each call that was made.
    std::vector<std::pair<bool, bool>> const& Calls() const;
    /// Run inside the call.
    void OnInvoke(std::function<void()> action) const;

    int References() const;
    /// The framework releases its reference: after that only holders of their own reference may call.
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
/// Foundation's text for the error's description.
std::string DescriptionOf(ScriptedError const& error);

/// The framework calls its delegate. REQUIRES: a delegate is set.
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
    /// Through the delegate's comparator; null texts are nil.
    static int CompareVersions(QString const& versionA, QString const& versionB);
};

// The process's own Foundation objects.
QString MainBundlePath();
/// Empty if the key has no value.
std::optional<QString> UserDefault(QString const& key);
/// The value that another process would read: from the file, not from memory.
std::optional<QString> StoredUserDefault(QString const& key);
/// True if the user defaults of this process are in a place of their own.
bool HasUserDefaultsOfItsOwn();

} // namespace Pelnar::Testing
