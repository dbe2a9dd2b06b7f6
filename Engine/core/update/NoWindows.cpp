#include "Engine/core/update/NoWindows.h"

#include <QTimer>

#include <glog/logging.h>

namespace Pelnar::Engine
{

void NoWindows::ShowUpdate(UpdateOffer const&, CheckOrigin, std::function<void(UpdateChoice)> onChosen)
{
    LOG(INFO) << "An update was found, but this program has no windows to offer it";
    QTimer::singleShot(0, &m_context, [onChosen] { onChosen(UpdateChoice::RemindMeLater); });
}

void NoWindows::ShowReadyToInstall(NamedVersion const&, CheckOrigin, std::function<void(ReadyChoice)> onChosen)
{
    QTimer::singleShot(0, &m_context, [onChosen] { onChosen(ReadyChoice::Later); });
}

} // namespace Pelnar::Engine
