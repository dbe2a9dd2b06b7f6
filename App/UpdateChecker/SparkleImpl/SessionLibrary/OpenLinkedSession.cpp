#include "App/UpdateChecker/SparkleImpl/SessionLibrary/LinkedSession_p.h"
#include "App/UpdateChecker/SparkleImpl/SessionLibrary/OpenSession.h"

namespace Pelnar::App
{

void OpenSession(QObject&, std::function<void(ISession*)> const& use)
{
    use(&LinkedSession());
}

} // namespace Pelnar::App
