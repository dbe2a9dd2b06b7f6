// DeltaManifestTest.cpp: which manifests of a delta are valid, and which bytes are a manifest.

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "tests/delta/ManifestEquality.h"
#include "tests/delta/SeparateDelta.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <filesystem>

namespace
{

using namespace Pelnar::Engine;
namespace fs = std::filesystem;

using Error = DeltaManifestError;
constexpr Error TREE = Error::TreeRefused;

// The manifest's rules.

DeltaEntry Folder(std::string path)
{
    DeltaEntry entry;
    entry.path = std::move(path);
    return entry;
}

DeltaEntry Link(std::string path, std::string target)
{
    DeltaEntry entry = Folder(std::move(path));
    entry.kind = DeltaEntryKind::SymbolicLink;
    entry.linkTarget = std::move(target);
    return entry;
}

DeltaEntry Kept(std::string path, std::string source, std::uint64_t size = 1)
{
    DeltaEntry entry = Folder(std::move(path));
    entry.kind = DeltaEntryKind::Kept;
    entry.size = entry.sourceSize = size;
    entry.sourcePath = std::move(source);
    return entry;
}

struct ManifestRow
{
    char const* name;
    std::vector<DeltaEntry> entries;
    DeltaManifestError error;
    UpdateFault fault = UpdateFault::None;
};

class ManifestRule : public testing::TestWithParam<ManifestRow>
{
};

TEST_P(ManifestRule, Holds)
{
    DeltaManifest manifest;
    manifest.baseVersion = "1";
    manifest.targetVersion = "2";
    manifest.entries = GetParam().entries;
    ByteBuffer const bytes = Pelnar::Testing::EncodeManifest(manifest);
    DeltaManifest decoded;
    DeltaManifestVerdict const verdict = DecodeDeltaManifest(View(bytes), {}, decoded);
    EXPECT_EQ(verdict.error, GetParam().error);
    EXPECT_EQ(FaultName(verdict.fault), FaultName(GetParam().fault));
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).error, GetParam().error);
    if (GetParam().error == DeltaManifestError::None)
    {
        EXPECT_EQ(decoded.entries, manifest.entries);
        EXPECT_EQ(decoded.baseVersion, "1");
        EXPECT_EQ(decoded.targetVersion, "2");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ManifestRule,
    testing::Values(
        ManifestRow{"Empty", {}, Error::None},
        ManifestRow{"FolderThenFile", {Folder("a"), Kept("a/b", "c")}, Error::None},
        ManifestRow{"SiblingBetweenFolderAndContent", {Folder("a"), Kept("a-b", "c"), Kept("a/b", "c")}, Error::None},
        ManifestRow{"LinkInside", {Folder("a"), Link("a/l", "../b/./c"), Folder("b"), Kept("b/c", "c")}, Error::None},
        ManifestRow{"NamesBeyondAscii", {Kept("e\xcc\x81", "e\xcc\x81"), Link("l", "e\xcc\x81")}, Error::None},
        ManifestRow{"LinkOut", {Folder("a"), Link("a/l", "../../b")}, TREE, UpdateFault::LinkEscapes},
        ManifestRow{"LinkOutAndBack", {Link("l", "../x.app/b")}, TREE, UpdateFault::LinkEscapes},
        ManifestRow{"LinkOutThroughALink",
                    {Folder("a"), Link("a/up", ".."), Link("l", "a/up/../x")},
                    TREE,
                    UpdateFault::LinkEscapes},
        ManifestRow{"LinkToNothing", {Link("l", "b")}, TREE, UpdateFault::LinkDangles},
        ManifestRow{"LinkUnderAFile", {Kept("f", "f"), Link("l", "f/x")}, TREE, UpdateFault::LinkDangles},
        ManifestRow{"LinksInACircle", {Link("l", "m"), Link("m", "l")}, TREE, UpdateFault::LinkLoops},
        ManifestRow{"AbsoluteLink", {Link("l", "/etc/passwd")}, TREE, UpdateFault::LinkEscapes},
        ManifestRow{"EmptyLink", {Link("l", "")}, TREE, UpdateFault::LinkTargetInvalid},
        ManifestRow{"LinkWithBackslash", {Link("l", "..\\x")}, TREE, UpdateFault::LinkTargetInvalid},
        ManifestRow{"LinkNotUtf8", {Link("l", "\xff")}, TREE, UpdateFault::LinkTargetInvalid},
        ManifestRow{"EmptyPath", {Folder("")}, TREE, UpdateFault::EntryDuplicate}, // the bundle's own
        ManifestRow{"AbsolutePath", {Folder("/a")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"ParentComponent", {Folder("a"), Folder("a/..")}, TREE, UpdateFault::EntryEscapes},
        ManifestRow{"DotComponent", {Folder("./a")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"DoubledSlash", {Folder("a"), Folder("a//b")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"TrailingSlash", {Folder("a/")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"TrailingDot", {Folder("a.")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"TrailingBlank", {Folder("a ")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"Backslash", {Folder("a\\b")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"NotUtf8", {Folder("\xff")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"NulInPath", {Folder(std::string("a\0b", 3))}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"LineFeedInPath", {Folder("a\nb")}, TREE, UpdateFault::EntryNameInvalid},
        ManifestRow{"CaseTwins", {Kept("A", "c"), Kept("a", "c")}, TREE, UpdateFault::EntryNameClash},
        ManifestRow{"ComposedAndDecomposedTwins",
                    {Kept("e\xcc\x81", "c"), Kept("\xc3\xa9", "c")},
                    TREE,
                    UpdateFault::EntryNameClash},
        ManifestRow{"LongComponent", {Folder(std::string(256, 'a'))}, TREE, UpdateFault::EntryNameTooLong},
        ManifestRow{"LongPath",
                    {Folder(std::string(250, 'a') + '/' + std::string(250, 'b') + '/' + std::string(250, 'c') + '/' +
                            std::string(250, 'd') + '/' + std::string(250, 'e'))},
                    TREE,
                    UpdateFault::EntryNameTooLong},
        ManifestRow{"PathOf5000Bytes", {Folder(std::string(5000, 'a'))}, TREE, UpdateFault::EntryNameTooLong},
        ManifestRow{"SourceThatLeaves", {Kept("a", "../b")}, Error::BadSource},
        ManifestRow{"AbsoluteSource", {Kept("a", "/b")}, Error::BadSource},
        ManifestRow{"Twice", {Folder("a"), Folder("a")}, TREE, UpdateFault::EntryDuplicate},
        ManifestRow{"Backwards", {Folder("b"), Folder("a")}, Error::NotInOrder},
        ManifestRow{"WithoutItsFolder", {Kept("a/b", "c")}, Error::NotInOrder},
        ManifestRow{"BelowALink", {Link("a", "b"), Kept("a/b", "c")}, TREE, UpdateFault::EntryUnderNoFolder},
        ManifestRow{"BelowAFile", {Kept("a", "c"), Kept("a/b", "c")}, TREE, UpdateFault::EntryUnderNoFolder},
        ManifestRow{"OneHugeFile", {Kept("a", "c", ~std::uint64_t(0))}, TREE, UpdateFault::TooManyBytes},
        ManifestRow{"SumOverTheLimit",
                    {Kept("a", "c", 3ull << 30), Kept("b", "c", 3ull << 30)},
                    TREE,
                    UpdateFault::TooManyBytes}),
    [](testing::TestParamInfo<ManifestRow> const& row) { return row.param.name; });

TEST(ManifestRule, DepthIsLimited)
{
    DeltaManifest manifest;
    std::string path;
    for (int depth = 0; depth < 64; ++depth) // the bundle's folder is the first of the 64
    {
        path += path.empty() ? "a" : "/a";
        manifest.entries.push_back(Folder(path));
    }
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).fault, UpdateFault::EntryTooDeep);
    manifest.entries.pop_back();
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).error, Error::None);
}

TEST(ManifestRule, LinksAreCounted)
{
    DeltaManifest manifest;
    manifest.entries.push_back(Kept("f", "f"));
    for (int i = 0; i < 10001; ++i)
    {
        char name[8];
        std::snprintf(name, sizeof name, "l%05d", i);
        manifest.entries.push_back(Link(name, "f"));
    }
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).fault, UpdateFault::TooManyLinks);
    manifest.entries.pop_back();
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).error, Error::None);
}

struct BytesRow
{
    char const* name;
    ByteBuffer bytes;
    DeltaManifestError error;
};

class ManifestBytes : public testing::TestWithParam<BytesRow>
{
};

TEST_P(ManifestBytes, AreRefused)
{
    DeltaManifest decoded;
    EXPECT_EQ(DecodeDeltaManifest(Bytes(GetParam().bytes.data(), GetParam().bytes.size()), {}, decoded).error,
              GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(Rows, ManifestBytes,
                         testing::Values(BytesRow{"Nothing", {}, Error::Truncated},
                                         BytesRow{"HalfAText", {5, 'a'}, Error::Truncated},
                                         BytesRow{"NoCount", {0, 0}, Error::Truncated},
                                         BytesRow{"MissingEntry", {0, 0, 1}, Error::Truncated},
                                         BytesRow{"TrailingByte", {0, 0, 0, 0}, Error::TrailingBytes},
                                         BytesRow{"OverlongNumber", {0x80, 0}, Error::BadNumber},
                                         BytesRow{"SixtyFiveBits",
                                                  {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 2},
                                                  Error::BadNumber},
                                         BytesRow{"TooManyEntries", {0, 0, 0xC1, 0x9A, 0x0C}, Error::TooManyEntries},
                                         BytesRow{"LongVersionText", {0x81, 2}, Error::TextTooLong},
                                         BytesRow{"PathOf65537Bytes", {0, 0, 1, 0x81, 0x80, 4}, Error::TextTooLong},
                                         BytesRow{"UnknownKind", {0, 0, 1, 1, 'a', 5}, Error::UnknownKind},
                                         BytesRow{"UnknownFlag", {0, 0, 1, 1, 'a', 2, 2}, Error::BadFlag},
                                         BytesRow{"HalfAHash", {0, 0, 1, 1, 'a', 2, 0, 1, 9, 9}, Error::Truncated}),
                         [](testing::TestParamInfo<BytesRow> const& row) { return row.param.name; });

} // namespace
