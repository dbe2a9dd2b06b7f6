#include "Publisher/Refusal.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace Pelnar::Publisher
{

Refusal::Refusal(Problem problem, RefusalCause cause) : Refusal(std::vector<Problem>{std::move(problem)}, cause) {}

Refusal::Refusal(std::vector<Problem> problems, RefusalCause cause)
    : std::runtime_error(TextOf(problems.front()).toStdString()), m_problems(std::move(problems)), m_cause(cause)
{
}

void AsContent(std::function<void()> const& work)
{
    try
    {
        work();
    }
    catch (Refusal const& refusal)
    {
        throw Refusal(refusal.Reasons(), RefusalCause::Content);
    }
}

bool RefusalList::Try(std::function<void()> const& work)
{
    try
    {
        work();
        return true;
    }
    catch (Refusal const& refusal)
    {
        for (Problem const& problem : refusal.Reasons())
        {
            Add(problem, refusal.Cause());
        }
    }
    return false;
}

void RefusalList::Add(Problem problem, RefusalCause cause)
{
    bool const isKnown = std::any_of(m_problems.begin(), m_problems.end(),
                                     [&problem](Problem const& other) { return TextOf(other) == TextOf(problem); });
    if (!isKnown)
    {
        m_problems.push_back(std::move(problem));
    }
    m_cause = cause == RefusalCause::Content ? cause : m_cause;
}

void RefusalList::ThrowIfAny() const
{
    if (!m_problems.empty())
    {
        throw Refusal(m_problems, m_cause);
    }
}

void RefuseFile(QString const& file, QString const& what, int errorNumber, QString const& mend)
{
    throw Refusal({file, what + u": "_s + QString::fromLocal8Bit(std::strerror(errorNumber)), mend});
}

void RefuseReading(QString const& file, int errorNumber)
{
    RefuseFile(file, u"cannot be read"_s, errorNumber, u"check the disk, and that nobody changes the file meanwhile"_s);
}

void RefuseChanged(QString const& file)
{
    throw Refusal({file, u"has changed while this run worked"_s, u"run this again when nobody changes the file"_s});
}

namespace
{

ExitStatus PrintReasons(Console const& console, Refusal const& refusal)
{
    for (Problem const& problem : refusal.Reasons())
    {
        console.Refuse(problem);
    }
    return ExitStatus::Unusable;
}

} // namespace

ExitStatus JudgeRelease(Console const& console, std::function<ExitStatus()> const& work)
{
    try
    {
        return work();
    }
    catch (Refusal const& refusal)
    {
        if (refusal.Cause() != RefusalCause::Content)
        {
            throw;
        }
        PrintReasons(console, refusal);
    }
    return ExitStatus::Findings;
}

void SetWork(CLI::App& verb, VerbContext& context, std::function<ExitStatus()> work)
{
    verb.callback(
        [&context, doWork = std::move(work)]
        {
            try
            {
                context.status = doWork();
            }
            catch (Refusal const& refusal)
            {
                context.status = PrintReasons(context.console, refusal);
            }
            catch (std::bad_alloc const&)
            {
                context.status = context.console.Refuse(
                    {{}, u"there is too little memory"_s, u"close other programs, or raise this process' limit"_s});
            }
            catch (std::exception const& error)
            {
                context.status = context.console.Refuse({QString::fromLocal8Bit(error.what()), {}});
            }
        });
}

} // namespace Pelnar::Publisher
