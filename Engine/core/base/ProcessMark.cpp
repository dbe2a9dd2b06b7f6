#include "Engine/core/base/ProcessMark.h"

#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

namespace Pelnar::Engine
{

std::uint64_t StartTimeOf(std::uint64_t process)
{
    constexpr int WORDS_TO_START_TIME = 19; // counted from the state
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    std::getline(file, text, '\0');              // a program's name may contain a line feed
    std::size_t const nameEnd = text.rfind(')'); // and any other character
    std::istringstream words(nameEnd == std::string::npos ? std::string() : text.substr(nameEnd + 1));
    std::string state;
    words >> state;
    std::string word;
    for (int i = 0; i < WORDS_TO_START_TIME - 1; ++i)
    {
        words >> word;
    }
    std::uint64_t time = 0;
    words >> time;
    return state == "Z" || state == "X" ? 0 : time;
}

ProcessMark MarkOfThisProcess()
{
    auto const number = static_cast<std::uint64_t>(::getpid());
    return {number, StartTimeOf(number)};
}

bool IsRunning(ProcessMark const& process)
{
    return process.startTime != 0 && StartTimeOf(process.number) == process.startTime;
}

} // namespace Pelnar::Engine
