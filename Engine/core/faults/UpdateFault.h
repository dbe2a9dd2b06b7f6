// UpdateFault.h: every reason for which an update is not prepared or not installed, and the exception that carries one.
// Thread: any; plain values. The names are part of the helper's report format: a name is never given a second meaning.
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

/// The fault's stable name: its enumerator's.
std::string_view FaultName(UpdateFault fault);
/// The fault of that name; nothing for any other text.
std::optional<UpdateFault> FaultFromName(std::string_view name);

/// Thrown where an update must stop; caught once, in the helper's main function.
class UpdateRefusal : public std::runtime_error
{
public:
    /// \a entry: the name in the archive that is refused; empty for what is no matter of one entry.
    explicit UpdateRefusal(UpdateFault fault, int errorNumber = 0, std::string entry = {});

    UpdateFault Fault() const { return m_fault; }
    int ErrorNumber() const { return m_errorNumber; } ///< errno of the call that failed; 0 when none did
    std::string const& Entry() const { return m_entry; }

private:
    UpdateFault m_fault;
    int m_errorNumber;
    std::string m_entry;
};

/// Throws the fault that \a errorNumber stands for: NoSpace, NotPermitted, or else \a otherwise.
[[noreturn]] void ThrowErrno(int errorNumber, UpdateFault otherwise = UpdateFault::DiskError);

} // namespace Pelnar::Engine
