// TracedHelper.h: a helper under strace, which injects faults and records calls.
// Ownership: a scope object; the trace is removed with it.
#pragma once

#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <utility>

namespace Pelnar::Testing
{

constexpr char STRACE[] = "/usr/bin/strace";
constexpr int DEFAULT_STRIDE = 7;
inline std::vector<std::string> const NO_EXCHANGE{"-e", "inject=renameat2:error=EINVAL"};

/// A place in the helper's life: the nth call of one name in any of its processes.
struct Place
{
    std::string call;
    int nth;
};

inline std::ostream& operator<<(std::ostream& out, Place const& place)
{
    return out << place.call << " number " << place.nth;
}

/// A helper under strace, which records its calls and counts the injected faults.
class Traced
{
public:
    explicit Traced(std::vector<std::string> const& options = {})
    {
        m_start.before = {STRACE, "-f", "-qq", "-o", Trace()};
        m_start.before.insert(m_start.before.end(), options.begin(), options.end());
    }

    HelperStart const& Start() const { return m_start; }
    std::string Trace() const { return m_folder.Path() + "/trace"; }
    int Kills() const { return LinesWith("+++ killed by SIGKILL +++"); }
    int Errors() const { return LinesWith("(INJECTED)"); }

    /// For each call's name, the highest count in one process.
    std::map<std::string, int> CallsOfOneProcess() const
    {
        std::map<std::pair<std::string, std::string>, int> counts;
        std::map<std::string, int> most;
        std::ifstream lines(Trace());
        for (std::string line; std::getline(lines, line);)
        {
            std::istringstream words(line);
            std::string process;
            std::string call;
            words >> process >> call;
            std::size_t const end = call.find('(');
            if (end != std::string::npos && call[0] >= 'a' && call[0] <= 'z')
            {
                std::string const name = call.substr(0, end);
                most[name] = std::max(most[name], ++counts[{name, process}]);
            }
        }
        most.erase("execve"); // the tracer's own program: the helper does not run yet
        return most;
    }

private:
    int LinesWith(std::string const& mark) const
    {
        int count = 0;
        std::ifstream lines(Trace());
        for (std::string line; std::getline(lines, line);)
        {
            count += line.find(mark) != std::string::npos ? 1 : 0;
        }
        return count;
    }

    Workspace m_folder;
    HelperStart m_start;
};

inline std::vector<std::string> Join(std::vector<std::string> options, std::string const& injection)
{
    options.push_back("-e");
    options.push_back("inject=" + injection);
    return options;
}

inline std::vector<std::string> KillAt(Place const& place, std::vector<std::string> const& options = {})
{
    return Join(options, place.call + ":signal=KILL:when=" + std::to_string(place.nth));
}

} // namespace Pelnar::Testing
