#include "tests/archives/Packers.h"

#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <ostream>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 60000;

constexpr char PYTHON_ZIP[] = R"(python3 -c '
import os, stat, sys, zipfile
with zipfile.ZipFile(sys.argv[2], "w", zipfile.ZIP_DEFLATED) as z:
    for folder, folders, files in os.walk(sys.argv[1]):
        z.write(folder)
        for name in folders + files:
            path = os.path.join(folder, name)
            if os.path.islink(path):
                info = zipfile.ZipInfo(path)
                info.create_system = 3
                info.external_attr = (stat.S_IFLNK | 0o777) << 16
                z.writestr(info, os.readlink(os.fsencode(path)))
            elif os.path.isfile(path):
                z.write(path)
' "$1" "$2")";

constexpr char PYTHON_ZIP_WITHOUT_FLAG[] = R"(python3 -c '
import os, stat, sys, zipfile
class Unflagged(zipfile.ZipInfo):
    def _encodeFilenameFlags(self):
        return self.filename.encode(), self.flag_bits
def add(z, path):
    status = os.lstat(path)
    info = Unflagged(path + ("/" if stat.S_ISDIR(status.st_mode) else ""))
    info.create_system = 3
    info.external_attr = status.st_mode << 16
    data = b""
    if stat.S_ISLNK(status.st_mode):
        data = os.readlink(os.fsencode(path))
    elif stat.S_ISREG(status.st_mode):
        data = open(path, "rb").read()
    z.writestr(info, data)
with zipfile.ZipFile(sys.argv[2], "w") as z:
    for folder, folders, files in os.walk(sys.argv[1]):
        add(z, folder)
        for name in folders + files:
            path = os.path.join(folder, name)
            if not (os.path.isdir(path) and not os.path.islink(path)):
                add(z, path)
' "$1" "$2")";

constexpr char PYTHON_TAR[] = R"(python3 -c '
import sys, tarfile
with tarfile.open(sys.argv[2], "w", format=getattr(tarfile, sys.argv[3])) as t:
    t.add(sys.argv[1])
' "$1" "$2" )";

std::string PythonTar(char const* format)
{
    return std::string(PYTHON_TAR) + format;
}

QProcessEnvironment EnvironmentOf(std::vector<std::string> const& variables)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/sbin:/usr/bin:/sbin:/bin"));
    for (std::string const& variable : variables)
    {
        std::size_t const place = variable.find('=');
        environment.insert(QString::fromStdString(variable.substr(0, place)),
                           QString::fromStdString(variable.substr(place + 1)));
    }
    return environment;
}

} // namespace

void PrintTo(Packer const& packer, std::ostream* out)
{
    *out << packer.name;
}

std::vector<Packer> const& Packers()
{
    constexpr auto IMPOSSIBLE = PackedLongNames::Impossible;
    constexpr auto KEPT = PackedLongNames::Kept;
    static std::string const pythonPax = PythonTar("PAX_FORMAT");
    static std::string const pythonGnu = PythonTar("GNU_FORMAT");
    static std::string const pythonUstar = PythonTar("USTAR_FORMAT");
    static std::vector<Packer> const packers{
        {"InfoZip", "zip", "zip -q -r -y \"$2.zip\" \"$1\" && mv \"$2.zip\" \"$2\"", true},
        {"InfoZipWithUtf8Flag", "zip", "zip -q -r -y -UN=UTF8 \"$2.zip\" \"$1\" && mv \"$2.zip\" \"$2\"", true},
        {"BsdtarZip", "bsdtar", "bsdtar --format zip -cf \"$2\" \"$1\"", true},
        {"SevenZip", "7zz", "7zz a -tzip -snl \"$2.zip\" \"$1\" > /dev/null && mv \"$2.zip\" \"$2\"", true},
        {"PythonZip", "python3", PYTHON_ZIP, true},
        {"PythonZipWithoutUtf8Flag", "python3", PYTHON_ZIP_WITHOUT_FLAG, true},
        {"BsdtarDefault", "bsdtar", "bsdtar -cf \"$2\" \"$1\""},
        {"BsdtarPax", "bsdtar", "bsdtar --format pax -cf \"$2\" \"$1\""},
        {"BsdtarPaxBinary", "bsdtar", "bsdtar --format pax --options hdrcharset=BINARY -cf \"$2\" \"$1\""},
        {"BsdtarUstar", "bsdtar", "bsdtar --format ustar -cf \"$2\" \"$1\"", false, IMPOSSIBLE},
        {"BsdtarGnu", "bsdtar", "bsdtar --format gnutar -cf \"$2\" \"$1\""},
        {"BsdtarV7", "bsdtar", "bsdtar --format v7tar -cf \"$2\" \"$1\"", false, IMPOSSIBLE},
        {"GnuTarPosix", "tar", "tar --format posix -cf \"$2\" \"$1\""},
        {"GnuTarGnu", "tar", "tar --format gnu -cf \"$2\" \"$1\""},
        {"GnuTarOldGnu", "tar", "tar --format oldgnu -cf \"$2\" \"$1\""},
        {"GnuTarUstar", "tar", "tar --format ustar -cf \"$2\" \"$1\"", false, IMPOSSIBLE},
        {"GnuTarV7", "tar", "tar --format v7 -cf \"$2\" \"$1\"", false, IMPOSSIBLE},
        {"PythonTarPax", "python3", pythonPax.c_str(), false, KEPT},
        {"PythonTarGnu", "python3", pythonGnu.c_str(), false, KEPT},
        {"PythonTarUstar", "python3", pythonUstar.c_str(), false, IMPOSSIBLE},
        {"PaxUstar", "pax", "pax -w -x ustar -f \"$2\" \"$1\"", false, IMPOSSIBLE},
        {"CpioUstar", "cpio", "find \"$1\" | cpio --quiet -o -H ustar > \"$2\"", false, IMPOSSIBLE},
        {"BusyboxTar", "busybox", "busybox tar -cf \"$2\" \"$1\""},
    };
    return packers;
}

bool IsInstalled(std::string const& program)
{
    return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
}

std::string Pack(Packer const& packer, std::string const& parent, std::string const& name,
                 std::vector<std::string> const& variables)
{
    Workspace const place;
    QString const target = QString::fromStdString(place.Path() + "/packed");
    QProcess process;
    process.setProcessEnvironment(EnvironmentOf(variables));
    process.setWorkingDirectory(QString::fromStdString(parent));
    // The shell makes the name itself from ASCII. An argument would pass through the test's locale.
    std::string octal;
    for (char const character : name)
    {
        char text[8];
        std::snprintf(text, sizeof text, "\\0%03o", static_cast<unsigned>(static_cast<unsigned char>(character)));
        octal += text;
    }
    std::string const script = "set -e -- \"$(printf '%b' '" + octal + "')\" \"$1\"\n" + packer.script;
    process.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"), QString::fromStdString(script), QStringLiteral("sh"), target});
    EXPECT_TRUE(process.waitForFinished(PATIENCE_MS)) << packer.name;
    QFile file(target); // some packers return a warning status for names that they have kept
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

} // namespace Pelnar::Testing
