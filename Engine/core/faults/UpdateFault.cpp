#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

struct NamedFault
{
    UpdateFault fault;
    std::string_view name;
};

constexpr std::array NAMES = {
#define PELNAR_FAULT(name, number, code, blame, sentence, what, mend) NamedFault{UpdateFault::name, #name},
#include "Engine/core/faults/UpdateFaults.def"
};

constexpr bool HasEachItsPlace()
{
    for (size_t row = 0; row < NAMES.size(); ++row)
    {
        if (static_cast<size_t>(NAMES[row].fault) != row)
        {
            return false;
        }
    }
    return true;
}
static_assert(HasEachItsPlace(), "the faults stand in the order of their numbers, without a gap");

std::string Describe(UpdateFault fault, int errorNumber)
{
    std::string text(FaultName(fault));
    if (errorNumber != 0)
    {
        text += " (errno " + std::to_string(errorNumber) + ")";
    }
    return text;
}

} // namespace

std::string_view FaultName(UpdateFault fault)
{
    auto const row = static_cast<size_t>(fault);
    return row < NAMES.size() ? NAMES[row].name : "Unknown fault";
}

std::optional<UpdateFault> FaultFromName(std::string_view name)
{
    auto const row =
        std::find_if(NAMES.begin(), NAMES.end(), [name](NamedFault const& named) { return named.name == name; });
    return row == NAMES.end() ? std::nullopt : std::optional(row->fault);
}

UpdateRefusal::UpdateRefusal(UpdateFault fault, int errorNumber, std::string entry)
    : std::runtime_error(Describe(fault, errorNumber))
    , m_fault(fault)
    , m_errorNumber(errorNumber)
    , m_entry(std::move(entry))
{
}

UpdateFault FaultUnlessLimit(int errorNumber, UpdateFault otherwise)
{
    switch (errorNumber)
    {
    case EAGAIN:
    case EFBIG:
    case EMFILE:
    case ENFILE:
    case ENOMEM:
        return UpdateFault::SystemLimitReached;
    }
    return otherwise;
}

void ThrowErrno(int errorNumber, UpdateFault otherwise)
{
    switch (errorNumber)
    {
    case ENOSPC:
    case EDQUOT:
        throw UpdateRefusal(UpdateFault::NoSpace, errorNumber);
    case EACCES:
    case EPERM:
    case EROFS:
        throw UpdateRefusal(UpdateFault::NotPermitted, errorNumber);
    }
    throw UpdateRefusal(FaultUnlessLimit(errorNumber, otherwise), errorNumber);
}

} // namespace Pelnar::Engine
