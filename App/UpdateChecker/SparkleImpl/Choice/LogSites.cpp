#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"

namespace Pelnar::App::Session::Sites
{
namespace
{

Core::LogFile const SESSION_FILE{"App/UpdateChecker/SparkleImpl/SparkleManager"};

} // namespace

#define PELNAR_DEFINE_SITE(name, severity, line, prefix)                                                               \
    Core::LogSite const name{Core::LogSeverity::severity, SESSION_FILE, line, prefix};
PELNAR_SESSION_LOG_SITES(PELNAR_DEFINE_SITE)
#undef PELNAR_DEFINE_SITE

} // namespace Pelnar::App::Session::Sites
