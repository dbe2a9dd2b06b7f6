// SUStandardVersionComparator.h: the engine's own order of version texts, used if the delegate has no comparator.
// Ownership: the shared comparator lives as long as the process.
#pragma once

#import <Foundation/Foundation.h>

#import <Sparkle/SUExport.h>
#import <Sparkle/SUVersionComparisonProtocol.h>

SU_EXPORT
@interface SUStandardVersionComparator : NSObject <SUVersionComparison>

+ (SUStandardVersionComparator*)defaultComparator;

/// Runs of digits compare as numbers of any length, runs of letters as text. After equal parts, a run of letters makes
/// a version older (a pre-release) and a run of digits makes it newer. Points, blanks and hyphens are separators.
- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB;

@end
