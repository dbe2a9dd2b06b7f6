// DeltaOfFolders.cpp: makes or applies the delta between two folders and prints the time in seconds. Usage:
// delta_of_folders make OLD NEW DELTA; delta_of_folders apply DELTA OLD EMPTY-FOLDER

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaMaker.h"

#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include <fcntl.h>

namespace
{

using namespace Pelnar::Engine;

DeltaOutcome Make(std::vector<std::string> const& arguments)
{
    UniqueFd const container(::open(arguments[3].c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    return MakeDelta(arguments[1], "1", arguments[2], "2", container.Get()).outcome;
}

DeltaOutcome Apply(std::vector<std::string> const& arguments)
{
    UniqueFd const container(::open(arguments[1].c_str(), O_RDONLY | O_CLOEXEC));
    UniqueFd const old(::open(arguments[2].c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    UniqueFd const folder(::open(arguments[3].c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    ContentHash digest;
    return ApplyDelta(container.Get(), old.Get(), folder.Get(), {}, {}, digest);
}

} // namespace

int main(int count, char** values)
{
    std::vector<std::string> const arguments(values + 1, values + count);
    bool const isMake = arguments.size() == 4 && arguments[0] == "make";
    bool const isApply = arguments.size() == 4 && arguments[0] == "apply";
    if (!isMake && !isApply)
    {
        std::fputs("usage: delta_of_folders make OLD NEW DELTA | apply DELTA OLD EMPTY-FOLDER\n", stderr);
        return 2;
    }
    auto const begin = std::chrono::steady_clock::now();
    DeltaOutcome const outcome = isMake ? Make(arguments) : Apply(arguments);
    std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - begin;
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    if (!outcome.HasSucceeded())
    {
        std::fprintf(stderr, "error %d at %s\n", static_cast<int>(outcome.error), outcome.path.c_str());
        return 1;
    }
    std::printf("%.3f %ld\n", seconds.count(), usage.ru_maxrss);
    return 0;
}
