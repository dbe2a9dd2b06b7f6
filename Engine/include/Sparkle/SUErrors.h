// SUErrors.h: the domain and codes of every error that the engine reports. The error's localizedDescription says what
// happened and what to do, in the language of the engine's windows. Its description is the same text in English, for
// logs. NSUnderlyingErrorKey holds the cause, with its own domain, if there is one.
#pragma once

#import <Foundation/Foundation.h>

#import <Sparkle/SUExport.h>

SU_EXPORT extern NSString* const SUSparkleErrorDomain;

enum
{
    SUAppcastParseError = 1000,
    SUNoUpdateError = 1001,
    SUAppcastError = 1002,

    SUTemporaryDirectoryError = 2000,
    SUDownloadError = 2001,

    SUUnarchivingError = 3000,
    SUSignatureError = 3001,
    SUValidationError = 3002,

    SUFileCopyFailure = 4000,
    SURelaunchError = 4004,
    SUInstallationError = 4005,
    SUDowngradeError = 4006,
    SUInstallationCancelledError = 4007,
    SUNotWritableError = 4012,
};
