#import "Engine/objc/TranslatedError_p.h"

#include "Foundation/FoundationText.h"

#import <Sparkle/SUErrors.h>

using namespace Pelnar::Engine;
using Pelnar::Foundation::ToNSString;

namespace
{

/// A key of the user information; its value is shown in logs.
NSString* const ENGLISH_DESCRIPTION_KEY = @"PelnarEnglishDescription";

NSError* UnderlyingErrorOf(EngineError const& error)
{
    NSDictionary* const detail =
        error.detail.isEmpty()
            ? nil
            : [NSDictionary dictionaryWithObject:ToNSString(error.detail) forKey:NSLocalizedDescriptionKey];
    return [NSError errorWithDomain:ToNSString(error.UnderlyingDomain()) code:error.UnderlyingCode() userInfo:detail];
}

} // namespace

@implementation PelnarTranslatedError

+ (NSError*)errorWithError:(EngineError const&)error
{
    NSMutableDictionary* const information = [NSMutableDictionary dictionary];
    [information setObject:ToNSString(error.sentence.Translated()) forKey:NSLocalizedDescriptionKey];
    [information setObject:ToNSString(error.sentence.English()) forKey:ENGLISH_DESCRIPTION_KEY];
    if (error.cause != ErrorCause::NoUpdate)
    {
        [information setObject:UnderlyingErrorOf(error) forKey:NSUnderlyingErrorKey];
    }
    return [[[self alloc] initWithDomain:SUSparkleErrorDomain
                                    code:static_cast<NSInteger>(error.code)
                                userInfo:information] autorelease];
}

- (NSString*)description
{
    return [[self userInfo] objectForKey:ENGLISH_DESCRIPTION_KEY];
}

@end
