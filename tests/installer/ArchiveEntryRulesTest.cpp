#include "Engine/core/archive/ArchiveEntryRules.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

void PrintTo(UpdateFault fault, std::ostream* out)
{
    *out << FaultName(fault);
}

} // namespace Pelnar::Engine

namespace
{

using namespace Pelnar::Engine;
using namespace std::string_literals;

ArchiveEntry Folder(std::string const& path)
{
    return {path, ArchiveEntryType::Folder, {}, 0755, 0, true, false};
}

ArchiveEntry File(std::string const& path, std::uint64_t size = 1, std::uint32_t mode = 0644)
{
    return {path, ArchiveEntryType::File, {}, mode, size, true, false};
}

ArchiveEntry Link(std::string const& path, std::string const& target)
{
    return {path, ArchiveEntryType::SymbolicLink, target, 0777, 0, true, false};
}

ArchiveEntry OfType(ArchiveEntryType type)
{
    return {"A.app/x", type, "A.app/y", 0644, 0, true, false};
}

ArchiveEntry WithUnknownSize()
{
    ArchiveEntry entry = File("A.app/x");
    entry.isSizeKnown = false;
    return entry;
}

ArchiveEntry Sparse()
{
    ArchiveEntry entry = File("A.app/x");
    entry.isSparse = true;
    return entry;
}

std::string Repeat(std::string const& text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
    {
        result += text;
    }
    return result;
}

/// Judges a whole archive. Returns the first fault, of an entry or of the end.
UpdateFault Judge(std::vector<ArchiveEntry> const& entries, ArchiveLimits const& limits = {})
{
    ArchiveEntryRules policy(limits);
    for (ArchiveEntry const& entry : entries)
    {
        if (UpdateFault const fault = policy.Admit(entry).fault; fault != UpdateFault::None)
        {
            return fault;
        }
    }
    return policy.Finish();
}

struct Row
{
    char const* name;
    std::vector<ArchiveEntry> entries;
    UpdateFault fault;
};

void PrintTo(Row const& row, std::ostream* out)
{
    *out << row.name;
}

class ArchiveEntryRulesTable : public testing::TestWithParam<Row>
{
};

TEST_P(ArchiveEntryRulesTable, Judges)
{
    EXPECT_EQ(Judge(GetParam().entries), GetParam().fault);
}

std::string RowName(testing::TestParamInfo<Row> const& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Paths, ArchiveEntryRulesTable,
    testing::Values(
        Row{"PlainBundle", {Folder("A.app"), Folder("A.app/b/"), File("A.app/b/c")}, UpdateFault::None},
        Row{"FoldersOnlyImplied", {File("A.app/b/c")}, UpdateFault::None},
        Row{"DotSlashBeforeEveryName", {Folder("./"), Folder("./A.app/"), File("./A.app/c")}, UpdateFault::None},
        Row{"BlanksAndNonAsciiLetters", {File("My A.app/\xc3\xa4 \xe4\xb8\xad")}, UpdateFault::None},
        Row{"ParentFolder", {File("../x")}, UpdateFault::EntryEscapes},
        Row{"ParentFolderInside", {File("A.app/../../x")}, UpdateFault::EntryEscapes},
        Row{"ParentFolderThatComesBack", {File("A.app/b/../c")}, UpdateFault::EntryEscapes},
        Row{"ParentFolderLast", {Folder("A.app/..")}, UpdateFault::EntryEscapes},
        Row{"Absolute", {File("/etc/passwd")}, UpdateFault::EntryEscapes},
        Row{"AbsoluteRoot", {Folder("/")}, UpdateFault::EntryEscapes},
        Row{"DriveLetter", {File("C:A.app/x")}, UpdateFault::EntryEscapes},
        Row{"DriveLetterAbsolute", {File("c:/A.app/x")}, UpdateFault::EntryEscapes},
        Row{"Backslash", {File("A.app\\..\\x")}, UpdateFault::EntryNameInvalid},
        Row{"TrailingDot", {File("A.app/x.")}, UpdateFault::EntryNameInvalid},
        Row{"TrailingDotInside", {File("A.app/x./y")}, UpdateFault::EntryNameInvalid},
        Row{"TrailingBlank", {File("A.app/x ")}, UpdateFault::EntryNameInvalid},
        Row{"ThreeDots", {File("A.app/.../x")}, UpdateFault::EntryNameInvalid},
        Row{"SingleDotInside", {File("A.app/./x")}, UpdateFault::EntryNameInvalid},
        Row{"EmptyComponent", {File("A.app//x")}, UpdateFault::EntryNameInvalid},
        Row{"Empty", {File("")}, UpdateFault::EntryNameInvalid},
        Row{"FileNamedAsTheRoot", {File("./")}, UpdateFault::EntryNameInvalid},
        Row{"FileWithTrailingSlash", {File("A.app/x/")}, UpdateFault::EntryNameInvalid},
        Row{"Nul", {File("A.app/x\0y"s)}, UpdateFault::EntryNameInvalid},
        Row{"Newline", {File("A.app/x\ny")}, UpdateFault::EntryNameInvalid},
        Row{"Escape", {File("A.app/\x1b[2J")}, UpdateFault::EntryNameInvalid},
        Row{"Delete", {File("A.app/\x7f")}, UpdateFault::EntryNameInvalid},
        Row{"NotUtf8", {File("A.app/\xff")}, UpdateFault::EntryNameInvalid},
        Row{"OverlongUtf8", {File("A.app/\xc0\xae\xc0\xae")}, UpdateFault::EntryNameInvalid},
        Row{"SurrogateInUtf8", {File("A.app/\xed\xa0\x80")}, UpdateFault::EntryNameInvalid},
        Row{"PathOf5000Bytes", {File("A.app/" + Repeat("d/", 2497))}, UpdateFault::EntryNameTooLong},
        Row{"NameOf255Bytes", {File("A.app/" + Repeat("n", 255))}, UpdateFault::None},
        Row{"NameOf256Bytes", {File("A.app/" + Repeat("n", 256))}, UpdateFault::EntryNameTooLong},
        Row{"Depth64", {File("A.app/" + Repeat("d/", 62) + "x")}, UpdateFault::None},
        Row{"Depth65", {File("A.app/" + Repeat("d/", 63) + "x")}, UpdateFault::EntryTooDeep}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Types, ArchiveEntryRulesTable,
    testing::Values(Row{"HardLink", {OfType(ArchiveEntryType::HardLink)}, UpdateFault::EntryIsHardLink},
                    Row{"DeviceFifoSocketWhiteout", {OfType(ArchiveEntryType::Other)}, UpdateFault::EntryTypeRefused},
                    Row{"SparseFile", {Sparse()}, UpdateFault::EntryIsSparse},
                    Row{"FileOfUnknownSize", {WithUnknownSize()}, UpdateFault::EntrySizeUnknown}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Twins, ArchiveEntryRulesTable,
    testing::Values(
        Row{"SameFileTwice", {File("A.app/x"), File("A.app/x")}, UpdateFault::EntryDuplicate},
        Row{"SameFolderTwice", {Folder("A.app"), Folder("A.app/")}, UpdateFault::EntryDuplicate},
        Row{"SameFileThroughDotSlash", {File("A.app/x"), File("./A.app/x")}, UpdateFault::EntryDuplicate},
        Row{"FolderNamedAfterItsContents", {File("A.app/b/x"), Folder("A.app/b")}, UpdateFault::None},
        Row{"FolderNamedTwiceAfterItsContents",
            {File("A.app/b/x"), Folder("A.app/b"), Folder("A.app/b/")},
            UpdateFault::EntryDuplicate},
        Row{"BundleNamedTwiceAfterItsContents",
            {File("A.app/x"), Folder("A.app"), Folder("A.app")},
            UpdateFault::EntryDuplicate},
        Row{"FileThenFolder", {File("A.app/x"), Folder("A.app/x")}, UpdateFault::EntryDuplicate},
        Row{"FolderThenFile", {Folder("A.app/x"), File("A.app/x")}, UpdateFault::EntryDuplicate},
        Row{"ImpliedFolderThenFile", {File("A.app/x/y"), File("A.app/x")}, UpdateFault::EntryDuplicate},
        Row{"ImpliedFolderThenLink", {File("A.app/x/y"), Link("A.app/x", "b")}, UpdateFault::EntryDuplicate},
        Row{"FileThenUnderIt", {File("A.app/x"), File("A.app/x/y")}, UpdateFault::EntryUnderNoFolder},
        Row{"LinkThenThroughIt",
            {File("A.app/b/f"), Link("A.app/x", "b"), File("A.app/x/y")},
            UpdateFault::EntryUnderNoFolder},
        Row{"CaseTwins", {File("A.app/Read"), File("A.app/read")}, UpdateFault::EntryNameClash},
        Row{"CaseTwinsOfImpliedFolders", {File("A.app/B/x"), File("A.app/b/y")}, UpdateFault::EntryNameClash},
        Row{"ComposedAndDecomposed", {File("A.app/\xc3\xa9"), File("A.app/e\xcc\x81")}, UpdateFault::EntryNameClash},
        Row{"CaseTwinsBeyondAscii", {File("A.app/\xc3\x89"), File("A.app/e\xcc\x81")}, UpdateFault::EntryNameClash},
        Row{"KelvinSignAndK", {File("A.app/\xe2\x84\xaa"), File("A.app/k")}, UpdateFault::EntryNameClash},
        Row{"SharpSAndSS", {File("A.app/\xc3\x9f"), File("A.app/SS")}, UpdateFault::EntryNameClash}),
    RowName);

std::vector<ArchiveEntry> ChainOfLinks(int length)
{
    std::vector<ArchiveEntry> entries{File("A.app/l" + std::to_string(length))};
    for (int i = 0; i < length; ++i)
    {
        entries.push_back(Link("A.app/l" + std::to_string(i), "l" + std::to_string(i + 1)));
    }
    return entries;
}

INSTANTIATE_TEST_SUITE_P(
    Links, ArchiveEntryRulesTable,
    testing::Values(
        Row{"ToAFileBeside", {File("A.app/f"), Link("A.app/l", "f")}, UpdateFault::None},
        Row{"ToAFileNotYetSeen", {Link("A.app/l", "f"), File("A.app/f")}, UpdateFault::None},
        Row{"UpAndDownInside", {File("A.app/b/f"), Link("A.app/c/l", "../b/f")}, UpdateFault::None},
        Row{"ToAFolder", {File("A.app/b/f"), Link("A.app/l", "b/")}, UpdateFault::None},
        Row{"ThroughALink", {File("A.app/b/f"), Link("A.app/l", "b"), Link("A.app/m", "l/f")}, UpdateFault::None},
        Row{"ToTheBundleItself", {File("A.app/b/f"), Link("A.app/b/l", "..")}, UpdateFault::None},
        Row{"Absolute", {File("A.app/f"), Link("A.app/l", "/etc/passwd")}, UpdateFault::LinkEscapes},
        Row{"OutOfTheBundle", {File("A.app/f"), Link("A.app/l", "../../etc")}, UpdateFault::LinkEscapes},
        Row{"ToTheStagingFolder", {File("A.app/f"), Link("A.app/l", "..")}, UpdateFault::LinkEscapes},
        Row{"OutAndBackIn", {File("A.app/f"), Link("A.app/l", "../A.app/f")}, UpdateFault::LinkEscapes},
        Row{"OutThroughALink",
            {File("A.app/b/c/f"), Link("A.app/b/c/l", "../.."), Link("A.app/m", "b/c/l/../x")},
            UpdateFault::LinkEscapes},
        Row{"ToNothing", {File("A.app/f"), Link("A.app/l", "g")}, UpdateFault::LinkDangles},
        Row{"UnderAFile", {File("A.app/f"), Link("A.app/l", "f/g")}, UpdateFault::LinkDangles},
        Row{"ToItself", {File("A.app/f"), Link("A.app/l", "l")}, UpdateFault::LinkLoops},
        Row{"InACircle", {File("A.app/f"), Link("A.app/l", "m"), Link("A.app/m", "l")}, UpdateFault::LinkLoops},
        Row{"ChainOf9", ChainOfLinks(9), UpdateFault::None}, Row{"ChainOf10", ChainOfLinks(10), UpdateFault::LinkLoops},
        Row{"ChainOf40", ChainOfLinks(40), UpdateFault::LinkLoops},
        Row{"EmptyTarget", {Link("A.app/l", "")}, UpdateFault::LinkTargetInvalid},
        Row{"NulInTarget", {Link("A.app/l", "a\0b"s)}, UpdateFault::LinkTargetInvalid},
        Row{"BackslashInTarget", {Link("A.app/l", "..\\x")}, UpdateFault::LinkTargetInvalid},
        Row{"NewlineInTarget", {Link("A.app/l", "a\nb")}, UpdateFault::LinkTargetInvalid},
        Row{"TargetNotUtf8", {Link("A.app/l", "\xff")}, UpdateFault::LinkTargetInvalid},
        Row{"TargetOf5000Bytes", {Link("A.app/l", Repeat("a/", 2500))}, UpdateFault::LinkTargetInvalid}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Bundles, ArchiveEntryRulesTable,
    testing::Values(Row{"NothingAtAll", {}, UpdateFault::BundleMissing},
                    Row{"OnlyTheRoot", {Folder(".")}, UpdateFault::BundleMissing},
                    Row{"NoBundle", {File("README"), File("bin/x")}, UpdateFault::BundleMissing},
                    Row{"SuffixAlone", {Folder(".app")}, UpdateFault::BundleMissing},
                    Row{"SuffixInOtherCase", {Folder("A.APP")}, UpdateFault::BundleMissing},
                    Row{"BundleNotOnTop", {Folder("x/A.app")}, UpdateFault::BundleMissing},
                    Row{"TwoBundles", {Folder("A.app"), Folder("B.app")}, UpdateFault::BundleNotAlone},
                    Row{"FileBesideTheBundle", {Folder("A.app"), File("README")}, UpdateFault::BundleNotAlone},
                    Row{"BundleIsAFile", {File("A.app")}, UpdateFault::BundleNotAFolder},
                    Row{"BundleIsALink", {Link("A.app", "A.app")}, UpdateFault::BundleNotAFolder}),
    RowName);

TEST(ArchiveEntryRules, ModesKeepOnlyTheOwnersRightToExecute)
{
    ArchiveEntryRules policy({});
    EXPECT_EQ(policy.Admit(Folder("A.app")).mode, 0755u);
    std::uint32_t expected = 0;
    int index = 0;
    for (std::uint32_t const mode : {06755u, 04711u, 0777u, 0100u, 01755u})
    {
        expected = 0755;
        EXPECT_EQ(policy.Admit(File("A.app/x" + std::to_string(++index), 1, mode)).mode, expected) << std::oct << mode;
    }
    for (std::uint32_t const mode : {0u, 0666u, 06644u, 0611u, 01644u})
    {
        expected = 0644;
        EXPECT_EQ(policy.Admit(File("A.app/x" + std::to_string(++index), 1, mode)).mode, expected) << std::oct << mode;
    }
    EXPECT_EQ(policy.Finish(), UpdateFault::None);
    EXPECT_EQ(policy.BundleName(), "A.app");
}

TEST(ArchiveEntryRules, PathsComeOutNormalized)
{
    ArchiveEntryRules policy({});
    EXPECT_EQ(policy.Admit(Folder("./")).path, "");
    EXPECT_EQ(policy.Admit(Folder("./A.app/")).path, "A.app");
    EXPECT_EQ(policy.Admit(File("./A.app/b")).path, "A.app/b");
}

TEST(ArchiveEntryRules, BytesAreCountedOverAllFiles)
{
    ArchiveLimits limits;
    limits.maxBytes = 10;
    EXPECT_EQ(Judge({File("A.app/x", 4), File("A.app/y", 6)}, limits), UpdateFault::None);
    EXPECT_EQ(Judge({File("A.app/x", 4), File("A.app/y", 7)}, limits), UpdateFault::TooManyBytes);
    EXPECT_EQ(Judge({File("A.app/x", 4), File("A.app/y", UINT64_MAX)}, limits), UpdateFault::TooManyBytes);
}

TEST(ArchiveEntryRules, EntriesAndLinksAreCountedWithTheFoldersTheyImply)
{
    ArchiveLimits limits;
    limits.maxEntries = 3;
    limits.maxLinks = 1;
    EXPECT_EQ(Judge({File("A.app/b/c")}, limits), UpdateFault::None);
    EXPECT_EQ(Judge({File("A.app/b/c/d")}, limits), UpdateFault::TooManyEntries);
    EXPECT_EQ(Judge({File("A.app/b"), Link("A.app/c", "b")}, limits), UpdateFault::None);
    limits.maxEntries = 9;
    EXPECT_EQ(Judge({File("A.app/b"), Link("A.app/c", "b"), Link("A.app/d", "b")}, limits), UpdateFault::TooManyLinks);
}

TEST(ArchiveEntryRules, MillionEmptyFilesAreRefused)
{
    ArchiveEntryRules policy({});
    for (int i = 0; i < 1000000; ++i)
    {
        if (UpdateFault const fault = policy.Admit(File("A.app/" + std::to_string(i), 0)).fault;
            fault != UpdateFault::None)
        {
            EXPECT_EQ(fault, UpdateFault::TooManyEntries);
            EXPECT_EQ(i, 199999); // the bundle's folder is the first of the 200,000
            return;
        }
    }
    FAIL() << "every entry was admitted";
}

TEST(ArchiveEntryRules, LimitOfBytesGrowsWithTheArchiveFromFourGibibytes)
{
    constexpr std::uint64_t GIB = std::uint64_t{1} << 30;
    EXPECT_EQ(ArchiveLimits::ForArchiveOf(0).maxBytes, 4 * GIB);
    EXPECT_EQ(ArchiveLimits::ForArchiveOf(GIB / 10).maxBytes, 4 * GIB);
    EXPECT_EQ(ArchiveLimits::ForArchiveOf(GIB).maxBytes, 20 * GIB);
    EXPECT_EQ(ArchiveLimits::ForArchiveOf(UINT64_MAX).maxBytes, UINT64_MAX);
}

} // namespace
