// SUAppcast.h: the items of a loaded feed, in the order of the feed; immutable.
// Thread: any after creation, in practice main. Ownership: it retains its items.
#pragma once

#import <Foundation/Foundation.h>

#include <memory>

#import <Sparkle/SUAppcastItem.h>
#import <Sparkle/SUExport.h>

namespace Pelnar::Engine
{
class AppcastContents;
}

SU_EXPORT
@interface SUAppcast : NSObject
{
@private
    std::shared_ptr<Pelnar::Engine::AppcastContents> m_contents;
}

@property (nonatomic, readonly) NSArray* items;

@end
