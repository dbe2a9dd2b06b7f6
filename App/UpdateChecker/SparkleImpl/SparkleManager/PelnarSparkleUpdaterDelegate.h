// PelnarSparkleUpdaterDelegate.h: the session's ear to the update framework: forwards each callback. Objective-C++
// only. Thread: the Qt main thread. Ownership: the session owns it; it points back without owning.
#pragma once

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

@interface PelnarSparkleUpdaterDelegate : NSObject <SUUpdaterDelegate>
{
    Pelnar::App::SparkleManager::Impl* m_impl;
}

- (instancetype)initWithImpl:(Pelnar::App::SparkleManager::Impl*)impl;

@end
