#include "Engine/core/helper/RelaunchArguments.h"

#include "Engine/core/base/FieldCodec.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

/// Each argument's NUL is counted as one byte, and its length is written as eight bytes.
constexpr std::size_t MAX_FILE_BYTES =
    RELAUNCH_ARGUMENTS_MAX_BYTES + 8 * RELAUNCH_ARGUMENTS_MAX_COUNT + RELAUNCH_ARGUMENTS_MAGIC.size() + 8;

} // namespace

std::string EncodeRelaunchArguments(std::vector<std::string> const& arguments)
{
    FieldWriter writer(RELAUNCH_ARGUMENTS_MAGIC);
    writer.Texts(arguments);
    return writer.Finish();
}

std::optional<std::vector<std::string>> DecodeRelaunchArguments(std::string_view bytes)
{
    if (bytes.size() > MAX_FILE_BYTES)
    {
        return std::nullopt;
    }
    FieldReader reader(bytes, RELAUNCH_ARGUMENTS_MAGIC);
    std::vector<std::string> arguments = reader.Texts();
    bool const isGood = reader.IsWhole() && !FaultOfRelaunchArguments(arguments);
    return isGood ? std::optional(std::move(arguments)) : std::nullopt;
}

std::vector<std::string> ReadRelaunchArguments(int fd)
{
    struct stat status;
    if (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode))
    {
        return {};
    }
    std::string bytes(MAX_FILE_BYTES + 1, '\0');
    std::size_t size = 0;
    while (size < bytes.size())
    {
        ssize_t const count = ::pread(fd, bytes.data() + size, bytes.size() - size, static_cast<off_t>(size));
        if (count == 0 || (count < 0 && errno != EINTR))
        {
            break;
        }
        size += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    return DecodeRelaunchArguments(std::string_view(bytes).substr(0, size)).value_or(std::vector<std::string>());
}

} // namespace Pelnar::Engine
