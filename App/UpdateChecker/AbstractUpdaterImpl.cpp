#include "App/UpdateChecker/AbstractUpdaterImpl.h"

namespace Pelnar::App
{

AbstractUpdaterImpl::AbstractUpdaterImpl()
{
    // By the name in the signal's signature: that is how Qt looks for it when a result comes from another thread.
    qRegisterMetaType<UpdateCheckResult>("UpdateCheckResult");
}
AbstractUpdaterImpl::~AbstractUpdaterImpl() = default;

} // namespace Pelnar::App
