#import "Engine/objc/ImmediateInstallation_p.h"

using Pelnar::Engine::RelaunchWish;

@implementation PelnarImmediateInstallation

+ (NSInvocation*)invocationCalling:(std::function<void(RelaunchWish)> const&)installNow
{
    PelnarImmediateInstallation* const target = [[[PelnarImmediateInstallation alloc] init] autorelease];
    target->m_installNow = installNow;
    SEL const method = @selector(installWithRelaunch:showingUserInterface:);
    NSInvocation* const invocation =
        [NSInvocation invocationWithMethodSignature:[target methodSignatureForSelector:method]];
    [invocation setTarget:target];
    [invocation setSelector:method];
    BOOL relaunches = YES;
    [invocation setArgument:&relaunches atIndex:2];
    BOOL isShowing = NO;
    [invocation setArgument:&isShowing atIndex:3];
    [invocation retainArguments];
    return invocation;
}

- (void)installWithRelaunch:(BOOL)relaunches showingUserInterface:(BOOL)isShowing
{
    (void)isShowing;
    m_installNow(relaunches ? RelaunchWish::Relaunch : RelaunchWish::StayClosed);
}

@end
