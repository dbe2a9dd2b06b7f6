#include "Engine/core/update/UpdateEnvironment.h"
#include "Engine/core/download/PartialFile.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

class UpdateEnvironmentTest : public testing::Test
{
protected:
    UpdateEnvironmentTest() { place.Put(MakeBundle("1.0")); }

    void Open()
    {
        parts->OpenTarget(QString::fromStdString(place.Path() + '/' + APP), 1,
                          [this](OpenedTarget told) { opened = std::move(told); });
    }

    /// The answer to Open. It comes only when the event loop runs.
    OpenedTarget Answer()
    {
        EXPECT_FALSE(opened);
        EXPECT_TRUE(WaitFor([this] { return opened.has_value(); }));
        return std::move(*std::exchange(opened, std::nullopt));
    }

    void UseHelper(std::string const& program)
    {
        parts = std::make_unique<UpdateEnvironment>(QString::fromStdString(program));
    }

    TestApplication<> application;
    Workspace place;
    Workspace other;
    std::optional<OpenedTarget> opened;
    std::unique_ptr<UpdateEnvironment> parts =
        std::make_unique<UpdateEnvironment>(QStringLiteral(PELNAR_INSTALLER_PROGRAM));
};

TEST_F(UpdateEnvironmentTest, TargetIsToldFromTheEventLoop)
{
    Open();
    OpenedTarget const answer = Answer();
    auto const* const target = answer ? &answer.value() : nullptr;
    ASSERT_NE(target, nullptr);
    EXPECT_EQ(target->name, APP);
}

TEST_F(UpdateEnvironmentTest, ObstacleIsToldBeforeTheHelperIsLookedAt)
{
    UseHelper("/nonexistent");
    std::filesystem::remove_all(place.Path() + '/' + APP);
    Open();
    OpenedTarget const answer = Answer();
    auto const* const error = answer ? nullptr : &answer.error();
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->cause, ErrorCause::BundleMissing);
}

TEST_F(UpdateEnvironmentTest, HelperThatCannotBeUsedIsToldBeforeADownload)
{
    UseHelper("/nonexistent");
    Open();
    OpenedTarget const answer = Answer();
    auto const* const error = answer ? nullptr : &answer.error();
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->cause, ErrorCause::Fault);
    EXPECT_EQ(error->fault, UpdateFault::HelperUnusable);
}

TEST_F(UpdateEnvironmentTest, NobodyIsToldOnceThePartsAreGone)
{
    Open();
    parts.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(opened);
}

/// A process that is updated meanwhile still uses the helper from its start.
TEST_F(UpdateEnvironmentTest, HelperIsTheOneThatWasThereWhenTheTargetWasOpened)
{
    std::string const program = other.Path() + "/helper";
    std::filesystem::copy_file(PELNAR_INSTALLER_PROGRAM, program);
    UseHelper(program);
    Open();
    ASSERT_TRUE(Answer().has_value());
    std::filesystem::remove(program);
    auto const helper = parts->MakeHelper();
    std::optional<HelperEnd> end;
    helper->Start(
        RecoverJob{APP, "1.0"}, DescriptorMap(RecoverJob(), {place.Descriptor()}), [](HelperReport const&) {},
        [&end](HelperEnd told) { end = told; });
    ASSERT_TRUE(WaitFor([&end] { return end.has_value(); }));
    EXPECT_EQ(end, HelperEnd::Done);
}

TEST_F(UpdateEnvironmentTest, HelperThatCouldNotBeUsedIsTriedAgain)
{
    std::string const program = other.Path() + "/helper";
    SealedProgram sealed(program);
    EXPECT_THROW(static_cast<void>(sealed.Descriptor()), UpdateRefusal);
    std::filesystem::copy_file(PELNAR_INSTALLER_PROGRAM, program);
    int const descriptor = sealed.Descriptor();
    std::filesystem::remove(program);
    EXPECT_EQ(sealed.Descriptor(), descriptor);
}

TEST_F(UpdateEnvironmentTest, DiscardedUpdateIsGoneWithTheParts)
{
    Open();
    OpenedTarget const answer = Answer();
    auto update = PreparedUpdate::Begin(answer.value());
    ASSERT_EQ(::mkdirat(update->Descriptor(), APP, 0700), 0);
    ASSERT_EQ(place.Names().size(), 2u);
    parts->DiscardUpdate(std::move(update));
    parts.reset();
    EXPECT_EQ(place.Names(), std::vector<std::string>{APP});
}

TEST_F(UpdateEnvironmentTest, DiscardedDownloadLosesItsNameAtOnceAndItsSpaceWithTheParts)
{
    DownloadRequest request;
    request.url = QUrl(QStringLiteral("https://a.example/update.zip"));
    request.declaredBytes = 5;
    request.folder = QString::fromStdString(other.Path());
    PartialPlace const archive = PlaceOf(request.folder, request.url, request.declaredBytes, request.signature);
    std::ofstream(other.Path() + '/' + archive.name) << "bytes";
    parts->DiscardDownload(request);
    EXPECT_TRUE(other.Names().empty());
    parts.reset();
    for (auto const& entry : std::filesystem::directory_iterator("/proc/self/fd"))
    {
        std::error_code gone;
        EXPECT_EQ(std::filesystem::read_symlink(entry.path(), gone).string().find(archive.name), std::string::npos);
    }
    parts = std::make_unique<UpdateEnvironment>(QStringLiteral(PELNAR_INSTALLER_PROGRAM));
    parts->DiscardDownload(request); // it no longer exists
}

TEST_F(UpdateEnvironmentTest, ClearedDownloadsAreGoneWithTheParts)
{
    PartialPlace const archive =
        PlaceOf(QString::fromStdString(other.Path()), QUrl(QStringLiteral("https://a.example/update.zip")), 5, {});
    std::ofstream(other.Path() + '/' + archive.name) << "bytes";
    std::ofstream(other.Path() + '/' + archive.name + ".record") << "record";
    parts->ClearDownloads(QString::fromStdString(other.Path()));
    parts.reset();
    EXPECT_TRUE(other.Names().empty());
}

} // namespace
