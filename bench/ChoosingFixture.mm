#include "bench/ChoosingFixture.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "Foundation/FoundationText.h"
#include "Foundation/Retained.h"
#include "tests/session/selection/PlainSelection.h"

#include <QString>

using Pelnar::Foundation::Retained;
using Pelnar::Foundation::ToNSString;

/// Implements the messages that the selection sends to an item. It returns fields, as the framework's own items do.
@interface StoredItem : NSObject
{
  @public
    NSString* m_version;
    NSString* m_date;
    NSString* m_minimumSystem;
    NSURL* m_fileURL;
    uint64_t m_length;
    int m_index;
}
@end

@implementation StoredItem

- (void)dealloc
{
    [m_version release];
    [m_date release];
    [m_minimumSystem release];
    [m_fileURL release];
    [super dealloc];
}

- (NSString*)versionString
{
    return m_version;
}

- (NSString*)dateString
{
    return m_date;
}

- (NSString*)minimumSystemVersion
{
    return m_minimumSystem;
}

- (NSString*)maximumSystemVersion
{
    return nil;
}

- (NSURL*)fileURL
{
    return m_fileURL;
}

- (uint64_t)contentLength
{
    return m_length;
}

- (BOOL)isDeltaUpdate
{
    return NO;
}

- (NSDictionary*)deltaUpdates
{
    return nil;
}

@end

/// Implements the message that the selection sends to a loaded feed.
@interface StoredFeed : NSObject
{
  @public
    NSMutableArray* m_items;
}
@end

@implementation StoredFeed

- (void)dealloc
{
    [m_items release];
    [super dealloc];
}

- (NSArray*)items
{
    return m_items;
}

@end

namespace Pelnar::Bench
{
namespace
{

Retained<StoredItem> MakeItem(int index)
{
    QString const version = QStringLiteral("4.%1.%2").arg(index / 100).arg(index % 100 + 1);
    Retained<StoredItem> item = Retained<StoredItem>::Adopt([[StoredItem alloc] init]);
    StoredItem* const stored = item.Get();
    stored->m_version = [ToNSString(version) copy];
    stored->m_date =
        [ToNSString(QStringLiteral("Mon, 07 Jan 2019 10:00:%1 +0000").arg(index % 60, 2, 10, QLatin1Char('0'))) copy];
    stored->m_minimumSystem = [ToNSString(QStringLiteral("10.%1").arg(index % 16)) copy];
    stored->m_fileURL = [[NSURL
        URLWithString:ToNSString(QStringLiteral("https://downloads.example.com/app/App-%1.zip").arg(version))] copy];
    stored->m_length = 100000000u + static_cast<unsigned>(index);
    stored->m_index = index;
    return item;
}

std::shared_ptr<App::SparkleUpdateContext> MakeContext()
{
    auto context = std::make_shared<App::SparkleUpdateContext>();
    context->localVersion = Core::Version(4, 0);
    context->versionLess = [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) < Core::Util::ShrinkVersion(b, 4); };
    context->versionEqual = [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) == Core::Util::ShrinkVersion(b, 4); };
    return context;
}

int IndexOf(SUAppcastItem* item) { return item ? reinterpret_cast<StoredItem*>(item)->m_index : -1; }

} // namespace

struct ChoosingFixture::Data
{
    App::SparkleManager::Impl session;
    Retained<StoredFeed> feed;

    SUAppcast* Feed() const { return reinterpret_cast<SUAppcast*>(feed.Get()); }
};

ChoosingFixture::ChoosingFixture(int itemCount) : m_data(std::make_unique<Data>())
{
    m_data->session.context = MakeContext();
    m_data->feed = Retained<StoredFeed>::Adopt([[StoredFeed alloc] init]);
    @autoreleasepool
    {
        m_data->feed.Get()->m_items = [[NSMutableArray alloc] init];
        for (int i = 0; i < itemCount; ++i)
        {
            [m_data->feed.Get()->m_items addObject:MakeItem(i).Get()];
        }
    }
}

ChoosingFixture::~ChoosingFixture() = default;

int ChoosingFixture::Choose()
{
    @autoreleasepool
    {
        return IndexOf(m_data->session.SelectBestOfAppcast(m_data->Feed()));
    }
}

int ChoosingFixture::ChoosePlainly()
{
    @autoreleasepool
    {
        return IndexOf(Testing::Plain::SelectBestOfAppcast(m_data->session, m_data->Feed()));
    }
}

} // namespace Pelnar::Bench
