// ManualReferences.h: makes the compiler fail under automatic reference counting. Objective-C++ only. The sources
// retain and release manually, through Retained.h.
#pragma once

#if __has_feature(objc_arc)
#error "References to Foundation's objects are counted by hand here: compile this source with -fno-objc-arc."
#endif
