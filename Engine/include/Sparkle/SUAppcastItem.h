// SUAppcastItem.h: one item of a feed, or one of its deltas; immutable.
// Thread: any after creation, in practice main. Ownership: retained by the appcast and by anyone who keeps it. An item
// is a reference: the delegate answers with the very object that it was given.
#pragma once

#import <Foundation/Foundation.h>

#include <cstdint>
#include <memory>

#import <Sparkle/SUExport.h>

namespace Pelnar::Engine
{
class AppcastItemContents;
}

SU_EXPORT
@interface SUAppcastItem : NSObject
{
@private
    std::shared_ptr<Pelnar::Engine::AppcastItemContents> m_contents;
}

/// Texts are as the feed gives them, nil when it gives none.
@property (nonatomic, readonly) NSString* title;
@property (nonatomic, readonly) NSString* dateString;
@property (nonatomic, readonly) NSString* itemDescription;
/// "html" (also when the feed says nothing), "plain-text" or "markdown".
@property (nonatomic, readonly) NSString* itemDescriptionFormat;
@property (nonatomic, readonly) NSString* minimumSystemVersion;
@property (nonatomic, readonly) NSString* maximumSystemVersion;
/// Where more is told about the release (releaseNotesLink) and about the product (link); nil when absent.
@property (nonatomic, readonly) NSURL* releaseNotesURL;
@property (nonatomic, readonly) NSURL* infoURL;
/// The download; absolute, resolved against the feed's address. nil when absent or not an address.
@property (nonatomic, readonly) NSURL* fileURL;
/// Bytes of the download; 0 when the feed gives no usable number.
@property (nonatomic, readonly) uint64_t contentLength;
@property (nonatomic, readonly) NSString* versionString;
/// The version shown to a person; the version string when the feed gives no other.
@property (nonatomic, readonly) NSString* displayVersionString;
/// The base64 text of the Ed25519 signature, unchecked; nil when absent.
@property (nonatomic, readonly) NSString* edSignature;
/// From the version text that a delta starts from to the delta's item; nil when there is none.
@property (nonatomic, readonly) NSDictionary* deltaUpdates;
@property (nonatomic, readonly, getter=isDeltaUpdate) BOOL deltaUpdate;
@property (nonatomic, readonly, getter=isCriticalUpdate) BOOL criticalUpdate;
/// "application" (also when the feed says nothing), "package" or "interactive-package".
@property (nonatomic, readonly) NSString* installationType;
/// Every child element of the item by its qualified name, then the item's own attributes where the name is free. Text
/// is an NSString; an element with attributes or children is an NSDictionary or NSArray. Names of the feed namespace
/// begin with "sparkle:" no matter which prefix the feed uses.
@property (nonatomic, readonly) NSDictionary* propertiesDictionary;

@end
