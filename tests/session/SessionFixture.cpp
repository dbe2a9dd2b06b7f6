#include "tests/session/SessionFixture.h"

#include <algorithm>

namespace Pelnar::Testing
{
namespace
{

char const* const SESSION_FILE = "App/UpdateChecker/SparkleImpl/SparkleManager";

std::unique_ptr<TestApplication> MakeApplication()
{
    static int argc = 1;
    static char name[] = "session_test";
    static char* argv[] = {name, nullptr};
    return std::make_unique<TestApplication>(argc, argv);
}

} // namespace

std::string NameOf(State state)
{
    auto const found = std::find_if(ALL_STATES.begin(), ALL_STATES.end(),
                                    [state](NamedState const& named) { return named.state == state; });
    return found == ALL_STATES.end() ? "no such state" : found->name;
}

void PrintTo(NamedState const& named, std::ostream* out)
{
    *out << named.name;
}

std::string TestNameOf(State state)
{
    std::string name = NameOf(state);
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

LogRecord Progress(int line, std::string const& text)
{
    return {google::GLOG_INFO, SESSION_FILE, line, text};
}

LogRecord Error(int line, std::string const& text)
{
    return {google::GLOG_ERROR, SESSION_FILE, line, text};
}

LogRecord Switch(State from, State to)
{
    return Progress(318,
                    "void Pelnar::App::SparkleManager::Impl::SetState((anonymous namespace)::State): Switch from " +
                        NameOf(from) + " to " + NameOf(to));
}

std::vector<LogRecord> RequestedUnlock()
{
    return {Progress(526, "void Pelnar::App::SparkleManager::Impl::UnlockIfRequested(): Current state = WAITING"),
            Progress(292, "void Pelnar::App::SparkleManager::Impl::Unlock(): Current state = WAITING")};
}

LentContext::LentContext()
{
    context->applicationName = QStringLiteral("Pelnar Studio");
    context->feedUrl = QUrl(QStringLiteral("https://feeds.example.com/appcast.xml?a=1"));
    context->localVersion = Version(5, 0);
    context->versionLess = [](Version const& a, Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) < Core::Util::ShrinkVersion(b, 4); };
    context->versionEqual = [](Version const& a, Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) == Core::Util::ShrinkVersion(b, 4); };
    context->checkFinishedCallback = [this] { ++notifications; };
    context->relaunchPathGetter = [](Version const& version)
    { return ioPath("/Applications/Pelnar Studio " + std::to_string(version.Major()) + ".app"); };
}

SessionTest::SessionTest() : m_application(MakeApplication()), m_session(App::SparkleManager::GetInstance())
{
    SetFields({});
    bool const hasDelegate = Updater().hasDelegate;
    Updater() = {};
    Updater().hasDelegate = hasDelegate;
    m_log.Clear();
}

SessionTest::~SessionTest()
{
    // The session keeps the context after the test. Its callback must not use the destroyed fixture.
    SetFields({});
}

void SessionTest::LendIn(State state)
{
    SetFields({m_lent.context, true, false, state, UpdateType::UNKNOWN, {}, false});
    m_log.Clear();
}

void SessionTest::LendWithRemote(State state, Version const& remote)
{
    Context().remoteVersion = remote;
    LendIn(state);
}

ScriptedItem SessionTest::MakeItem(QString const& version)
{
    ItemProperties properties;
    properties.title = QStringLiteral("Pelnar Studio");
    properties.dateString = QStringLiteral("Mon, 07 Jan 2019 10:00:00 +0000");
    properties.fileUrl = QStringLiteral("https://downloads.example.com/studio.zip");
    properties.versionString = version;
    properties.contentLength = 1000;
    return ScriptedItem(properties);
}

} // namespace Pelnar::Testing
