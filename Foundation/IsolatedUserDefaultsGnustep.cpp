#include "Foundation/IsolatedUserDefaults.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <dlfcn.h>
#include <unistd.h>

#include <vector>

namespace Pelnar::Foundation
{

struct IsolatedUserDefaults::Impl
{
    QTemporaryDir folder;
};

namespace
{

/// Those of \a texts that Foundation can read: it ends the process at any other. Both lists end with a null pointer.
std::vector<char*> ReadableTexts(char* const* texts)
{
    std::vector<char*> readable;
    for (; *texts; ++texts)
    {
        QByteArray const bytes = QByteArray::fromRawData(*texts, static_cast<int>(qstrlen(*texts)));
        if (QString::fromUtf8(bytes).toUtf8() == bytes)
        {
            readable.push_back(*texts);
        }
    }
    readable.push_back(nullptr);
    return readable;
}

/// GNUstep copies the environment when it is loaded; for a linked library this is before main. If GNUstep is loaded,
/// this makes it copy again. The function is looked up by name, because programs without Foundation use this file too.
void RefreshFoundationsEnvironment()
{
    using Initialize = void (*)(int, char**, char**);
    auto const initialize = reinterpret_cast<Initialize>(dlsym(RTLD_DEFAULT, "GSInitializeProcess"));
    if (!initialize)
    {
        return;
    }
    QFile commandLine(QStringLiteral("/proc/self/cmdline"));
    if (!commandLine.open(QIODevice::ReadOnly))
    {
        qFatal("cannot read %s", qPrintable(commandLine.fileName()));
    }
    QByteArray words = commandLine.readAll();
    std::vector<char*> allArguments;
    for (int start = 0; start < words.size(); start += static_cast<int>(qstrlen(words.data() + start)) + 1)
    {
        allArguments.push_back(words.data() + start);
    }
    allArguments.push_back(nullptr);
    std::vector<char*> arguments = ReadableTexts(allArguments.data());
    std::vector<char*> variables = ReadableTexts(environ);
    initialize(static_cast<int>(arguments.size()) - 1, arguments.data(), variables.data());
}

} // namespace

IsolatedUserDefaults::IsolatedUserDefaults() : m_impl(std::make_unique<Impl>())
{
    // Foundation keeps user defaults in the home folder of the password database and ignores HOME. Only this variable
    // moves them, and it must be set before Foundation is first used.
    QByteArray const folder = QFile::encodeName(m_impl->folder.path());
    QFile config(m_impl->folder.filePath(QStringLiteral("GNUstep.conf")));
    if (!config.open(QIODevice::WriteOnly) || config.write("GNUSTEP_USER_DEFAULTS_DIR=" + folder + "/Defaults\n") < 0)
    {
        qFatal("cannot write %s", qPrintable(config.fileName()));
    }
    config.close();
    // Foundation ignores a file that others may change, so this does not depend on the umask.
    config.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    qputenv("GNUSTEP_CONFIG_FILE", QFile::encodeName(config.fileName()));
    // The update checker's own settings, and its records of feeds.
    qputenv("XDG_CONFIG_HOME", folder + "/config");
    qputenv("XDG_STATE_HOME", folder + "/state");
    // The engine keeps feeds there. A program that is started several times gets one folder for all its runs.
    if (!qEnvironmentVariableIsSet("XDG_CACHE_HOME"))
    {
        qputenv("XDG_CACHE_HOME", folder + "/Cache");
    }
    RefreshFoundationsEnvironment();
}

IsolatedUserDefaults::~IsolatedUserDefaults() = default;

} // namespace Pelnar::Foundation
