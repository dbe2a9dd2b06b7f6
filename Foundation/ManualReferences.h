// ManualReferences.h: stops the compiler where references are counted automatically.
// Objective-C++ only. The sources retain and release by hand, through Retained.h.
#pragma once

#if __has_feature(objc_arc)
#error "References to Foundation's objects are counted by hand here: compile this source with -fno-objc-arc."
#endif
