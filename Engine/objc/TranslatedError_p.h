// TranslatedError_p.h: the error that the delegate gets: in the person's language for a dialog, in English for a log.
// Thread: main. Ownership: autoreleased. Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include "Engine/core/faults/EngineError.h"

@interface PelnarTranslatedError : NSError

/// An error of SUSparkleErrorDomain. Its localizedDescription is the sentence in the language of the windows, its
/// description the English one. NSUnderlyingErrorKey holds the cause, except for a check that found no update.
+ (NSError*)errorWithError:(Pelnar::Engine::EngineError const&)error;

@end
