#include "App/UpdateChecker/AbstractUpdaterImpl.h"

namespace Pelnar::App
{

AbstractUpdaterImpl::AbstractUpdaterImpl()
{
    // With the name in the signal's signature: Qt looks it up by this name for a result from another thread.
    qRegisterMetaType<UpdateCheckResult>("UpdateCheckResult");
}
AbstractUpdaterImpl::~AbstractUpdaterImpl() = default;

} // namespace Pelnar::App
