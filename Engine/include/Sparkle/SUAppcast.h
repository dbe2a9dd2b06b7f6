// SUAppcast.h: the items of a loaded feed, in the order of the feed; immutable.
// Thread: any after creation, in practice main. Ownership: retains its items.
#pragma once

#import <Foundation/Foundation.h>

#import <Sparkle/SUAppcastItem.h>
#import <Sparkle/SUExport.h>

SU_EXPORT
@interface SUAppcast : NSObject

@property (nonatomic, readonly) NSArray* items;

@end
