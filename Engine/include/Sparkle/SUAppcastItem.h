// SUAppcastItem.h: one item of a feed, or one of its deltas; immutable.
// Thread: any after creation, in practice main. Ownership: the appcast retains it. An item is a reference: the delegate
// returns the same object that it received.
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

/// Texts are as the feed writes them, and nil if the feed has none.
@property (nonatomic, readonly) NSString* title;
@property (nonatomic, readonly) NSString* dateString;
@property (nonatomic, readonly) NSString* itemDescription;
/// "html" (the default), "plain-text" or "markdown".
@property (nonatomic, readonly) NSString* itemDescriptionFormat;
@property (nonatomic, readonly) NSString* minimumSystemVersion;
@property (nonatomic, readonly) NSString* maximumSystemVersion;
/// Addresses with more information about the release (releaseNotesLink) and about the product (link); nil if absent.
@property (nonatomic, readonly) NSURL* releaseNotesURL;
@property (nonatomic, readonly) NSURL* infoURL;
/// The address of the download; absolute, resolved against the feed's address. nil if absent or not an address.
@property (nonatomic, readonly) NSURL* fileURL;
/// Bytes of the download; 0 if the feed has no usable number.
@property (nonatomic, readonly) uint64_t contentLength;
@property (nonatomic, readonly) NSString* versionString;
/// The version that people see; the version string if the feed has no other.
@property (nonatomic, readonly) NSString* displayVersionString;
/// The base64 text of the Ed25519 signature, unchecked; nil if absent.
@property (nonatomic, readonly) NSString* edSignature;
/// Maps the version text that a delta starts from to the delta's item; nil if there is no delta.
@property (nonatomic, readonly) NSDictionary* deltaUpdates;
@property (nonatomic, readonly, getter=isDeltaUpdate) BOOL deltaUpdate;
@property (nonatomic, readonly, getter=isCriticalUpdate) BOOL criticalUpdate;
/// "application" (the default), "package" or "interactive-package".
@property (nonatomic, readonly) NSString* installationType;
/// Every child element of the item by its qualified name, then the item's own attributes if the name is free. Text is
/// an NSString; an element with attributes or children is an NSDictionary or NSArray. Names of the feed namespace begin
/// with "sparkle:" for every prefix in the feed.
@property (nonatomic, readonly) NSDictionary* propertiesDictionary;

@end
