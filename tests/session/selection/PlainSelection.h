// PlainSelection.h: the rules of the appcast selection written down one after the other: every property is read from
// the item, through UTF-8, each time that a rule asks. What the session's fast way is held against, in answers and in
// records, and what it is timed against. Objective-C++ only.
// Thread: the Qt main thread.
#pragma once

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

namespace Pelnar::Testing::Plain
{

App::Session::UpdateType DetectUpdateType(SUAppcastItem* item);
bool ValidateAppcastItem(App::SparkleManager::Impl const& session, SUAppcastItem* item);
SUAppcastItem* SelectBestValidAppcastItem(App::SparkleManager::Impl const& session, SUAppcastItem* a, SUAppcastItem* b);
SUAppcastItem* SelectBestOfAppcast(App::SparkleManager::Impl& session, SUAppcast* appcast);

} // namespace Pelnar::Testing::Plain
