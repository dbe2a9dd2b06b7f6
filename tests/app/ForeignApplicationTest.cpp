// Programs whose application object is not of the host framework: a check reports this and changes nothing.
#include "App/UpdateChecker/UpdateManager.h"
#include "tests/app/ScriptedSparkleManager.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <memory>
#include <stdexcept>
#include <string>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;

class ForeignApplication : public ::testing::Test
{
protected:
    static std::string TextThrownByCheck()
    {
        try
        {
            UpdateManager::CheckForUpdates(nullptr, true, nullptr, {});
        }
        catch (std::logic_error const& error)
        {
            return error.what();
        }
        return "nothing was thrown";
    }
    /// More than one check: the first leaves no manager behind.
    void ExpectRefusals() const
    {
        for (int i = 0; i < 3; ++i)
        {
            EXPECT_EQ(TextThrownByCheck(),
                      "A check for updates needs a Pelnar::App::Application: make one in main() in place of "
                      "QApplication, before the first check.");
            EXPECT_EQ(UpdateManager::GetCurrentUpdateManager(), nullptr);
        }
        EXPECT_TRUE(session.calls.empty());
    }

    ScriptedSession session;
    int count = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
};

TEST_F(ForeignApplication, ThatIsAPlainQApplicationGetsASentence)
{
    QApplication const application(count, arguments);
    ExpectRefusals();
}

TEST_F(ForeignApplication, ThatHasNoWindowsGetsASentence)
{
    QCoreApplication const application(count, arguments);
    ExpectRefusals();
}

TEST_F(ForeignApplication, ThatIsNotThereGetsASentence)
{
    ExpectRefusals();
}

} // namespace
