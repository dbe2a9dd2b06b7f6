// SparkleManagerTestAccess.h: the session's implementation record for fixtures. Objective-C++ only.
// Thread: the Qt main thread. Ownership: the session's.
#pragma once

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

namespace Pelnar::App
{

class SparkleManagerTestAccess
{
public:
    /// The process's session. Only the first call creates it, and logs GetInstance.
    static SparkleManager::Impl& GetImpl()
    {
        static SparkleManager& session = SparkleManager::GetInstance();
        return *session.m_impl;
    }
};

} // namespace Pelnar::App
