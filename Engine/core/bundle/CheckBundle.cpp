#include "Engine/core/bundle/CheckBundle.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/TreeAccess.h"
#include "Engine/core/bundle/PropertyList.h"
#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

#include <elf.h>
#include <link.h>
#include <sys/stat.h>

/// The running program's own header, where the linker placed it.
extern "C" ElfW(Ehdr) const __ehdr_start __attribute__((visibility("hidden")));

namespace Pelnar::Engine
{
namespace
{

/// The components of "1.20.3"; empty for any other text.
std::optional<std::vector<std::string>> DottedNumbers(std::string const& text)
{
    std::vector<std::string> numbers(1);
    for (char const character : text)
    {
        if (character == '.')
        {
            numbers.emplace_back();
        }
        else if (character >= '0' && character <= '9')
        {
            numbers.back() += character;
        }
        else
        {
            return std::nullopt;
        }
    }
    for (std::string& number : numbers)
    {
        if (number.empty())
        {
            return std::nullopt;
        }
        number.erase(0, std::min(number.find_first_not_of('0'), number.size()));
    }
    while (!numbers.empty() && numbers.back().empty())
    {
        numbers.pop_back();
    }
    return numbers;
}

/// The application decides the order of two versions, before the download. This checks what no order may allow: the
/// same version again, or a lower one if both are plain numbers.
bool IsNotNewer(std::string const& version, std::string const& installedVersion)
{
    auto const offered = DottedNumbers(version);
    auto const installed = DottedNumbers(installedVersion);
    if (!offered || !installed)
    {
        return version == installedVersion;
    }
    return !std::lexicographical_compare(installed->begin(), installed->end(), offered->begin(), offered->end(),
                                         [](std::string const& a, std::string const& b)
                                         { return a.size() != b.size() ? a.size() < b.size() : a < b; });
}

std::string ReadInformation(int bundleFd)
{
    UniqueFd const file = TreeAccess(bundleFd).OpenFile(INFORMATION_PATH);
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    {
        throw UpdateRefusal(UpdateFault::InformationMissing, file ? 0 : errno);
    }
    std::optional<std::string> text = ReadStart(file.Get(), PROPERTY_LIST_MAX_BYTES + 1);
    if (!text)
    {
        ThrowErrno(errno);
    }
    return *std::move(text);
}

BundlePurpose PurposeOf(PayloadKind kind)
{
    switch (kind)
    {
    case PayloadKind::WholeBundle:
    case PayloadKind::Delta:
        return BundlePurpose::Application;
    case PayloadKind::Installer:
        return BundlePurpose::InstallerProgram;
    }
    return BundlePurpose::Unknown;
}

struct NamedMachine
{
    char const* name;
    Machine machine;
};

constexpr NamedMachine MACHINES[] = {
    {"x86_64", {ELFCLASS64, ELFDATA2LSB, EM_X86_64}}, {"aarch64", {ELFCLASS64, ELFDATA2LSB, EM_AARCH64}},
    {"i386", {ELFCLASS32, ELFDATA2LSB, EM_386}},      {"armhf", {ELFCLASS32, ELFDATA2LSB, EM_ARM}},
    {"riscv64", {ELFCLASS64, ELFDATA2LSB, EM_RISCV}}, {"ppc64le", {ELFCLASS64, ELFDATA2LSB, EM_PPC64}},
    {"s390x", {ELFCLASS64, ELFDATA2MSB, EM_S390}},
};

bool IsSame(Machine const& a, Machine const& b)
{
    return a.wordClass == b.wordClass && a.byteOrder == b.byteOrder && a.architecture == b.architecture;
}

std::uint16_t Number16(char const* bytes, unsigned char byteOrder)
{
    auto const first = static_cast<unsigned char>(bytes[0]);
    auto const second = static_cast<unsigned char>(bytes[1]);
    return static_cast<std::uint16_t>(byteOrder == ELFDATA2MSB ? first << 8 | second : second << 8 | first);
}

bool IsRunnableOn(Machine const& machine, char const* bytes, std::size_t size)
{
    if (size >= 2 && bytes[0] == '#' && bytes[1] == '!')
    {
        return true;
    }
    // Both classes begin with the same fields: the marks, then two numbers of 16 bits, type and machine.
    if (size < (machine.wordClass == ELFCLASS32 ? sizeof(Elf32_Ehdr) : sizeof(Elf64_Ehdr)) ||
        std::memcmp(bytes, ELFMAG, SELFMAG) != 0)
    {
        return false;
    }
    auto const wordClass = static_cast<unsigned char>(bytes[EI_CLASS]);
    auto const byteOrder = static_cast<unsigned char>(bytes[EI_DATA]);
    std::uint16_t const type = Number16(bytes + EI_NIDENT, byteOrder);
    std::uint16_t const architecture = Number16(bytes + EI_NIDENT + 2, byteOrder);
    return wordClass == machine.wordClass && byteOrder == machine.byteOrder && architecture == machine.architecture &&
           (type == ET_EXEC || type == ET_DYN);
}

} // namespace

Machine OwnMachine()
{
    return {__ehdr_start.e_ident[EI_CLASS], __ehdr_start.e_ident[EI_DATA], __ehdr_start.e_machine};
}

std::optional<Machine> MachineOfName(std::string_view name)
{
    for (NamedMachine const& each : MACHINES)
    {
        if (name == each.name)
        {
            return each.machine;
        }
    }
    return std::nullopt;
}

std::vector<std::string> MachineNames()
{
    std::vector<std::string> names;
    for (NamedMachine const& each : MACHINES)
    {
        names.emplace_back(each.name);
    }
    return names;
}

std::string NameOf(Machine const& machine)
{
    for (NamedMachine const& each : MACHINES)
    {
        if (IsSame(each.machine, machine))
        {
            return each.name;
        }
    }
    return "another machine";
}

BundleInformation ReadBundleInformation(int bundleFd, std::string const& bundleName)
{
    return ParseBundleInformation(ReadInformation(bundleFd), bundleName);
}

void CheckNewBundle(int bundleFd, std::string const& bundleName, BundleExpectation const& expectation)
{
    BundleInformation const information = ReadBundleInformation(bundleFd, bundleName);
    if (information.purpose != PurposeOf(expectation.kind))
    {
        throw UpdateRefusal(UpdateFault::PayloadKindDiffers);
    }
    if (information.identifier != expectation.identifier)
    {
        throw UpdateRefusal(UpdateFault::IdentifierDiffers);
    }
    if (information.version != expectation.version)
    {
        throw UpdateRefusal(UpdateFault::VersionDiffers);
    }
    if (IsNotNewer(information.version, expectation.installedVersion))
    {
        throw UpdateRefusal(UpdateFault::VersionNotNewer);
    }
    if (information.publicKeys.Texts().empty() && expectation.kind != PayloadKind::Installer)
    {
        throw UpdateRefusal(UpdateFault::BundleKeyMissing); // it could never be updated again
    }
    CheckExecutable(bundleFd, information.executable, expectation.machine);
}

void CheckExecutable(int bundleFd, std::string const& executable, Machine const& machine)
{
    UniqueFd const file = TreeAccess(bundleFd).OpenFile(executable);
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0)
    {
        throw UpdateRefusal(UpdateFault::ExecutableMissing, errno);
    }
    if (!S_ISREG(status.st_mode) || (status.st_mode & S_IXUSR) == 0)
    {
        throw UpdateRefusal(UpdateFault::ExecutableNotRunnable);
    }
    char bytes[sizeof(Elf64_Ehdr)];
    ssize_t const count = ReadUpTo(file.Get(), 0, bytes, sizeof bytes);
    if (count < 0)
    {
        ThrowErrno(errno);
    }
    if (!IsRunnableOn(machine, bytes, static_cast<std::size_t>(count)))
    {
        throw UpdateRefusal(UpdateFault::ExecutableForeign);
    }
}

} // namespace Pelnar::Engine
