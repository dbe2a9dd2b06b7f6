// QuitAnnouncementTest.mm: on macOS the end of the event loop is announced exactly once. An installation on quit waits
// for it.

#include "Foundation/ManualReferences.h"
#include "HostFramework/Reference/ReferenceApplication.h"

#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <QTimer>

namespace Pelnar::App
{
namespace
{

int announcements = 0;

int AnnouncementsWhile(std::function<void(ReferenceApplication&)> const& leave)
{
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    ReferenceApplication application(argc, argv);
    @autoreleasepool
    {
        [[NSNotificationCenter defaultCenter] addObserverForName:NSApplicationWillTerminateNotification
                                                          object:nil
                                                           queue:nil
                                                      usingBlock:^(NSNotification*) {
                                                          ++announcements;
                                                      }];
    }
    QTimer::singleShot(0, &application, [&application, &leave] { leave(application); });
    QCoreApplication::exec();
    return announcements;
}

TEST(QuitAnnouncement, ComesOnceWhenTheApplicationIsAskedToQuit)
{
    EXPECT_EQ(AnnouncementsWhile([](ReferenceApplication& application) { EXPECT_TRUE(application.TryToQuit()); }), 1);
}

TEST(QuitAnnouncement, ComesOnceWhenTheEventLoopIsLeftInAnotherWay)
{
    EXPECT_EQ(AnnouncementsWhile([](ReferenceApplication&) { QCoreApplication::quit(); }), 1);
}

} // namespace
} // namespace Pelnar::App
