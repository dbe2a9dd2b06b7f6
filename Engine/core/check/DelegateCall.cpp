#include "Engine/core/check/DelegateCall.h"

#include <glog/logging.h>

#include <exception>
#include <utility>

namespace Pelnar::Engine
{

Result<void> CallDelegate(char const* what, std::function<void()> const& call)
{
    QString reason;
    try
    {
        call();
        return {};
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
    return Failure(std::move(error));
}

} // namespace Pelnar::Engine
