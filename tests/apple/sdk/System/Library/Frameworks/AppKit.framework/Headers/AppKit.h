// The part of AppKit that the project uses: the application object and the notification of its end.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSApplication : NSObject
@property (class, readonly, strong) NSApplication* sharedApplication;
@end

FOUNDATION_EXPORT NSNotificationName const NSApplicationWillTerminateNotification;

NS_ASSUME_NONNULL_END
