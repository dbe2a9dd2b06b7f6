// SUVersionComparisonProtocol.h: orders the version texts of feed items.
// Thread: main. Ownership: the delegate owns the comparator that it hands out.
#pragma once

#import <Foundation/Foundation.h>

@protocol SUVersionComparison <NSObject>

/// NSOrderedAscending when \a versionA is older than \a versionB, NSOrderedDescending when it is newer.
- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB;

@end
