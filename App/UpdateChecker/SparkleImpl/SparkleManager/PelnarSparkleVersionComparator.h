// PelnarSparkleVersionComparator.h: orders the version texts of a feed with the operators of the lent context.
// Objective-C++ only.
// Thread: the Qt main thread. Ownership: the session owns it; it keeps a non-owning pointer back.
#pragma once

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

@interface PelnarSparkleVersionComparator : NSObject <SUVersionComparison>
{
    Pelnar::App::SparkleManager::Impl* m_impl;
}

- (instancetype)initWithImpl:(Pelnar::App::SparkleManager::Impl*)impl;

@end
