// NoFurtherThread.h: a system that has no further thread, for as long as the object exists. It counts for the whole
// process: no other thread may start one meanwhile.
#pragma once

#include <gtest/gtest.h>

#include <pthread.h>

#include <cstddef>

namespace Pelnar::Testing
{

class NoFurtherThread
{
public:
    NoFurtherThread()
    {
        // Stacks of new threads are larger than all memory.
        pthread_attr_t huge;
        EXPECT_EQ(::pthread_getattr_default_np(&m_usual), 0);
        EXPECT_EQ(::pthread_getattr_default_np(&huge), 0);
        EXPECT_EQ(::pthread_attr_setstacksize(&huge, std::size_t(1) << 50), 0);
        EXPECT_EQ(::pthread_setattr_default_np(&huge), 0);
    }
    ~NoFurtherThread() { EXPECT_EQ(::pthread_setattr_default_np(&m_usual), 0); }
    NoFurtherThread(NoFurtherThread const&) = delete;
    NoFurtherThread& operator=(NoFurtherThread const&) = delete;

private:
    pthread_attr_t m_usual;
};

} // namespace Pelnar::Testing
