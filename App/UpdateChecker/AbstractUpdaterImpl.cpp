#include "App/UpdateChecker/AbstractUpdaterImpl.h"

namespace Pelnar::App
{

AbstractUpdaterImpl::AbstractUpdaterImpl() = default;
AbstractUpdaterImpl::~AbstractUpdaterImpl() = default;

} // namespace Pelnar::App
