#include "Engine/core/faults/FaultTable.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

constexpr std::array CAUSES = {
#define PELNAR_CAUSE(name, number, code, blame, sentence)                                                              \
    FaultEntry{number, #name, ErrorCode::code, Blame::blame, sentence},
#define PELNAR_CAUSE_OF_BOTH(name, number, code, blame, sentence, download)                                            \
    FaultEntry{number, #name, ErrorCode::code, Blame::blame, sentence, download},
#define PELNAR_CAUSE_IN_FEED(name, number, code, blame, sentence, line)                                                \
    FaultEntry{number, #name, ErrorCode::code, Blame::blame, sentence, nullptr, line},
#include "Engine/core/faults/ErrorCauses.def"
};

constexpr int FIRST_FAULT = static_cast<int>(ErrorCause::Fault);

constexpr std::array FAULTS = {
#define PELNAR_FAULT(name, number, code, blame, sentence, what, mend)                                                  \
    FaultEntry{FIRST_FAULT + (number), #name, ErrorCode::code, Blame::blame, sentence},
#include "Engine/core/faults/UpdateFaults.def"
};

constexpr bool IsAscending()
{
    for (size_t row = 1; row < CAUSES.size(); ++row)
    {
        if (CAUSES[row - 1].number >= CAUSES[row].number)
        {
            return false;
        }
    }
    return true;
}
static_assert(IsAscending(), "the causes stand in the order of their numbers");
static_assert(CAUSES.back().number == FIRST_FAULT, "the faults' numbers come after those of all causes");

} // namespace

FaultEntry const& EntryOf(ErrorCause cause)
{
    int const number = static_cast<int>(cause);
    auto const row = std::lower_bound(CAUSES.begin(), CAUSES.end(), number,
                                      [](FaultEntry const& entry, int wanted) { return entry.number < wanted; });
    return row != CAUSES.end() && row->number == number ? *row : CAUSES.back();
}

FaultEntry const& EntryOf(UpdateFault fault)
{
    auto const row = static_cast<size_t>(fault);
    return row < FAULTS.size() ? FAULTS[row] : FAULTS.front();
}

} // namespace Pelnar::Engine
