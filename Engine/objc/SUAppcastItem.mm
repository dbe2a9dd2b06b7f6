#import "Engine/objc/SUAppcastItem_p.h"

#include "Foundation/FoundationText.h"
#include "Foundation/Retained.h"

#include <memory>
#include <mutex>
#include <vector>

using namespace Pelnar::Foundation;

namespace
{

NSString* TextOrNil(QString const& text) { return text.isEmpty() ? nil : ToNSString(text); }

NSString* TextOr(QString const& text, NSString* otherwise) { return text.isEmpty() ? otherwise : ToNSString(text); }

/// REQUIRES: \a value consists only of strings, maps and lists, like the properties of a feed item.
id ToFoundation(QVariant const& value)
{
    if (value.type() == QVariant::Map)
    {
        QVariantMap const map = value.toMap();
        NSMutableDictionary* const dictionary = [NSMutableDictionary dictionary];
        for (auto entry = map.begin(); entry != map.end(); ++entry)
        {
            [dictionary setObject:ToFoundation(entry.value()) forKey:ToNSString(entry.key())];
        }
        return dictionary;
    }
    if (value.type() == QVariant::List)
    {
        NSMutableArray* const array = [NSMutableArray array];
        for (QVariant const& element : value.toList())
        {
            [array addObject:ToFoundation(element)];
        }
        return array;
    }
    return ToNSString(value.toString());
}

} // namespace

namespace Pelnar::Engine
{

class AppcastItemContents
{
  public:
    explicit AppcastItemContents(FeedItem const& item)
        : title(Retained<NSString>::Share(TextOrNil(item.title))),
          dateString(Retained<NSString>::Share(TextOrNil(item.dateString))),
          itemDescription(Retained<NSString>::Share(TextOrNil(item.description))),
          itemDescriptionFormat(Retained<NSString>::Share(TextOr(item.descriptionFormat, @"html"))),
          minimumSystemVersion(Retained<NSString>::Share(TextOrNil(item.minimumSystemVersion))),
          maximumSystemVersion(Retained<NSString>::Share(TextOrNil(item.maximumSystemVersion))),
          releaseNotesUrl(Retained<NSURL>::Share(ToNSURL(item.releaseNotesUrl))),
          infoUrl(Retained<NSURL>::Share(ToNSURL(item.infoUrl))),
          fileUrl(Retained<NSURL>::Share(ToNSURL(item.fileUrl))), contentLength(item.contentLength),
          versionString(Retained<NSString>::Share(TextOrNil(item.versionString))),
          displayVersionString(Retained<NSString>::Share(TextOr(item.displayVersionString, versionString.Get()))),
          edSignature(Retained<NSString>::Share(TextOrNil(item.edSignature))), isDelta(item.isDelta),
          isCritical(item.isCritical),
          installationType(Retained<NSString>::Share(TextOr(item.installationType, @"application"))),
          ownProperties(item.properties), inheritedProperties(item.inheritedProperties)
    {
        NSMutableDictionary* const byVersion = [NSMutableDictionary dictionary];
        for (FeedItem const& delta : item.deltas)
        {
            deltas.push_back(Retained<SUAppcastItem>::Adopt([[SUAppcastItem alloc] initWithFeedItem:delta]));
            [byVersion setObject:deltas.back().Get() forKey:ToNSString(delta.deltaFrom)];
        }
        deltaUpdates = Retained<NSDictionary>::Share(deltas.empty() ? nil : byVersion);
    }

    Retained<NSString> title;
    Retained<NSString> dateString;
    Retained<NSString> itemDescription;
    Retained<NSString> itemDescriptionFormat;
    Retained<NSString> minimumSystemVersion;
    Retained<NSString> maximumSystemVersion;
    Retained<NSURL> releaseNotesUrl;
    Retained<NSURL> infoUrl;
    Retained<NSURL> fileUrl;
    uint64_t contentLength;
    Retained<NSString> versionString;
    Retained<NSString> displayVersionString;
    Retained<NSString> edSignature;
    bool isDelta;
    bool isCritical;
    Retained<NSString> installationType;
    /// Made at the first request, which is rare: a delta repeats all properties of its item, and a feed may have many
    /// of both.
    NSDictionary* Properties()
    {
        std::call_once(propertiesMade,
                       [this]
                       {
                           properties = Retained<NSDictionary>::Share(
                               ToFoundation(OverlaidProperties(inheritedProperties, ownProperties)));
                       });
        return properties.Get();
    }

    std::once_flag propertiesMade;
    QVariantMap ownProperties;
    QVariantMap inheritedProperties;
    Retained<NSDictionary> properties;
    std::vector<Retained<SUAppcastItem>> deltas;
    Retained<NSDictionary> deltaUpdates;
};

} // namespace Pelnar::Engine

@implementation SUAppcastItem

- (NSString*)title
{
    return m_contents->title.Get();
}

- (NSString*)dateString
{
    return m_contents->dateString.Get();
}

- (NSString*)itemDescription
{
    return m_contents->itemDescription.Get();
}

- (NSString*)itemDescriptionFormat
{
    return m_contents->itemDescriptionFormat.Get();
}

- (NSString*)minimumSystemVersion
{
    return m_contents->minimumSystemVersion.Get();
}

- (NSString*)maximumSystemVersion
{
    return m_contents->maximumSystemVersion.Get();
}

- (NSURL*)releaseNotesURL
{
    return m_contents->releaseNotesUrl.Get();
}

- (NSURL*)infoURL
{
    return m_contents->infoUrl.Get();
}

- (NSURL*)fileURL
{
    return m_contents->fileUrl.Get();
}

- (uint64_t)contentLength
{
    return m_contents->contentLength;
}

- (NSString*)versionString
{
    return m_contents->versionString.Get();
}

- (NSString*)displayVersionString
{
    return m_contents->displayVersionString.Get();
}

- (NSString*)edSignature
{
    return m_contents->edSignature.Get();
}

- (NSDictionary*)deltaUpdates
{
    return m_contents->deltaUpdates.Get();
}

- (BOOL)isDeltaUpdate
{
    return m_contents->isDelta;
}

- (BOOL)isCriticalUpdate
{
    return m_contents->isCritical;
}

- (NSString*)installationType
{
    return m_contents->installationType.Get();
}

- (NSDictionary*)propertiesDictionary
{
    return m_contents->Properties();
}

@end

@implementation SUAppcastItem (Engine)

- (id)initWithFeedItem:(Pelnar::Engine::FeedItem const&)item
{
    self = [super init];
    if (self)
    {
        m_contents = std::make_shared<Pelnar::Engine::AppcastItemContents>(item);
    }
    return self;
}

- (SUAppcastItem*)deltaAtPosition:(size_t)position
{
    return m_contents->deltas.at(position).Get();
}

- (int)positionOfDelta:(id)candidate
{
    for (size_t position = 0; position < m_contents->deltas.size(); ++position)
    {
        if (m_contents->deltas[position].Get() == candidate)
        {
            return static_cast<int>(position);
        }
    }
    return -1;
}

@end
