#import <Sparkle/SUStandardVersionComparator.h>

#include "Engine/core/check/StandardVersionComparison.h"
#include "Foundation/FoundationText.h"

using Pelnar::Foundation::ToQString;

@implementation SUStandardVersionComparator

+ (SUStandardVersionComparator*)defaultComparator
{
    static SUStandardVersionComparator* const comparator = [[SUStandardVersionComparator alloc] init];
    return comparator;
}

- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB
{
    int const order = Pelnar::Engine::CompareVersionTexts(ToQString(versionA), ToQString(versionB));
    return order < 0 ? NSOrderedAscending : order > 0 ? NSOrderedDescending : NSOrderedSame;
}

@end
