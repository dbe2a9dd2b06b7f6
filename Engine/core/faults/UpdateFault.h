// UpdateFault.h: every reason why an update is not prepared or not installed, and the exception that carries one. The
// names are part of the helper's report format: the meaning of a name never changes.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// A new fault is a row of UpdateFaults.def.
enum class UpdateFault
{
#define PELNAR_FAULT(name, number, code, blame, sentence, what, mend) name = number,
#include "Engine/core/faults/UpdateFaults.def"
};

/// The fault's stable name, which is its enumerator's.
std::string_view FaultName(UpdateFault fault);
/// The fault with that name; empty for any other text.
std::optional<UpdateFault> FaultFromName(std::string_view name);

/// Thrown to stop an update; caught once, in the helper's main function.
class UpdateRefusal : public std::runtime_error
{
public:
    /// \a entry: the name of the refused entry in the archive; empty if the refusal is not about one entry.
    explicit UpdateRefusal(UpdateFault fault, int errorNumber = 0, std::string entry = {});

    UpdateFault Fault() const { return m_fault; }
    int ErrorNumber() const { return m_errorNumber; } ///< errno of the failed call; 0 if no call failed
    std::string const& Entry() const { return m_entry; }

private:
    UpdateFault m_fault;
    int m_errorNumber;
    std::string m_entry;
};

/// SystemLimitReached if \a errorNumber says that the system allows no more, otherwise \a otherwise.
UpdateFault FaultUnlessLimit(int errorNumber, UpdateFault otherwise);
/// Throws the fault for \a errorNumber: NoSpace, NotPermitted or SystemLimitReached, otherwise \a otherwise.
[[noreturn]] void ThrowErrno(int errorNumber, UpdateFault otherwise = UpdateFault::DiskError);

} // namespace Pelnar::Engine
