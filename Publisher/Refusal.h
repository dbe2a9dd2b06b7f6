// Refusal.h: how code deep inside a verb stops it, and where that is caught.
// Thread: the main thread. Ownership: values only.
#pragma once

#include "Publisher/Verb.h"

#include <functional>
#include <stdexcept>
#include <utility>
#include <variant>
#include <vector>

namespace Pelnar::Publisher
{

/// What is to blame for a refusal.
enum class RefusalCause
{
    Input,   ///< what was asked for, or a file that cannot be read or written
    Content, ///< what is to be published: clients would refuse it
};

/// Thrown where a verb cannot go on; carries what the person is told.
class Refusal : public std::runtime_error
{
public:
    explicit Refusal(Problem problem, RefusalCause cause = RefusalCause::Input);
    /// REQUIRES: at least one problem.
    Refusal(std::vector<Problem> problems, RefusalCause cause);

    Problem const& Reason() const { return m_problems.front(); }
    std::vector<Problem> const& Reasons() const { return m_problems; }
    RefusalCause Cause() const { return m_cause; }

private:
    std::vector<Problem> m_problems;
    RefusalCause m_cause;
};

/// The value, or its problem as a Refusal.
template <class T>
T Need(std::variant<T, Problem> value)
{
    if (auto const* const problem = std::get_if<Problem>(&value))
    {
        throw Refusal(*problem);
    }
    return std::get<T>(std::move(value));
}

/// Does \a work; a Refusal in it becomes one whose cause is Content.
void AsContent(std::function<void()> const& work);

/// Refusals that are told together, so that a person mends all of them before the next run.
class RefusalList
{
public:
    /// Does \a work and keeps the Refusal that it throws. Answers whether it threw none.
    bool Try(std::function<void()> const& work);
    void Add(Problem problem, RefusalCause cause = RefusalCause::Content);
    void Add(Refusal const& refusal);
    [[nodiscard]] bool IsEmpty() const { return m_problems.empty(); }
    /// Throws one Refusal for all of them. The cause is Content when that of one is.
    void ThrowIfAny() const;

private:
    std::vector<Problem> m_problems;
    RefusalCause m_cause = RefusalCause::Input;
};

/// Throws a Refusal about \a file for which a system call answered \a errorNumber.
[[noreturn]] void RefuseFile(QString const& file, QString const& what, int errorNumber, QString const& mend);

/// Leaves \a work with \a verb, to be done when the verb was named. A Refusal in it is printed, and the status is
/// ExitStatus::Unusable; so is every other failure (memory, disk), in the words that it brings.
void SetWork(CLI::App& verb, VerbContext& context, std::function<ExitStatus()> work);

/// Does \a work of a verb that judges a release: a Refusal whose cause is Content is its answer, ExitStatus::Findings.
ExitStatus JudgeRelease(Console const& console, std::function<ExitStatus()> const& work);

} // namespace Pelnar::Publisher
