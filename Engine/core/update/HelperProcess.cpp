#include "Engine/core/update/HelperProcess.h"

#include "Engine/core/update/HelperLaunch_p.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <string>
#include <utility>
#include <variant>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr int EXIT_REFUSED = 1;
constexpr std::size_t READ_BYTES = 4096;

char const* ModeOf(UpdateJob const& job)
{
    constexpr char const* MODES[] = {"prepare", "install", "recover", "rehearse"};
    static_assert(std::size(MODES) == std::variant_size_v<UpdateJob>);
    return MODES[job.index()];
}

HelperEnd EndOf(int status)
{
    return status == 0 ? HelperEnd::Done : status == EXIT_REFUSED ? HelperEnd::Refused : HelperEnd::Crashed;
}

/// The end that a helper announces by its last report: each mode has one.
std::optional<HelperEnd> EndToldBy(HelperReport const& report)
{
    if (std::holds_alternative<RefusedReport>(report))
    {
        return HelperEnd::Refused;
    }
    bool const isDone = std::holds_alternative<PreparedReport>(report) ||
                        std::holds_alternative<RecoveredReport>(report) ||
                        std::holds_alternative<RehearsedReport>(report);
    return isDone ? std::optional(HelperEnd::Done) : std::nullopt;
}

} // namespace

std::map<int, int> DescriptorMap(PrepareJob const& job, PrepareDescriptors const& own)
{
    std::map<int, int> numbers{{HelperDescriptors::STAGING, own.staging}, {HelperDescriptors::ARCHIVE, own.archive}};
    if (job.kind != PayloadKind::WholeBundle)
    {
        numbers[HelperDescriptors::TARGET] = own.target;
    }
    return numbers;
}

std::map<int, int> DescriptorMap(InstallJob const& job, InstallDescriptors const& own)
{
    std::map<int, int> numbers{{HelperDescriptors::STAGING, own.staging},
                               {HelperDescriptors::PARENT, own.parent},
                               {HelperDescriptors::HOST, own.host}};
    if (job.record)
    {
        numbers[HelperDescriptors::RECORDS] = own.records;
    }
    if (!job.targetPath.empty())
    {
        numbers[HelperDescriptors::ARGUMENTS] = own.arguments;
    }
    return numbers;
}

std::map<int, int> DescriptorMap(RecoverJob const&, RecoverDescriptors const& own)
{
    return {{HelperDescriptors::PARENT, own.parent}};
}

std::map<int, int> DescriptorMap(RehearseJob const&, RehearseDescriptors const& own)
{
    return {{HelperDescriptors::STAGING, own.staging},
            {HelperDescriptors::PARENT, own.parent},
            {HelperDescriptors::HOST, own.host}};
}

class HelperProcess::Impl : public QObject
{
public:
    explicit Impl(std::shared_ptr<SealedProgram> program) : m_program(std::move(program)) {}
    ~Impl() override;

    void Start(UpdateJob const& job, std::map<int, int> const& inherited,
               std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended);
    void CatchUp(std::chrono::milliseconds most);
    void Release() { m_isReleased = true; }
    void Kill();

private:
    /// Tells whether a callback has destroyed an object.
    using Witness = std::weak_ptr<bool>;

    void Read();
    [[nodiscard]] bool TakeLines();
    void Distrust();
    void Finish();

    std::shared_ptr<SealedProgram> m_program;
    std::function<void(HelperReport const&)> m_report;
    std::function<void(HelperEnd)> m_ended;
    std::shared_ptr<bool> m_isAlive = std::make_shared<bool>(true);
    UniqueFd m_process;              ///< until it has been reaped
    std::optional<HelperEnd> m_told; ///< from the last report
    UniqueFd m_reports;
    QSocketNotifier* m_reportNotifier = nullptr; // a child of this object
    QSocketNotifier* m_endNotifier = nullptr;    // a child of this object
    std::string m_line;
    bool m_hasReported = false;
    bool m_isReleased = false;
    bool m_isDistrusted = false;
};

HelperProcess::Impl::~Impl()
{
    // The notifiers are destroyed before the descriptors that they watch.
    delete m_reportNotifier;
    delete m_endNotifier;
    if (!m_isReleased)
    {
        Kill();
    }
}

void HelperProcess::Impl::Kill()
{
    if (m_process)
    {
        KillHelper(m_process);
        static_cast<void>(Reap(m_process));
        m_process = UniqueFd();
    }
}

void HelperProcess::Impl::Start(UpdateJob const& job, std::map<int, int> const& inherited,
                                std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended)
{
    LaunchedHelper helper = LaunchHelper(*m_program, ModeOf(job), EncodeUpdateJob(job), inherited);
    m_process = std::move(helper.process);
    m_reports = std::move(helper.reports);
    m_report = std::move(report);
    m_ended = std::move(ended);
    m_reportNotifier = new QSocketNotifier(m_reports.Get(), QSocketNotifier::Read, this);
    connect(m_reportNotifier, &QSocketNotifier::activated, this, [this] { Read(); });
    m_endNotifier = new QSocketNotifier(m_process.Get(), QSocketNotifier::Read, this);
    connect(m_endNotifier, &QSocketNotifier::activated, this, [this] { Finish(); });
}

void HelperProcess::Impl::CatchUp(std::chrono::milliseconds most)
{
    if (!m_process || m_isDistrusted)
    {
        return; // its end is on its way
    }
    QDeadlineTimer limit(m_hasReported ? std::chrono::milliseconds(0) : most);
    pollfd arrived[] = {{m_process.Get(), POLLIN, 0}, {m_reports.Get(), POLLIN, 0}};
    for (bool isWaiting = true; isWaiting;)
    {
        int const count = ::poll(arrived, std::size(arrived), static_cast<int>(limit.remainingTime()));
        bool const isClosed = count > 0 && arrived[0].revents == 0 && arrived[1].revents == POLLHUP;
        if (isClosed)
        {
            arrived[1].fd = -1; // a process closes its pipe shortly before it has ended
            limit.setRemainingTime(most);
        }
        isWaiting = isClosed || (count < 0 && errno == EINTR);
    }
    if ((arrived[0].revents & POLLIN) != 0)
    {
        Finish();
        return;
    }
    Read();
}

void HelperProcess::Impl::Read()
{
    char buffer[READ_BYTES];
    ssize_t const count = ::read(m_reports.Get(), buffer, sizeof buffer);
    if (count > 0)
    {
        m_line.append(buffer, static_cast<std::size_t>(count));
        static_cast<void>(TakeLines());
    }
    else if (count == 0 || (errno != EAGAIN && errno != EINTR))
    {
        m_reportNotifier->setEnabled(false); // the process's own notifier reports its end
    }
}

/// False if a callback destroyed this object.
bool HelperProcess::Impl::TakeLines()
{
    Witness const witness = m_isAlive;
    std::string lines;
    lines.swap(m_line);
    std::size_t begin = 0;
    for (std::size_t end = 0; !m_isDistrusted && (end = lines.find('\n', begin)) != std::string::npos; begin = end + 1)
    {
        auto const decoded = DecodeHelperReport(std::string_view(lines).substr(begin, end - begin));
        if (!decoded)
        {
            Distrust();
            return true;
        }
        m_hasReported = true;
        m_told = EndToldBy(*decoded);
        auto const report = m_report; // a callback may destroy the stored one
        report(*decoded);
        if (witness.expired())
        {
            return false;
        }
    }
    m_line = lines.substr(begin);
    if (m_line.size() >= HELPER_REPORT_MAX_BYTES)
    {
        Distrust();
    }
    return true;
}

void HelperProcess::Impl::Distrust()
{
    m_isDistrusted = true;
    m_line.clear();
    m_reportNotifier->setEnabled(false);
    KillHelper(m_process);
}

void HelperProcess::Impl::Finish()
{
    m_endNotifier->setEnabled(false);
    m_reportNotifier->setEnabled(false);
    // The output of the ended process is still in the pipe, and no process can extend it endlessly.
    for (std::size_t left = HELPER_PIPE_BYTES; left > 0 && !m_isDistrusted;)
    {
        char buffer[READ_BYTES];
        ssize_t const count = ::read(m_reports.Get(), buffer, std::min(sizeof buffer, left));
        if (count <= 0)
        {
            break;
        }
        left -= static_cast<std::size_t>(count);
        m_line.append(buffer, static_cast<std::size_t>(count));
        if (!TakeLines())
        {
            return;
        }
    }
    std::optional<int> const status = Reap(m_process);
    HelperEnd const end = status ? EndOf(*status) : m_told.value_or(HelperEnd::Crashed);
    m_process = UniqueFd();
    auto const ended = std::move(m_ended);
    ended(m_isDistrusted ? HelperEnd::Crashed : end);
}

HelperProcess::HelperProcess(std::shared_ptr<SealedProgram> program)
    : m_impl(std::make_unique<Impl>(std::move(program)))
{
}

HelperProcess::~HelperProcess() = default;

void HelperProcess::Start(UpdateJob const& job, std::map<int, int> const& inherited,
                          std::function<void(HelperReport const&)> report, std::function<void(HelperEnd)> ended)
{
    m_impl->Start(job, inherited, std::move(report), std::move(ended));
}

void HelperProcess::CatchUp(std::chrono::milliseconds most)
{
    m_impl->CatchUp(most);
}

void HelperProcess::Release()
{
    m_impl->Release();
}

void HelperProcess::Kill()
{
    // This destroys the notifiers, so no further event is reported.
    m_impl->Kill();
    m_impl.reset();
}

UniqueFd OpenProcess(int pid)
{
    UniqueFd process(static_cast<int>(::syscall(SYS_pidfd_open, pid == 0 ? ::getpid() : pid, 0)));
    if (!process)
    {
        ThrowNoProcess(errno);
    }
    return process;
}

} // namespace Pelnar::Engine
