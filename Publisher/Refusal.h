// Refusal.h: how code deep inside a verb stops it, and where that is caught.
// Thread: the main thread. Ownership: values only.
#pragma once

#include "Publisher/Verb.h"

#include <functional>
#include <stdexcept>

namespace Pelnar::Publisher
{

/// Thrown where a verb cannot go on; carries what the person is told.
class Refusal : public std::runtime_error
{
public:
    explicit Refusal(Problem problem);

    Problem const& Reason() const { return m_problem; }

private:
    Problem m_problem;
};

/// Throws a Refusal about \a file for which a system call answered \a errorNumber.
[[noreturn]] void RefuseFile(QString const& file, QString const& what, int errorNumber, QString const& mend);

/// Leaves \a work with \a verb, to be done when the verb was named. A Refusal in it is printed, and the status is
/// ExitStatus::Unusable; so is every other failure (memory, disk), in the words that it brings.
void SetWork(CLI::App& verb, VerbContext& context, std::function<ExitStatus()> work);

} // namespace Pelnar::Publisher
