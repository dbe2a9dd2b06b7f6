// SUVersionComparisonProtocol.h: orders the version texts of feed items.
// Thread: main. Ownership: the delegate owns its comparator.
#pragma once

#import <Foundation/Foundation.h>

@protocol SUVersionComparison <NSObject>

/// Returns NSOrderedAscending if \a versionA is older than \a versionB, NSOrderedDescending if it is newer.
- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB;

@end
