#include "App/UpdateChecker/SparkleImpl/SparkleManager/GuardedCall_p.h"

#include "Foundation/RaisedException.h"

#include <boost/exception/diagnostic_information.hpp>

namespace Pelnar::App::Session
{

std::optional<std::string> DiagnosticOf(std::function<void()> const& call)
{
    try
    {
        // The diagnostic rethrows the exception. A raised NSException would end the process, so it is translated first.
        Foundation::CallTranslatingRaised(call);
    }
    catch (...)
    {
        return boost::current_exception_diagnostic_information(true);
    }
    return std::nullopt;
}

} // namespace Pelnar::App::Session
