// ScriptedSparkleObjects.h: the Objective-C objects of the scripted framework, for fixtures that call the session's
// Objective-C++ members. Objective-C++ only.
#pragma once

#if !defined(__OBJC__)
#error "ScriptedSparkleObjects.h is for Objective-C++ fixtures."
#endif

#include "tests/session/ScriptedSparkle.h"

#import <Sparkle/Sparkle.h>

namespace Pelnar::Testing
{

SUAppcastItem* ObjectOf(ScriptedItem const& item);
/// The item of \a object; null for nil. REQUIRES: \a object came from a ScriptedItem.
std::optional<ScriptedItem> ItemOf(SUAppcastItem* object);
/// The value of the getter with that name, after it was counted and its action was run.
ItemProperties& ReadProperties(SUAppcastItem* item, char const* getter);
ScriptedAppcast const& ItemsOf(SUAppcast* appcast);
/// Nil for a null text. Autoreleased.
NSString* TextOrNil(QString const& text);
/// Autoreleased.
SUAppcast* MakeAppcast(ScriptedAppcast const& items);

} // namespace Pelnar::Testing
