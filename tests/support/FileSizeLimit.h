// FileSizeLimit.h: a system in which no file may grow beyond a size, for as long as the object exists. It counts for
// the whole process. A write beyond it fails with EFBIG.
#pragma once

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace Pelnar::Testing
{

class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        EXPECT_NE(std::signal(SIGXFSZ, SIG_IGN), SIG_ERR);
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_usual), 0);
        rlimit const small{bytes, m_usual.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~FileSizeLimit() { EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &m_usual), 0); }
    FileSizeLimit(FileSizeLimit const&) = delete;
    FileSizeLimit& operator=(FileSizeLimit const&) = delete;

private:
    rlimit m_usual = {};
};

} // namespace Pelnar::Testing
