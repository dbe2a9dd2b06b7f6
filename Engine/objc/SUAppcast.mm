#import "Engine/objc/SUAppcast_p.h"

#import "Engine/objc/SUAppcastItem_p.h"

#include "Foundation/Retained.h"

using namespace Pelnar::Engine;
using Pelnar::Foundation::Retained;

namespace Pelnar::Engine
{

class AppcastContents
{
  public:
    Retained<NSMutableArray> items = Retained<NSMutableArray>::Adopt([[NSMutableArray alloc] init]);
};

} // namespace Pelnar::Engine

@implementation SUAppcast

- (NSArray*)items
{
    return m_contents->items.Get();
}

@end

@implementation SUAppcast (Engine)

- (id)initWithFeedItems:(std::vector<FeedItem> const&)items
{
    self = [super init];
    if (self)
    {
        m_contents = std::make_shared<AppcastContents>();
        for (FeedItem const& item : items)
        {
            // Bounds the autoreleased objects of thousands of items.
            @autoreleasepool
            {
                auto const object = Retained<SUAppcastItem>::Adopt([[SUAppcastItem alloc] initWithFeedItem:item]);
                [m_contents->items.Get() addObject:object.Get()];
            }
        }
    }
    return self;
}

- (SUAppcastItem*)itemAtPlace:(ItemIndex const&)place
{
    SUAppcastItem* const item = [m_contents->items.Get() objectAtIndex:static_cast<NSUInteger>(place.item)];
    return place.delta ? [item deltaAtPosition:static_cast<size_t>(*place.delta)] : item;
}

- (std::optional<ItemIndex>)placeOfItem:(id)candidate
{
    int position = 0;
    for (SUAppcastItem* const item in m_contents->items.Get())
    {
        if (item == candidate)
        {
            return ItemIndex{position, std::nullopt};
        }
        if (int const delta = [item positionOfDelta:candidate]; delta >= 0)
        {
            return ItemIndex{position, delta};
        }
        ++position;
    }
    return std::nullopt;
}

@end
