#include "App/UpdateChecker/SparkleImpl/SessionLibrary/OpenSession.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionExport_p.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionLibrary_p.h"

namespace Pelnar::App
{

void OpenSession(QObject& context, std::function<void(ISession*)> const& use)
{
    SessionLibrary::Instance().LoadThen(context, [use](SessionExport const* library)
                                        { use(library ? &library->session() : nullptr); });
}

} // namespace Pelnar::App
