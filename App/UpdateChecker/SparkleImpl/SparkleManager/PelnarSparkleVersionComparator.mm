#include "App/UpdateChecker/SparkleImpl/SparkleManager/PelnarSparkleVersionComparator.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionOrder_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "Foundation/FoundationText.h"

using Pelnar::App::Session::OrderOfVersions;
using Pelnar::Foundation::ToQString;

@implementation PelnarSparkleVersionComparator

- (instancetype)initWithImpl:(Pelnar::App::SparkleManager::Impl*)impl
{
    self = [super init];
    if (self)
    {
        m_impl = impl;
    }
    return self;
}

- (NSComparisonResult)compareVersion:(NSString*)versionA toVersion:(NSString*)versionB
{
    @autoreleasepool
    {
        if (!m_impl->EnsureContext() || !m_impl->EnsureVersionOperators())
        {
            return [[SUStandardVersionComparator defaultComparator] compareVersion:versionA toVersion:versionB];
        }
        // Held during the calls: an operator may replace the context.
        std::shared_ptr<Pelnar::App::SparkleUpdateContext> const lent = m_impl->context;
        return static_cast<NSComparisonResult>(
            OrderOfVersions(ToQString(versionA), ToQString(versionB), lent->versionLess, lent->versionEqual));
    }
}

@end
