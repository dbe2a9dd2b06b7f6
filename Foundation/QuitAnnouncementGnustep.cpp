#include "Foundation/QuitAnnouncement.h"

namespace Pelnar::Foundation
{

void AnnounceQuitOf(QCoreApplication&) {}

} // namespace Pelnar::Foundation
