#include "Publisher/Refusal.h"

#include <cstring>
#include <utility>

namespace Pelnar::Publisher
{

Refusal::Refusal(Problem problem) : std::runtime_error(TextOf(problem).toStdString()), m_problem(std::move(problem)) {}

void RefuseFile(QString const& file, QString const& what, int errorNumber, QString const& mend)
{
    throw Refusal({file, 0, 0, what + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errorNumber)), mend});
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
                context.status = context.console.Refuse(refusal.Reason());
            }
            catch (std::exception const& error)
            {
                context.status = context.console.Refuse({QString(), 0, 0, QString::fromLocal8Bit(error.what()), {}});
            }
        });
}

} // namespace Pelnar::Publisher
