#include "Engine/core/check/DelegateCall.h"

#include <glog/logging.h>

#include <exception>

namespace Pelnar::Engine
{

std::optional<EngineError> CallDelegate(char const* what, std::function<void()> const& call)
{
    QString reason;
    try
    {
        call();
        return std::nullopt;
    }
    catch (std::exception const& exception)
    {
        reason = QString::fromUtf8(exception.what());
    }
    catch (...)
    {
        reason = QStringLiteral("an exception of an unknown type");
    }
    EngineError error = MakeError(ErrorCause::DelegateRaised, reason);
    LOG(ERROR) << "Exception from the updater's delegate in " << what << ": " << error.detail.toStdString();
    return error;
}

} // namespace Pelnar::Engine
