// RolloutSeedTest.cpp: the group of an installation in staged rollouts, and the file that determines it.

#include "Engine/core/check/RolloutSeed.h"

#include "Engine/core/base/PathText.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <array>
#include <filesystem>
#include <thread>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

class RolloutSeedTest : public ::testing::Test
{
protected:
    QString Folder() const { return m_folder.filePath(QStringLiteral("state/updates")); }
    QString File() const { return Folder() + QStringLiteral("/rollout-seed"); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RolloutSeedTest, IsDrawnOnceAndKeptForTheUserAlone)
{
    QByteArray const first = RolloutSeed(Folder());
    EXPECT_EQ(first.size(), 16);
    EXPECT_EQ(RolloutSeed(Folder()), first);
    EXPECT_EQ(QFile::permissions(File()) &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
    EXPECT_NE(RolloutSeed(m_folder.filePath(QStringLiteral("another"))), first);
}

TEST_F(RolloutSeedTest, InvalidFileIsReplacedByANewSeed)
{
    QByteArray const first = RolloutSeed(Folder());
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("short");
    file.close();
    QByteArray const second = RolloutSeed(Folder());
    EXPECT_EQ(second.size(), 16);
    EXPECT_NE(second, first);
}

TEST_F(RolloutSeedTest, ProcessesThatDrawAtOnceAgree)
{
    std::vector<QByteArray> seeds(8);
    std::vector<std::thread> drawers;
    for (QByteArray& seed : seeds)
    {
        drawers.emplace_back([&seed, this] { seed = RolloutSeed(Folder()); });
    }
    for (std::thread& drawer : drawers)
    {
        drawer.join();
    }
    for (QByteArray const& seed : seeds)
    {
        EXPECT_EQ(seed, RolloutSeed(Folder()));
    }
}

TEST_F(RolloutSeedTest, FolderMayHaveAnyBytes)
{
    std::string const folder = m_folder.path().toStdString() + "/caf\xe9";
    QByteArray const first = RolloutSeed(PathText(folder));
    EXPECT_FALSE(first.isEmpty());
    EXPECT_EQ(RolloutSeed(PathText(folder)), first);
    EXPECT_TRUE(std::filesystem::exists(folder + "/rollout-seed"));
    std::filesystem::remove_all(folder);
}

TEST_F(RolloutSeedTest, WhatCannotBeStoredIsTheLastGroup)
{
    QFile file(m_folder.filePath(QStringLiteral("state")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << "a file where the folder would be";
    EXPECT_TRUE(RolloutSeed(Folder()).isEmpty());
    EXPECT_TRUE(RolloutSeed(QString()).isEmpty());
    EXPECT_EQ(RolloutGroup({}, QStringLiteral("5.1")), 6);
}

TEST(RolloutGroup, IsTheSameInEveryVersionOfTheEngine)
{
    EXPECT_EQ(RolloutGroup("one installation", QStringLiteral("5.1")), 5);
    EXPECT_EQ(RolloutGroup("one installation", QStringLiteral("5.2")), 3);
    EXPECT_EQ(RolloutGroup("another one", QStringLiteral("5.1")), 6);
    EXPECT_EQ(RolloutGroup("another one", QStringLiteral("10.0")), 2);
}

TEST(RolloutGroup, IsTheSameInALineOfVersionsAndSpreadOverLinesAndInstallations)
{
    std::array<int, 7> byLine{};
    std::array<int, 7> byInstallation{};
    for (int i = 0; i < 7000; ++i)
    {
        QString const line = QStringLiteral("5.%1").arg(i);
        int const group = RolloutGroup("one installation", line);
        ASSERT_EQ(RolloutGroup("one installation", line + QStringLiteral(".3")), group);
        ++byLine.at(std::size_t(group));
        ++byInstallation.at(std::size_t(RolloutGroup(QByteArray::number(i), QStringLiteral("5.1"))));
    }
    for (std::size_t group = 0; group < 7; ++group)
    {
        // Six standard deviations.
        EXPECT_NEAR(byLine.at(group), 1000, 180);
        EXPECT_NEAR(byInstallation.at(group), 1000, 180);
    }
}

} // namespace Pelnar::Engine
