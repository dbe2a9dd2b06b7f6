#include "Foundation/QuitAnnouncement.h"

#include "Foundation/ManualReferences.h"

#import <AppKit/AppKit.h>

#include <QCoreApplication>

namespace Pelnar::Foundation
{
namespace
{

bool isAnnounced = false;

} // namespace

void AnnounceQuitOf(QCoreApplication& application)
{
    @autoreleasepool
    {
        // Detects a Qt that posts the notification itself: it must not be posted twice.
        [[NSNotificationCenter defaultCenter] addObserverForName:NSApplicationWillTerminateNotification
                                                          object:nil
                                                           queue:nil
                                                      usingBlock:^(NSNotification*) {
                                                        isAnnounced = true;
                                                      }];
    }
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application,
                     []
                     {
                         if (isAnnounced)
                         {
                             return;
                         }
                         @autoreleasepool
                         {
                             [[NSNotificationCenter defaultCenter]
                                 postNotificationName:NSApplicationWillTerminateNotification
                                               object:[NSApplication sharedApplication]];
                         }
                     });
}

} // namespace Pelnar::Foundation
