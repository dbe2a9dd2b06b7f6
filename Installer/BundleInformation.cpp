#include "Installer/BundleInformation.h"

#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/payload/PropertyList.h"
#include "Engine/core/payload/UpdateFault.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

#include <elf.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

/// The running program's own header, as the linker placed it.
extern "C" ElfW(Ehdr) const __ehdr_start __attribute__((visibility("hidden")));

namespace Pelnar::Installer
{
namespace
{

using Engine::UpdateFault;
using Engine::UpdateRefusal;

/// The components of "1.20.3"; nothing for any other kind of text.
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

/// The order of two versions is the application's own matter, decided before the download. What no order may allow is
/// checked here: the same version again, or a lower one where both are plain numbers.
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
    Engine::UniqueFd const file = Engine::TreeAccess(bundleFd).OpenFile(Engine::INFORMATION_PATH);
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    {
        throw UpdateRefusal(UpdateFault::InformationMissing, file ? 0 : errno);
    }
    std::string text(Engine::PROPERTY_LIST_MAX_BYTES + 1, '\0');
    std::size_t size = 0;
    while (size < text.size())
    {
        ssize_t const count = ::read(file.Get(), text.data() + size, text.size() - size);
        if (count < 0 && errno != EINTR)
        {
            Engine::ThrowErrno(errno);
        }
        if (count == 0)
        {
            break;
        }
        size += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    text.resize(size);
    return text;
}

Engine::BundlePurpose PurposeOf(Engine::PayloadKind kind)
{
    switch (kind)
    {
    case Engine::PayloadKind::WholeBundle:
    case Engine::PayloadKind::Delta:
        return Engine::BundlePurpose::Application;
    case Engine::PayloadKind::Installer:
        return Engine::BundlePurpose::InstallerProgram;
    }
    return Engine::BundlePurpose::Unknown;
}

bool IsRunnableHere(char const* bytes, std::size_t size)
{
    if (size >= 2 && bytes[0] == '#' && bytes[1] == '!')
    {
        return true;
    }
    ElfW(Ehdr) header;
    if (size < sizeof header)
    {
        return false;
    }
    std::memcpy(&header, bytes, sizeof header);
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
           header.e_ident[EI_CLASS] == __ehdr_start.e_ident[EI_CLASS] &&
           header.e_ident[EI_DATA] == __ehdr_start.e_ident[EI_DATA] && header.e_machine == __ehdr_start.e_machine &&
           (header.e_type == ET_EXEC || header.e_type == ET_DYN);
}

} // namespace

Engine::BundleInformation ReadBundleInformation(int bundleFd, std::string const& bundleName)
{
    return Engine::ParseBundleInformation(ReadInformation(bundleFd), bundleName);
}

void CheckNewBundle(int bundleFd, std::string const& bundleName, BundleExpectation const& expectation)
{
    Engine::BundleInformation const information = ReadBundleInformation(bundleFd, bundleName);
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
    if (information.publicKey.empty() && expectation.kind != Engine::PayloadKind::Installer)
    {
        throw UpdateRefusal(UpdateFault::BundleKeyMissing); // it could never be updated again
    }
    CheckExecutable(bundleFd, information.executable);
}

void CheckExecutable(int bundleFd, std::string const& executable)
{
    Engine::UniqueFd const file = Engine::TreeAccess(bundleFd).OpenFile(executable);
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0)
    {
        throw UpdateRefusal(UpdateFault::ExecutableMissing, errno);
    }
    if (!S_ISREG(status.st_mode) || (status.st_mode & S_IXUSR) == 0)
    {
        throw UpdateRefusal(UpdateFault::ExecutableNotRunnable);
    }
    char bytes[sizeof(ElfW(Ehdr))];
    ssize_t const count = Engine::ReadUpTo(file.Get(), 0, bytes, sizeof bytes);
    if (count < 0)
    {
        Engine::ThrowErrno(errno);
    }
    if (!IsRunnableHere(bytes, static_cast<std::size_t>(count)))
    {
        throw UpdateRefusal(UpdateFault::ExecutableForeign);
    }
}

} // namespace Pelnar::Installer
