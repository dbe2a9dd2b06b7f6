#include "tests/end_to_end/InstalledDemo.h"

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/base/Descriptor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 100000;
constexpr int LOOK_AGAIN_MS = 10;
constexpr QDir::Filters ALL_ENTRIES = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
constexpr char RUNNING_PREFIX[] = "Pelnar Demo ";
constexpr char RUNNING_SUFFIX[] = " is running";

QStringList OptionsOf(QStringList const& faults)
{
    QStringList options;
    for (QString const& fault : faults)
    {
        options += {QStringLiteral("--fault"), fault};
    }
    return options;
}

QString Published(char const* name)
{
    return QStringLiteral(PELNAR_PUBLISHED_DEMO "/") + QString::fromLatin1(name);
}

Engine::ContentHash TreeOf(QString const& bundle)
{
    Engine::UniqueFd const folder(::open(QFile::encodeName(bundle).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return Engine::DigestTree(folder.Get());
}

/// A program with its output in a pipe that its children inherit.
class PipedProcess : public QProcess
{
public:
    explicit PipedProcess(int outputFd) : m_outputFd(outputFd) { setProcessChannelMode(QProcess::ForwardedChannels); }

protected:
    void setupChildProcess() override
    {
        ::dup2(m_outputFd, STDOUT_FILENO);
        ::dup2(m_outputFd, STDERR_FILENO);
    }

private:
    int m_outputFd;
};

/// The output of several processes, in a pipe.
class OutputPipe
{
public:
    OutputPipe()
    {
        int ends[2];
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        m_readingEnd = Engine::UniqueFd(ends[0]);
        m_writingEnd = Engine::UniqueFd(ends[1]);
    }

    int WritingEnd() const { return m_writingEnd.Get(); }

    /// Reads until no process can write any more. Returns false if one still can after the time limit.
    [[nodiscard]] bool ReadToEnd(std::string& text)
    {
        m_writingEnd = Engine::UniqueFd();
        QElapsedTimer timer;
        timer.start();
        char bytes[4096];
        for (;;)
        {
            pollfd entry{m_readingEnd.Get(), POLLIN, 0};
            int const left = static_cast<int>(std::max<qint64>(PATIENCE_MS - timer.elapsed(), 0));
            if (::poll(&entry, 1, left) == 0)
            {
                return false;
            }
            ssize_t const count = ::read(m_readingEnd.Get(), bytes, sizeof bytes);
            if (count == 0)
            {
                return true;
            }
            text.append(bytes, count > 0 ? static_cast<std::size_t>(count) : 0);
        }
    }

private:
    Engine::UniqueFd m_readingEnd;
    Engine::UniqueFd m_writingEnd;
};

std::vector<std::string> LinesOf(std::string const& text)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();)
    {
        std::size_t const end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

} // namespace

std::vector<std::string> DemoOutput::RunningVersions() const
{
    std::string const prefix = RUNNING_PREFIX;
    std::string const suffix = RUNNING_SUFFIX;
    std::vector<std::string> versions;
    for (std::string const& line : lines)
    {
        bool const isTold = line.size() > prefix.size() + suffix.size() &&
                            line.compare(0, prefix.size(), prefix) == 0 &&
                            line.compare(line.size() - suffix.size(), suffix.size(), suffix) == 0;
        if (isTold)
        {
            versions.push_back(line.substr(prefix.size(), line.size() - prefix.size() - suffix.size()));
        }
    }
    return versions;
}

bool DemoOutput::Says(std::string const& line) const
{
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

std::ptrdiff_t DemoOutput::Count(std::string const& part) const
{
    return std::count_if(lines.begin(), lines.end(),
                         [&part](std::string const& line) { return line.find(part) != std::string::npos; });
}

std::string DemoOutput::Text() const
{
    std::string text;
    for (std::string const& line : lines)
    {
        text += line + '\n';
    }
    return text;
}

PublishedSite::PublishedSite()
{
    for (QFileInfo const& file : QDir(Published("site")).entryInfoList(QDir::Files))
    {
        EXPECT_TRUE(QFile::copy(file.filePath(), m_folder.filePath(file.fileName())));
    }
}

QByteArray PublishedSite::Read(char const* name) const
{
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

void PublishedSite::Write(char const* name, QByteArray const& bytes) const
{
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name;
    file.write(bytes);
}

QString PublishedSite::Published(char const* name)
{
    return Testing::Published(name);
}

QByteArray PublishedSite::Sign(char const* name) const
{
    QProcess tool;
    tool.start(QStringLiteral(PELNAR_APPCAST_PROGRAM),
               {QStringLiteral("sign"), m_folder.filePath(QString::fromLatin1(name)), QStringLiteral("--key"),
                Testing::Published("signing.key")});
    EXPECT_TRUE(tool.waitForFinished() && tool.exitCode() == 0) << name;
    return tool.readAllStandardOutput().trimmed();
}

void PublishedSite::Run(char const* verb, char const* name, QStringList const& more) const
{
    QStringList const arguments{QString::fromLatin1(verb), m_folder.filePath(QString::fromLatin1(name)),
                                QStringLiteral("--key"), Published("signing.key")};
    EXPECT_EQ(QProcess::execute(QStringLiteral(PELNAR_APPCAST_PROGRAM), arguments + more), 0) << verb;
}

UpdateServer::UpdateServer(QStringList const& faults) : UpdateServer(Published("site"), faults) {}

UpdateServer::UpdateServer(PublishedSite const& site) : UpdateServer(site.Path(), {}) {}

UpdateServer::UpdateServer(QString const& folder, QStringList const& faults)
    : m_server(QStringList{folder, QStringLiteral("--tls"), Published("server.pem"), Published("server.key")} +
               OptionsOf(faults))
{
    EXPECT_EQ(m_server.Address().scheme(), QStringLiteral("https")) << m_server.Log().toStdString();
}

std::vector<std::string> UpdateServer::EndAndListAnswers()
{
    std::vector<std::string> answers;
    for (QByteArray const& line : m_server.Log().split('\n'))
    {
        QList<QByteArray> const words = line.split(' ');
        if (words.size() > 2)
        {
            answers.push_back((words[1].mid(1) + ' ' + words[2]).toStdString());
        }
    }
    return answers;
}

std::vector<std::string> UpdateServer::EndAndListServedFiles()
{
    std::vector<std::string> names;
    for (std::string const& answer : EndAndListAnswers())
    {
        std::size_t const blank = answer.find(' ');
        std::string const status = answer.substr(blank + 1);
        if (status == "200" || status == "206")
        {
            names.push_back(answer.substr(0, blank));
        }
    }
    return names;
}

namespace
{

constexpr char DEFAULTS[] = "home/config/com.example.pelnar-demo/updates.plist";
constexpr char EARLIER_DEFAULTS[] = "Defaults/PelnarDemo.plist";

} // namespace

InstalledDemo::InstalledDemo()
{
    for (char const* const name : {"Applications", "Defaults", "home", "pictures", "runtime"})
    {
        EXPECT_TRUE(QDir().mkpath(Path(name)));
    }
    // Qt asks for this object.
    EXPECT_TRUE(QFile::setPermissions(Path("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(QProcess::execute(QStringLiteral("cp"),
                                {QStringLiteral("-a"), Published("old/PelnarDemo.app"), Path("Applications")}),
              0);
    QFile config(Path("GNUstep.conf"));
    EXPECT_TRUE(config.open(QIODevice::WriteOnly));
    config.write("GNUSTEP_USER_DEFAULTS_DIR=" + QFile::encodeName(Path("Defaults")) + '\n');
}

void InstalledDemo::AddInformation(QByteArray const& entries)
{
    QFile file(Path("Applications/PelnarDemo.app/Resources/Info-gnustep.plist"));
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray information = file.readAll();
    information.insert(information.indexOf('{') + 1, entries);
    EXPECT_TRUE(file.seek(0));
    file.write(information);
}

void InstalledDemo::MoveApplications(std::string const& name) const
{
    std::string const place = Path("Applications").toStdString();
    std::string const target = place.substr(0, place.rfind('/') + 1) + name;
    EXPECT_EQ(std::rename(place.c_str(), target.c_str()), 0);
    EXPECT_EQ(::symlink(name.c_str(), place.c_str()), 0);
}

void InstalledDemo::WriteDefaults(QByteArray const& text)
{
    WriteTo(DEFAULTS, text);
}

void InstalledDemo::WriteEarlierDefaults(QByteArray const& text)
{
    WriteTo(EARLIER_DEFAULTS, text);
}

void InstalledDemo::WriteTo(char const* path, QByteArray const& text)
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(Path(path)).path()));
    QFile file(Path(path));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray InstalledDemo::ReadDefaults() const
{
    return ReadFrom(DEFAULTS);
}

QByteArray InstalledDemo::ReadEarlierDefaults() const
{
    return ReadFrom(EARLIER_DEFAULTS);
}

QByteArray InstalledDemo::ReadFrom(char const* path) const
{
    QFile file(Path(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void InstalledDemo::Start(QProcess& process, QString const& feed, QStringList const& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("GNUSTEP_CONFIG_FILE"), Path("GNUstep.conf"));
    environment.insert(QStringLiteral("HOME"), Path("home"));
    if (m_hasOwnHome)
    {
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), Path("home/cache"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Path("home/config"));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), Path("home/state"));
    }
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), Path("runtime"));
    environment.insert(QStringLiteral("SSL_CERT_FILE"), Published("authority.pem"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("PELNAR_DEMO_OPTIONS"), QStringLiteral("--scenario start"));
    for (std::string const& variable : m_variables)
    {
        std::size_t const equals = variable.find('=');
        environment.insert(QString::fromStdString(variable.substr(0, equals)),
                           QString::fromStdString(variable.substr(equals + 1)));
    }
    process.setProcessEnvironment(environment);
    process.start(Path("Applications/PelnarDemo.app/PelnarDemo"),
                  QStringList{QStringLiteral("--feed"), feed, QStringLiteral("--screenshot-dir"), Path("pictures")} +
                      arguments);
    EXPECT_TRUE(process.waitForStarted());
}

DemoOutput InstalledDemo::Run(QString const& feed, QStringList const& arguments) const
{
    DemoOutput output;
    OutputPipe pipe;
    PipedProcess process(pipe.WritingEnd());
    Start(process, feed, arguments);
    std::string text;
    output.hasEnded = pipe.ReadToEnd(text) && process.waitForFinished();
    output.lines = LinesOf(text);
    if (output.hasEnded && process.exitStatus() == QProcess::NormalExit)
    {
        output.status = process.exitCode();
    }
    return output;
}

bool InstalledDemo::Crash(QString const& feed, QStringList const& arguments, int signal,
                          std::function<bool()> const& isDue) const
{
    OutputPipe pipe;
    PipedProcess process(pipe.WritingEnd());
    Start(process, feed, arguments);
    QElapsedTimer timer;
    timer.start();
    bool wasDue = false;
    do
    {
        wasDue = isDue();
    } while (!wasDue && timer.elapsed() < PATIENCE_MS && !process.waitForFinished(LOOK_AGAIN_MS));
    auto const demo = static_cast<pid_t>(process.processId());
    bool const isSent =
        demo > 0 && ::kill(demo, wasDue ? signal : SIGKILL) == 0; // 0 would mean the whole process group of this test
    std::string text;
    bool const hasEnded = pipe.ReadToEnd(text) && process.waitForFinished();
    return wasDue && isSent && hasEnded;
}

Engine::ContentHash InstalledDemo::Tree() const
{
    return TreeOf(Path("Applications/PelnarDemo.app"));
}

std::vector<std::string> InstalledDemo::Neighbours() const
{
    std::vector<std::string> names;
    for (QFileInfo const& entry : QDir(Path("Applications")).entryInfoList(ALL_ENTRIES, QDir::Name))
    {
        names.push_back(entry.fileName().toStdString());
    }
    return names;
}

bool InstalledDemo::HasDownloaded() const
{
    QDirIterator files(Path("home"), {QStringLiteral("*.archive")}, QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
    {
        files.next();
        if (files.fileInfo().size() > 0)
        {
            return true;
        }
    }
    return false;
}

std::vector<std::string> InstalledDemo::Pictures() const
{
    std::vector<std::string> names;
    for (QFileInfo const& picture : QDir(Path("pictures")).entryInfoList(QDir::Files, QDir::Name))
    {
        names.push_back(picture.completeBaseName().toStdString());
    }
    return names;
}

Engine::ContentHash OldTree()
{
    return TreeOf(Published("old/PelnarDemo.app"));
}

Engine::ContentHash NewTree()
{
    return TreeOf(Published("new/PelnarDemo.app"));
}

} // namespace Pelnar::Testing
