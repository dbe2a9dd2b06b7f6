#include "Engine/core/helper/RelaunchArguments.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/FieldCodec.h"

#include <sys/stat.h>

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
    std::optional<std::string> const bytes = ReadStart(fd, MAX_FILE_BYTES + 1);
    return bytes ? DecodeRelaunchArguments(*bytes).value_or(std::vector<std::string>()) : std::vector<std::string>();
}

} // namespace Pelnar::Engine
