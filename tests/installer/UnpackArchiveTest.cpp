#include "Engine/core/unpack/UnpackArchive.h"

#include "Engine/core/payload/TreeManifest.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr Container CONTAINERS[] = {Container::Zip, Container::TarGzip, Container::TarBzip2, Container::TarXz,
                                    Container::TarZstandard};
char const* const CONTAINER_NAMES[] = {"Zip", "TarGzip", "TarBzip2", "TarXz", "TarZstandard"};

/// A staging folder with a decoy beside it that no archive may touch.
class UnpackScene
{
public:
    UnpackScene()
    {
        m_place.Put({{"staging", 'd', {}, 0700}, {"decoy", 'd', {}, 0755}, {"decoy/x", 'f', "untouched"}});
        m_staging = UniqueFd(::open((m_place.Path() + "/staging").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        m_decoy = DecoyDigest();
    }
    ~UnpackScene()
    {
        EXPECT_EQ(DecoyDigest(), m_decoy);
        EXPECT_EQ(m_place.Names(), (std::vector<std::string>{"decoy", "staging", "update"}));
    }

    UnpackedBundle Unpack(std::string const& archive)
    {
        UniqueFd const file = WriteFile(m_place.Path() + "/update", archive);
        return UnpackArchive(file.Get(), m_staging.Get(),
                             [this](std::uint64_t done, std::uint64_t total)
                             {
                                 lastDone = done;
                                 lastTotal = total;
                             });
    }
    UpdateFault Refusal(std::string const& archive)
    {
        try
        {
            Unpack(archive);
            return UpdateFault::None;
        }
        catch (UpdateRefusal const& refusal)
        {
            return refusal.Fault();
        }
    }
    std::vector<std::string> Staged(std::string const& below = {}) const { return m_place.Names("staging/" + below); }
    std::string Path(std::string const& below) const { return m_place.Path() + "/staging/" + below; }
    UniqueFd Open(std::string const& below) const
    {
        return UniqueFd(::open(Path(below).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }

    std::uint64_t lastDone = 0;
    std::uint64_t lastTotal = 0;

private:
    ContentHash DecoyDigest() const
    {
        return DigestTree(UniqueFd(::open((m_place.Path() + "/decoy").c_str(), O_RDONLY | O_DIRECTORY)).Get());
    }

    Workspace m_place;
    UniqueFd m_staging;
    ContentHash m_decoy;
};

class HostileArchives : public testing::TestWithParam<std::tuple<int, int>>
{
};

/// Each evil in each container that has a way to say it.
std::vector<std::tuple<int, int>> EvilsInContainers()
{
    std::vector<std::tuple<int, int>> pairs;
    for (int evil = 0; evil < static_cast<int>(EvilArchives().size()); ++evil)
    {
        for (int container = EvilArchives()[static_cast<std::size_t>(evil)].isInZip ? 0 : 1;
             container < static_cast<int>(std::size(CONTAINERS)); ++container)
        {
            pairs.emplace_back(evil, container);
        }
    }
    return pairs;
}

TEST_P(HostileArchives, AreRefusedBeforeTheFirstWrite)
{
    Evil const& evil = EvilArchives()[static_cast<std::size_t>(std::get<0>(GetParam()))];
    Container const container = CONTAINERS[std::get<1>(GetParam())];
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries.insert(entries.end(), evil.entries.begin(), evil.entries.end());
    UnpackScene scene;
    EXPECT_EQ(scene.Refusal(MakeArchive(container, entries)), evil.fault);
    EXPECT_TRUE(scene.Staged().empty());
}

INSTANTIATE_TEST_SUITE_P(Table, HostileArchives, testing::ValuesIn(EvilsInContainers()),
                         [](testing::TestParamInfo<std::tuple<int, int>> const& info)
                         {
                             return std::string(
                                        EvilArchives()[static_cast<std::size_t>(std::get<0>(info.param))].name) +
                                    "In" + CONTAINER_NAMES[std::get<1>(info.param)];
                         });

class EveryContainer : public testing::TestWithParam<int>
{
};

TEST_P(EveryContainer, BundleComesOutWholeAndItsHashIsTheDisksOwn)
{
    UnpackScene scene;
    UnpackedBundle const bundle = scene.Unpack(MakeArchive(CONTAINERS[GetParam()], MakeBundle("2.0")));
    EXPECT_EQ(bundle.name, APP);
    EXPECT_EQ(scene.Staged(), std::vector<std::string>{APP});
    EXPECT_EQ(scene.Staged(APP), (std::vector<std::string>{"Resources", "run"}));
    EXPECT_EQ(std::filesystem::read_symlink(scene.Path(APP) + "/Resources/data"), "data-2.0");
    EXPECT_EQ(std::filesystem::file_size(scene.Path(APP) + "/Resources/data"), 3000u);
    EXPECT_EQ(DigestTree(scene.Open(APP).Get()), bundle.digest);
    EXPECT_EQ(scene.lastDone, scene.lastTotal);
    EXPECT_GT(scene.lastTotal, 3000u);
}

TEST_P(EveryContainer, FoldersMayBeOnlyImpliedOrComeLast)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    std::rotate(entries.begin(), entries.begin() + 1, entries.end());
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [](ForgedEntry const& entry)
                                 { return entry.path.find("Resources/") == entry.path.size() - 10; }),
                  entries.end());
    UnpackScene scene;
    UnpackedBundle const bundle = scene.Unpack(MakeArchive(CONTAINERS[GetParam()], entries));
    EXPECT_EQ(DigestTree(scene.Open(APP).Get()), bundle.digest);
    EXPECT_EQ(scene.Staged(std::string(APP) + "/Resources").size(), 3u);
}

TEST_P(EveryContainer, ModesAreMaskedOwnersAreOursTimesStay)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries.push_back({std::string(APP) + "/setuid", 'f', "x", 06777});
    entries.push_back({std::string(APP) + "/none", 'f', "x", 0});
    entries.push_back({std::string(APP) + "/open/", 'd', {}, 01777});
    UnpackScene scene;
    scene.Unpack(MakeArchive(CONTAINERS[GetParam()], entries));
    struct Row
    {
        char const* name;
        mode_t mode;
    };
    for (Row const& row : {Row{"/setuid", 0755}, Row{"/none", 0644}, Row{"/open", 0755}, Row{"/run", 0755}})
    {
        struct stat status;
        ASSERT_EQ(::stat((scene.Path(APP) + row.name).c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777u, row.mode) << row.name;
        EXPECT_EQ(status.st_uid, ::geteuid());
    }
    if (CONTAINERS[GetParam()] != Container::Zip)
    {
        struct stat status;
        ASSERT_EQ(::stat((scene.Path(APP) + "/run").c_str(), &status), 0);
        EXPECT_EQ(status.st_mtime, 1600000000);
    }
}

TEST_P(EveryContainer, ShorterArchiveIsRefusedUnlessOnlyThePaddingIsGone)
{
    std::string const whole = MakeArchive(CONTAINERS[GetParam()], MakeBundle("2.0"));
    ContentHash const digest = UnpackScene().Unpack(whole).digest;
    int refused = 0;
    for (std::size_t size = 0; size < whole.size(); size += 1 + whole.size() / 60)
    {
        UnpackScene scene;
        UpdateFault const fault = scene.Refusal(whole.substr(0, size));
        refused += fault != UpdateFault::None ? 1 : 0;
        if (fault == UpdateFault::None)
        {
            EXPECT_EQ(DigestTree(scene.Open(APP).Get()), digest) << size << " of " << whole.size();
        }
    }
    EXPECT_GT(refused, 40);
}

INSTANTIATE_TEST_SUITE_P(Table, EveryContainer, testing::Range(0, 5),
                         [](testing::TestParamInfo<int> const& info) { return CONTAINER_NAMES[info.param]; });

TEST(UnpackArchive, DeflatedZipComesOutWhole)
{
    UnpackScene scene;
    UnpackedBundle const bundle = scene.Unpack(MakeDeflatedZip(MakeBundle("2.0")));
    EXPECT_EQ(DigestTree(scene.Open(APP).Get()), bundle.digest);
    EXPECT_EQ(std::filesystem::file_size(scene.Path(APP) + "/Resources/data"), 3000u);
}

TEST(UnpackArchive, OtherContainersAreRefusedWhateverTheirNames)
{
    std::string const tar = MakeTar(MakeBundle("2.0"));
    struct Row
    {
        char const* name;
        std::string bytes;
        UpdateFault fault;
    };
    for (Row const& row : {
             Row{"empty", "", UpdateFault::ContainerUnknown},
             Row{"text", "hello, world, this is some text", UpdateFault::ContainerUnknown},
             Row{"bare tar", tar, UpdateFault::ContainerUnknown},
             Row{"rar", "Rar!\x1a\x07\x01 and so on", UpdateFault::ContainerUnknown},
             Row{"7z", "7z\xbc\xaf\x27\x1c and so on", UpdateFault::ContainerUnknown},
             Row{"cab", "MSCF and so on", UpdateFault::ContainerUnknown},
             Row{"mtree", "#mtree\n/set type=file\n./x\n", UpdateFault::ContainerUnknown},
             Row{"ELF",
                 "\x7f"
                 "ELF and so on",
                 UpdateFault::ContainerUnknown},
             Row{"zip without entries", MakeZip({}), UpdateFault::ContainerUnknown},
             Row{"zip behind a script", MakeZip(MakeBundle("2.0"), {"#!/bin/sh\n"}), UpdateFault::ContainerUnknown},
             Row{"gzip in gzip", Compress(Container::TarGzip, Compress(Container::TarGzip, tar)),
                 UpdateFault::ContainerDamaged},
             Row{"zip in gzip", Compress(Container::TarGzip, MakeZip(MakeBundle("2.0"))),
                 UpdateFault::ContainerDamaged},
             Row{"text in gzip", Compress(Container::TarGzip, std::string(2000, 'x')), UpdateFault::ContainerDamaged},
         })
    {
        UnpackScene scene;
        EXPECT_EQ(scene.Refusal(row.bytes), row.fault) << row.name;
        EXPECT_TRUE(scene.Staged().empty()) << row.name;
    }
}

TEST(UnpackArchive, ChecksumOfAZipEntryCounts)
{
    std::string zip = MakeZip(MakeBundle("2.0"));
    zip[zip.find("echo")] = 'E';
    UnpackScene scene;
    EXPECT_EQ(scene.Refusal(zip), UpdateFault::ContainerDamaged);
}

TEST(UnpackArchive, BombsAreRefusedBeforeTheFirstWrite)
{
    // 5 GiB said in one header: more than the limit for any small archive.
    std::string tar = MakeTar(MakeBundle("2.0"));
    tar.resize(tar.size() - 1024);
    std::string bomb = MakeTar({{std::string(APP) + "/bomb", 'f', "x"}});
    bomb.replace(124, 11, "50000000000");
    unsigned sum = 0;
    bomb.replace(148, 8, "        ");
    for (int i = 0; i < 512; ++i)
    {
        sum += static_cast<std::uint8_t>(bomb[static_cast<std::size_t>(i)]);
    }
    char text[8];
    std::snprintf(text, sizeof text, "%06o", sum);
    bomb.replace(148, 7, std::string(text, 7));
    UnpackScene scene;
    EXPECT_EQ(scene.Refusal(Compress(Container::TarZstandard, tar + bomb)), UpdateFault::TooManyBytes);
    EXPECT_TRUE(scene.Staged().empty());
}

TEST(UnpackArchive, NestedArchivesAreFilesLikeOthers)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries.push_back({std::string(APP) + "/inner.zip", 'f', MakeZip({{"../decoy/x", 'f', "evil"}})});
    UnpackScene scene;
    scene.Unpack(MakeArchive(Container::TarXz, entries));
    EXPECT_EQ(scene.Staged(APP), (std::vector<std::string>{"Resources", "inner.zip", "run"}));
}

TEST(UnpackArchive, ExtendedAttributesOfAnArchiveAreNotTaken)
{
    std::string const record = "37 SCHILY.xattr.user.pelnar=attribute\n";
    std::string pax = MakeTar({{"PaxHeader", 'f', std::to_string(record.size() - 1 + 1) + record.substr(2)}});
    pax[156] = 'x';
    unsigned sum = 0;
    pax.replace(148, 8, "        ");
    for (int i = 0; i < 512; ++i)
    {
        sum += static_cast<std::uint8_t>(pax[static_cast<std::size_t>(i)]);
    }
    char text[8];
    std::snprintf(text, sizeof text, "%06o", sum);
    pax.replace(148, 7, std::string(text, 7));
    pax.resize(1024);
    std::string tar = MakeTar(MakeBundle("2.0"));
    UnpackScene scene;
    scene.Unpack(Compress(Container::TarGzip, tar.substr(0, 512) + pax + tar.substr(512)));
    EXPECT_LT(::lgetxattr((scene.Path(APP) + "/run").c_str(), "user.pelnar", nullptr, 0), 0);
}

TEST(UnpackArchive, WhatStandsInTheStagingFolderIsNeverWrittenThrough)
{
    UnpackScene scene;
    ASSERT_EQ(::symlink("../decoy", scene.Path(APP).c_str()), 0);
    EXPECT_NE(scene.Refusal(MakeArchive(Container::Zip, MakeBundle("2.0"))), UpdateFault::None);
    EXPECT_EQ(::unlink(scene.Path(APP).c_str()), 0);
}

} // namespace
