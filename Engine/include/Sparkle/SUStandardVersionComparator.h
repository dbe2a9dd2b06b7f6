// SUStandardVersionComparator.h: the engine's own order of version texts, used when the delegate gives no comparator.
// Thread: any. Ownership: the shared comparator lives as long as the process.
#pragma once

#import <Foundation/Foundation.h>

#import <Sparkle/SUExport.h>
#import <Sparkle/SUVersionComparisonProtocol.h>

SU_EXPORT
@interface SUStandardVersionComparator : NSObject <SUVersionComparison>

+ (SUStandardVersionComparator*)defaultComparator;

/// Runs of digits compare as numbers of any length, runs of letters as text; a run of letters after equal parts makes a
/// version older (a pre-release), a run of digits newer; points, blanks and hyphens separate.
- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB;

@end
