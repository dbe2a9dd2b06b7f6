#include "tests/update/ScriptedUpdate.h"

#include "Engine/core/faults/UpdateFault.h"

#include <QDir>
#include <QFile>

#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Testing
{

using namespace Engine;

char const* const GOOD_KEY = "Y6AwIHz6UKoweZhSBHdEWu3Q0Ud1ep8pnfmMbrEurcg=";
char const* const GOOD_SIGNATURE =
    "8vhFXgZrR/VCHhxBMCmc+1n8SsRRD6YGTPnQWIsv18gMJmKTuYTXdkD9/0sazQsl935ZHTQYKDnNA48ql1g8Hw==";

void ScriptedHost::Note(std::string const& note)
{
    m_notes.push_back(note);
    if (note == throwsIn)
    {
        throw std::runtime_error("the delegate failed");
    }
    if (onNote)
    {
        onNote(note);
    }
}

BestItemAnswer ScriptedHost::AskForBestItem()
{
    if (m_questions < m_answers.size())
    {
        return m_answers[m_questions++];
    }
    return itemCount == 0 ? BestItemAnswer{} : BestItemAnswer{BestItemAnswer::Kind::Place, {0, std::nullopt}};
}

int ScriptedHost::CompareVersions(QString const& a, QString const& b)
{
    bool isReadable[2] = {};
    double const difference = a.toDouble(&isReadable[0]) - b.toDouble(&isReadable[1]);
    if (!isReadable[0] || !isReadable[1])
    {
        ++unreadableVersions;
        return 0;
    }
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

void ScriptedHost::TellFound(FoundUpdate const& found)
{
    Note(found.place.delta ? "found delta" : "found");
    if (onFound)
    {
        onFound(found);
    }
}

void ScriptedHost::TellAborted(EngineError const& told)
{
    error = told;
    Note("aborted " + std::to_string(static_cast<int>(told.code)));
}

void ScriptedHost::TellWillInstallOnQuit(ItemIndex const& place, std::function<void(RelaunchWish)> const& install)
{
    installNow = install;
    Note(place.delta ? "will install delta on quit" : "will install on quit");
    if (onWillInstall)
    {
        onWillInstall();
    }
}

void ScriptedHost::TellCancelledInstallOnQuit(ItemIndex const& place)
{
    Note(place.delta ? "cancelled delta" : "cancelled");
}

RelaunchAnswer ScriptedHost::ShouldRelaunch()
{
    Note("should relaunch?");
    return relaunchAnswer;
}

QString ScriptedHost::PathToRelaunch()
{
    Note("path?");
    return relaunchPath;
}

void ScriptedHost::StoreFeedRecord(FeedRecord const& record)
{
    if (throwsIn == "store feed record")
    {
        throw std::runtime_error("the defaults are full");
    }
    feedRecord = record;
}

void ScriptedHost::StoreBackOff(BackOffState const& state)
{
    backOff = state;
    Note("failures " + std::to_string(state.failures));
}

void ScriptedHost::UpdateEnded()
{
    Note("ended");
    if (onEnded)
    {
        onEnded();
    }
}

void ScriptedWindows::Open(std::string const& name)
{
    m_cancelled = nullptr;
    m_chosen = nullptr;
    m_ready = nullptr;
    open = name;
    m_notes.push_back("window " + name);
}

void ScriptedWindows::ShowChecking(std::function<void()> onCancelled)
{
    Open("checking");
    m_cancelled = std::move(onCancelled);
}

void ScriptedWindows::ShowUpToDate(NamedVersion const& installed, std::function<void()>)
{
    Open("up to date " + installed.version.toStdString());
}

void ScriptedWindows::ShowUpdate(UpdateOffer const& shown, CheckOrigin origin,
                                 std::function<void(UpdateChoice)> onChosen)
{
    Open(origin == CheckOrigin::User ? "update" : "quiet update");
    offer = shown;
    m_chosen = std::move(onChosen);
}

void ScriptedWindows::ShowDownload(NamedVersion const&, std::function<void()> onCancelled)
{
    Open("download");
    m_cancelled = std::move(onCancelled);
}

void ScriptedWindows::ShowReadyToInstall(NamedVersion const&, CheckOrigin origin,
                                         std::function<void(ReadyChoice)> onChosen)
{
    Open(origin == CheckOrigin::User ? "ready" : "quiet ready");
    m_ready = std::move(onChosen);
}

void ScriptedWindows::ShowError(Sentence const& sentence, std::function<void()>)
{
    Open("error");
    EXPECT_FALSE(sentence.IsEmpty());
}

void ScriptedWindows::Close()
{
    m_cancelled = nullptr;
    m_chosen = nullptr;
    m_ready = nullptr;
    open.clear();
}

void ScriptedWindows::Choose(UpdateChoice choice)
{
    auto const answer = std::exchange(m_chosen, nullptr);
    ASSERT_TRUE(answer) << "open is: " << open;
    open.clear();
    answer(choice);
}

void ScriptedWindows::Choose(ReadyChoice choice)
{
    auto const answer = std::exchange(m_ready, nullptr);
    ASSERT_TRUE(answer) << "open is: " << open;
    open.clear();
    answer(choice);
}

void ScriptedWindows::Cancel()
{
    auto const answer = std::exchange(m_cancelled, nullptr);
    ASSERT_TRUE(answer) << "open is: " << open;
    open.clear();
    answer();
}

class ScriptedDownload final : public IDownload
{
public:
    explicit ScriptedDownload(ScriptedParts& parts) : m_parts(parts) {}
    ~ScriptedDownload() override
    {
        if (m_parts.m_finished)
        {
            m_parts.m_notes.push_back("download stopped");
            m_parts.m_finished = nullptr;
        }
    }

    void Start(std::function<void(DownloadProgress const&)> progress,
               std::function<void(DownloadOutcome)> finished) override
    {
        m_parts.m_progress = std::move(progress);
        m_parts.m_finished = std::move(finished);
    }

private:
    ScriptedParts& m_parts;
};

class ScriptedHelper final : public IHelper
{
public:
    explicit ScriptedHelper(ScriptedParts& parts) : m_parts(parts) {}
    ~ScriptedHelper() override
    {
        if (ended && !m_isReleased)
        {
            m_parts.m_notes.push_back("helper killed");
        }
        if (m_parts.m_helper == this)
        {
            m_parts.m_helper = nullptr;
        }
    }

    void Start(UpdateJob const& job, std::map<int, int> const& inherited,
               std::function<void(HelperReport const&)> onReport, std::function<void(HelperEnd)> onEnded) override
    {
        if (m_parts.isHelperMissing)
        {
            throw UpdateRefusal(UpdateFault::DescriptorUnusable, ENOENT);
        }
        char const* const modes[] = {"prepare", "install", "recover"};
        m_parts.m_notes.push_back(std::string("helper ") + modes[job.index()]);
        m_parts.jobs.push_back(job);
        m_parts.m_helper = this;
        staging = inherited.at(HelperDescriptors::STAGING);
        auto const arguments = inherited.find(HelperDescriptors::ARGUMENTS);
        m_parts.arguments = UniqueFd(arguments == inherited.end() ? -1 : ::dup(arguments->second));
        report = std::move(onReport);
        ended = std::move(onEnded);
    }

    void CatchUp(std::chrono::milliseconds) override
    {
        if (auto const end = std::exchange(m_parts.unheardEnd, std::nullopt))
        {
            m_parts.EndHelper(*end);
        }
    }

    void Release() override { m_isReleased = true; }

    void Kill() override
    {
        if (ended)
        {
            m_parts.m_notes.push_back("helper killed");
            ended = nullptr;
        }
    }

    int staging = -1;
    std::function<void(HelperReport const&)> report;
    std::function<void(HelperEnd)> ended;

private:
    ScriptedParts& m_parts;
    bool m_isReleased = false;
};

void ScriptedParts::OpenTarget(QString const& bundlePath, quint64 bytes, std::function<void(OpenedTarget)> opened)
{
    neededBytes = bytes;
    if (std::exchange(isTargetHeld, false))
    {
        m_notes.push_back("target held");
        m_heldTarget = [this, bundlePath, bytes, opened] { OpenTarget(bundlePath, bytes, opened); };
        return;
    }
    if (targetError)
    {
        opened(Failure(*targetError));
        return;
    }
    InstallTarget target;
    target.parent = UniqueFd(::open(QFile::encodeName(m_applications).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    QString const name = bundlePath.mid(bundlePath.lastIndexOf(QLatin1Char('/')) + 1);
    target.name = name.toStdString();
    target.path = m_applications + QLatin1Char('/') + name;
    target.bundle = UniqueFd(::open(QFile::encodeName(target.path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    opened(std::move(target));
}

void ScriptedParts::TellTarget()
{
    ASSERT_TRUE(m_heldTarget);
    std::exchange(m_heldTarget, nullptr)();
}

std::unique_ptr<IDownload> ScriptedParts::MakeDownload(DownloadRequest const& request)
{
    m_notes.push_back("download " + request.url.path().toStdString());
    requests.push_back(request);
    return std::make_unique<ScriptedDownload>(*this);
}

void ScriptedParts::DiscardDownload(DownloadRequest const& request)
{
    m_notes.push_back("discard " + request.url.path().toStdString());
}

void ScriptedParts::DiscardAttempt(std::unique_ptr<InstallAttempt> attempt)
{
    m_notes.push_back("attempt taken back");
    attempt->TakeBack();
}

std::unique_ptr<IHelper> ScriptedParts::MakeHelper()
{
    return std::make_unique<ScriptedHelper>(*this);
}

void ScriptedParts::FinishDownload()
{
    ASSERT_TRUE(m_finished);
    auto const progress = m_progress;
    progress({10, 1000, 5});
    auto const finished = std::exchange(m_finished, nullptr);
    finished(UniqueFd(::open("/dev/null", O_RDONLY | O_CLOEXEC)));
}

void ScriptedParts::FailDownload(ErrorCause cause)
{
    ASSERT_TRUE(m_finished);
    auto const finished = std::exchange(m_finished, nullptr);
    finished(Failure(cause));
}

void ScriptedParts::Report(HelperReport const& report)
{
    ASSERT_TRUE(m_helper);
    auto const tell = m_helper->report;
    tell(report);
}

void ScriptedParts::EndHelper(HelperEnd end)
{
    ASSERT_TRUE(m_helper);
    auto const ended = std::exchange(m_helper->ended, nullptr);
    ASSERT_TRUE(ended);
    ended(end);
}

void ScriptedParts::FinishPreparation()
{
    ASSERT_TRUE(m_helper);
    ASSERT_EQ(::mkdirat(m_helper->staging, "App.app", 0755), 0);
    Report(ProgressReport{HelperPhase::Unpacking, 7, 9});
    Report(PreparedReport{ContentHash{1}, "App.app"});
    EndHelper(HelperEnd::Done);
}

void ScriptedParts::RefusePreparation(UpdateFault fault)
{
    Report(RefusedReport{fault, 0});
    EndHelper(HelperEnd::Refused);
}

UpdateFixture::UpdateFixture()
{
    QDir(folder.path()).mkdir(QStringLiteral("App.app"));
    settings.bundle.path = folder.filePath(QStringLiteral("App.app"));
    settings.bundle.identifier = QStringLiteral("example.app");
    settings.bundle.version = QStringLiteral("5.0");
    settings.bundle.shownName = QStringLiteral("App");
    settings.bundle.shownVersion = QStringLiteral("Five");
    settings.bundle.publicKeys = {GOOD_KEY};
    settings.check.bundleVersion = settings.bundle.version;
    settings.check.publicKeys = settings.bundle.publicKeys;
    settings.downloadFolder = downloads.path();
    settings.stateFolder = downloads.filePath(QStringLiteral("state"));
}

FeedItem UpdateFixture::Item(char const* version) const
{
    FeedItem item;
    item.versionString = QString::fromLatin1(version);
    item.fileUrl = QUrl(QStringLiteral("https://a.example/App-%1.zip").arg(item.versionString));
    item.contentLength = 1000;
    item.edSignature = QString::fromLatin1(GOOD_SIGNATURE);
    return item;
}

FeedItem UpdateFixture::Delta(char const* version) const
{
    FeedItem item = Item(version);
    item.fileUrl = QUrl(QStringLiteral("https://a.example/App-%1.delta").arg(item.versionString));
    item.contentLength = 100;
    item.isDelta = true;
    return item;
}

std::vector<std::string> UpdateFixture::Installed() const
{
    std::vector<std::string> names;
    auto const kinds = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    for (QString const& entry : QDir(folder.path()).entryList(kinds, QDir::Name))
    {
        names.push_back(entry.startsWith(QLatin1String(".pelnar-")) ? "staging" : entry.toStdString());
    }
    return names;
}

} // namespace Pelnar::Testing
