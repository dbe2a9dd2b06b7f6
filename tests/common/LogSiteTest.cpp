#include "common/LogSite.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::Core;
using Pelnar::Testing::LogCapture;
using Pelnar::Testing::LogRecord;

LogFile const FILE_A{"folder/of/LogSiteTestA"};
LogFile const FILE_B{"folder/of/LogSiteTestB"};
LogSite const PROGRESS{LogSeverity::Progress, FILE_A, 12, "void F()"};
LogSite const BARE{LogSeverity::Progress, FILE_B, 13, ""};
LogSite const WARNING_SITE{LogSeverity::Warning, FILE_A, 14, "void F()"};
LogSite const ERROR_SITE{LogSeverity::Error, FILE_A, 15, "void F()"};

TEST(LogSite, RecordCarriesTheSitesFileLineAndPrefix)
{
    LogCapture log;
    Write(PROGRESS, "text");
    Write(BARE, "alone");
    Write(WARNING_SITE, "odd");
    Write(ERROR_SITE);
    EXPECT_EQ(log.Records(), (std::vector<LogRecord>{
                                 {google::GLOG_INFO, "folder/of/LogSiteTestA", 12, "void F(): text"},
                                 {google::GLOG_INFO, "folder/of/LogSiteTestB", 13, "alone"},
                                 {google::GLOG_WARNING, "folder/of/LogSiteTestA", 14, "void F(): odd"},
                                 {google::GLOG_ERROR, "folder/of/LogSiteTestA", 15, "void F(): "},
                             }));
}

TEST(LogSite, ProgressIsSilentBelowLevelThirty)
{
    LogCapture log(LogCapture::Verbosity::Normal);
    FLAGS_v = 29;
    EXPECT_FALSE(IsEnabled(PROGRESS));
    EXPECT_TRUE(IsEnabled(ERROR_SITE));
    Write(PROGRESS, "text");
    EXPECT_TRUE(log.Records().empty());
    FLAGS_v = 30;
    EXPECT_TRUE(IsEnabled(PROGRESS));
}

TEST(LogSite, ModulePatternReachesOneFile)
{
    LogCapture log(LogCapture::Verbosity::Normal);
    EXPECT_FALSE(IsEnabled(PROGRESS));
    google::SetVLOGLevel("LogSiteTestA", 30);
    EXPECT_TRUE(IsEnabled(PROGRESS));
    EXPECT_FALSE(IsEnabled(BARE));
}

} // namespace
