// Refusal.h: stops a verb from any depth of its code, and catches the refusal in one place.
#pragma once

#include "Publisher/Verb.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Pelnar::Publisher
{

/// The cause of a refusal.
enum class RefusalCause
{
    Input,   ///< the command line, or a file that cannot be read or written
    Content, ///< the release: clients would refuse it
};

/// Thrown if a verb cannot continue; contains the message for the person.
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

/// Runs \a work. A Refusal that it throws gets the cause Content.
void AsContent(std::function<void()> const& work);

/// Refusals that are printed together, so that a person can correct all of them before the next run.
class RefusalList
{
public:
    /// Runs \a work and keeps the Refusal that it throws. Returns true if it throws none.
    bool Try(std::function<void()> const& work);
    /// A problem that is known already is not repeated.
    void Add(Problem problem, RefusalCause cause = RefusalCause::Content);
    [[nodiscard]] bool IsEmpty() const { return m_problems.empty(); }
    /// Throws one Refusal for all problems. Its cause is Content if one of them has that cause.
    void ThrowIfAny() const;

private:
    std::vector<Problem> m_problems;
    RefusalCause m_cause = RefusalCause::Input;
};

/// Throws a Refusal about \a file for a system call that failed with \a errorNumber.
[[noreturn]] void RefuseFile(QString const& file, QString const& what, int errorNumber, QString const& mend);
/// The same for a file that is open or listed, so that it is there and may be read.
[[noreturn]] void RefuseReading(QString const& file, int errorNumber);
/// Throws a Refusal about \a file, which another program has changed since this run began.
[[noreturn]] void RefuseChanged(QString const& file);

/// Makes \a verb run \a work. A Refusal or any other exception is printed, and the status is then ExitStatus::Unusable.
void SetWork(CLI::App& verb, VerbContext& context, std::function<ExitStatus()> work);

/// A new verb, and the options that its command line fills. They live as long as the verb.
template <class Options>
struct NewVerb
{
    CLI::App& app;
    Options& options;
};

/// Adds a verb that runs \a work with its options and the console. A Refusal is treated as in SetWork.
template <class Options, class Work>
NewVerb<Options> AddVerb(CLI::App& parent, VerbContext& context, char const* name, char const* description, Work work)
{
    auto const options = std::make_shared<Options>();
    CLI::App& verb = *parent.add_subcommand(name, description);
    SetWork(verb, context, [options, &context, work] { return work(std::as_const(*options), context.console); });
    return {verb, *options};
}

/// Runs \a work of a verb that judges a release. A Refusal with the cause Content gives ExitStatus::Findings.
ExitStatus JudgeRelease(Console const& console, std::function<ExitStatus()> const& work);

} // namespace Pelnar::Publisher
