// PelnarSparkleUpdaterDelegate.h: receives every callback of the update framework and forwards it to the session.
// Objective-C++ only.
// Thread: the Qt main thread. Ownership: the session owns it; it keeps a non-owning pointer back.
#pragma once

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

@interface PelnarSparkleUpdaterDelegate : NSObject <SUUpdaterDelegate>
{
    Pelnar::App::SparkleManager::Impl* m_impl;
}

- (instancetype)initWithImpl:(Pelnar::App::SparkleManager::Impl*)impl;

@end
