#include "Engine/core/archive/UnpackArchive.h"

#include "Engine/core/archive/TreeManifest.h"
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

/// A staging folder, and a decoy next to it that no archive may change.
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

/// Each evil entry in each container that can contain it.
std::vector<std::tuple<int, int>> EvilsInContainers()
{
    std::vector<std::tuple<int, int>> pairs;
    for (int evil = 0; evil < static_cast<int>(EvilArchives().size()); ++evil)
    {
        Evil const& row = EvilArchives()[static_cast<std::size_t>(evil)];
        for (int container = row.isInZip ? 0 : 1;
             container < (row.isInTar ? static_cast<int>(std::size(CONTAINERS)) : 1); ++container)
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
    struct Row
    {
        mode_t said;
        mode_t made;
    };
    std::vector<Row> const files{{04755, 0755}, {02755, 0755}, {01755, 0755}, {06777, 0755},
                                 {0777, 0755},  {0700, 0755},  {04644, 0644}, {02666, 0644},
                                 {01644, 0644}, {0666, 0644},  {0611, 0644},  {0000, 0644}};
    std::vector<mode_t> const folders{0000, 01777, 02777, 04755, 0700, 0777};
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    auto const fileAt = [](std::size_t i) { return std::string(APP) + "/f" + std::to_string(i); };
    auto const folderAt = [](std::size_t i) { return std::string(APP) + "/d" + std::to_string(i); };
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        entries.push_back({fileAt(i), 'f', "x", files[i].said});
    }
    for (std::size_t i = 0; i < folders.size(); ++i)
    {
        entries.push_back({folderAt(i) + '/', 'd', {}, folders[i]});
    }
    UnpackScene scene;
    mode_t const mask = ::umask(0);
    scene.Unpack(MakeArchive(CONTAINERS[GetParam()], entries));
    ::umask(mask);
    auto const expectOurs = [&scene](std::string const& name, mode_t mode)
    {
        struct stat status;
        ASSERT_EQ(::lstat(scene.Path(name).c_str(), &status), 0) << name;
        EXPECT_EQ(status.st_mode & 07777u, mode) << name;
        EXPECT_EQ(status.st_uid, ::geteuid()) << name; // the tar's entries belong to user and group 1234
        EXPECT_EQ(status.st_gid, ::getegid()) << name;
    };
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        expectOurs(fileAt(i), files[i].made);
    }
    for (std::size_t i = 0; i < folders.size(); ++i)
    {
        expectOurs(folderAt(i), 0755);
    }
    expectOurs(APP, 0755);
    expectOurs(std::string(APP) + "/Resources/data", 0777); // for a link itself
    if (CONTAINERS[GetParam()] != Container::Zip)
    {
        struct stat status;
        ASSERT_EQ(::stat((scene.Path(APP) + "/run").c_str(), &status), 0);
        EXPECT_EQ(status.st_mtime, 1600000000);
    }
}

TEST_P(EveryContainer, LinksWithinTheBundleAreMade)
{
    std::string const app = APP;
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries.push_back({app + "/Resources/up", 'l', "../run"});
    entries.push_back({app + "/folder", 'l', "Resources/"});
    entries.push_back({app + "/through", 'l', "folder/data"});
    entries.push_back({app + "/Resources/bundle", 'l', ".."});
    UnpackScene scene;
    scene.Unpack(MakeArchive(CONTAINERS[GetParam()], entries));
    std::string const path = scene.Path(APP);
    for (auto const& [link, target] : {std::pair{"/Resources/up", "../run"}, std::pair{"/folder", "Resources/"},
                                       std::pair{"/through", "folder/data"}, std::pair{"/Resources/bundle", ".."}})
    {
        EXPECT_EQ(std::filesystem::read_symlink(path + link), target);
    }
    EXPECT_EQ(std::filesystem::canonical(path + "/Resources/up"), std::filesystem::canonical(path + "/run"));
    EXPECT_EQ(std::filesystem::file_size(path + "/through"), 3000u);
}

TEST_P(EveryContainer, NamesAreTheArchivesOwnBytes)
{
    std::string const app = APP;
    std::vector<std::string> const names{"\xc3\xa9-one", "e\xcc\x81-two", "\xe3\x81\x8b\xe3\x82\x99", "\xef\xac\xaa",
                                         "\xf0\x9f\x98\x80"};
    for (bool const isCalledUtf8 : {false, true})
    {
        std::vector<ForgedEntry> entries = MakeBundle("2.0");
        for (std::string const& name : names)
        {
            entries.push_back({app + '/' + name, 'f', name});
            entries.push_back({app + "/to " + name, 'l', name, 0777});
        }
        entries.push_back({app + "/\xd0\xb9/", 'd', {}, 0755});
        for (ForgedEntry& entry : entries)
        {
            entry.flags = isCalledUtf8 ? 0x800 : 0;
            entry.isPax = isCalledUtf8;
        }
        UnpackScene scene;
        UnpackedBundle const bundle = scene.Unpack(MakeArchive(CONTAINERS[GetParam()], entries));
        EXPECT_EQ(DigestTree(scene.Open(APP).Get()), bundle.digest);
        for (std::string const& name : names)
        {
            EXPECT_EQ(std::filesystem::file_size(scene.Path(app + '/' + name)), name.size()) << name;
            EXPECT_EQ(std::filesystem::read_symlink(scene.Path(app + "/to " + name)), name);
        }
        EXPECT_TRUE(std::filesystem::is_directory(scene.Path(app + "/\xd0\xb9")));
        EXPECT_EQ(scene.Staged(APP).size(), 2 + 2 * names.size() + 1);
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

TEST(UnpackArchive, ZipThatTellsANameTwiceAlikeComesOut)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    std::string const name = std::string(APP) + "/\xe3\x81\x8c";
    entries.push_back({name, 'f', "x"});
    entries.back().unicodeName = name;
    UnpackScene scene;
    scene.Unpack(MakeZip(entries));
    EXPECT_TRUE(std::filesystem::exists(scene.Path(name)));
}

TEST(UnpackArchive, OtherContainersAreRefusedUnderAnyName)
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
             Row{"delta", MakeWholeDelta(MakeBundle("2.0")), UpdateFault::ContainerUnknown},
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
    // A header that claims 5 GiB: more than the limit for a small archive.
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

TEST(UnpackArchive, AttributesListsOfRightsAndFlagsOfAnArchiveAreNotTaken)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    for (ForgedEntry& entry : entries)
    {
        entry.paxRecords = {{"SCHILY.xattr.user.pelnar", "attribute"},
                            {"LIBARCHIVE.xattr.user.pelnar2", "YXR0cmlidXRl"},
                            {"SCHILY.xattr.security.capability", "capability"},
                            {"SCHILY.acl.access", "user::rwx,user:nobody:rwx:65534,group::rwx,mask::rwx,other::rwx"},
                            {"SCHILY.fflags", "nodump"},
                            {"uname", "nobody"},
                            {"uid", "65534"}};
    }
    UnpackScene scene;
    scene.Unpack(MakeArchive(Container::TarGzip, entries));
    for (char const* const name : {"", "/run", "/Resources", "/Resources/data"})
    {
        std::string const path = scene.Path(APP) + name;
        for (char const* const attribute :
             {"user.pelnar", "user.pelnar2", "security.capability", "system.posix_acl_access"})
        {
            EXPECT_LT(::lgetxattr(path.c_str(), attribute, nullptr, 0), 0) << path << ' ' << attribute;
        }
        struct stat status;
        ASSERT_EQ(::lstat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, ::geteuid()) << path;
    }
}

TEST(UnpackArchive, WhatStandsInTheStagingFolderIsNeverWrittenThrough)
{
    UnpackScene scene;
    ASSERT_EQ(::symlink("../decoy", scene.Path(APP).c_str()), 0);
    EXPECT_NE(scene.Refusal(MakeArchive(Container::Zip, MakeBundle("2.0"))), UpdateFault::None);
    EXPECT_EQ(::unlink(scene.Path(APP).c_str()), 0);
}

} // namespace
