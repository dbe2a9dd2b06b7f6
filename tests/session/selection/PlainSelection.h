// PlainSelection.h: the plain implementation of the selection's rules: each rule reads its properties from the item,
// through UTF-8. Tests compare the session's fast implementation with it, in answers and in records, and a benchmark
// compares their times. Objective-C++ only.
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
