#include "Engine/core/archive/ZipStructure.h"

#include "Engine/core/archive/ArchiveEntryRules.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using namespace std::string_literals;

UpdateFault Check(std::string const& bytes)
{
    return ReadZipStructure(Bytes(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size())).fault;
}

struct Row
{
    char const* name;
    std::string bytes;
    UpdateFault fault;
};

void PrintTo(Row const& row, std::ostream* out)
{
    *out << row.name;
}

/// Two entries; the second one is changed.
std::string Zip(void (*change)(ForgedEntry&), ZipOptions const& options = {})
{
    std::vector<ForgedEntry> entries{{"A.app/x", 'f', "first"}, {"A.app/y", 'f', "second"}};
    change(entries[1]);
    return MakeZip(entries, options);
}

std::string Zip(ZipOptions const& options = {})
{
    return Zip([](ForgedEntry&) {}, options);
}

ZipOptions With(void (*change)(ZipOptions&))
{
    ZipOptions options;
    change(options);
    return options;
}

class ZipStructure : public testing::TestWithParam<Row>
{
};

TEST_P(ZipStructure, Judges)
{
    EXPECT_EQ(Check(GetParam().bytes), GetParam().fault);
}

constexpr UpdateFault AMBIGUOUS = UpdateFault::ContainerAmbiguous;
constexpr UpdateFault ENCRYPTED = UpdateFault::ContainerEncrypted;

INSTANTIATE_TEST_SUITE_P(
    Table, ZipStructure,
    testing::Values(
        Row{"Plain", Zip(), UpdateFault::None}, Row{"WithoutEntries", MakeZip({}), UpdateFault::None},
        Row{"DescriptorOf12", Zip([](ForgedEntry& e) { e.descriptorBytes = 12; }), UpdateFault::None},
        Row{"DescriptorOf16", Zip([](ForgedEntry& e) { e.descriptorBytes = 16; }), UpdateFault::None},
        Row{"DescriptorOf20", Zip([](ForgedEntry& e) { e.descriptorBytes = 20; }), UpdateFault::None},
        Row{"DescriptorOf24", Zip([](ForgedEntry& e) { e.descriptorBytes = 24; }), UpdateFault::None},
        Row{"EntryOf64Bits", Zip([](ForgedEntry& e) { e.isZip64 = true; }), UpdateFault::None},
        Row{"ArchiveOf64Bits", Zip(With([](ZipOptions& o) { o.isZip64 = true; })), UpdateFault::None},
        Row{"JunkBefore", Zip(With([](ZipOptions& o) { o.prefix = "#!/bin/sh\n"; })), AMBIGUOUS},
        Row{"JunkBehind", Zip(With([](ZipOptions& o) { o.suffix = "x"; })), AMBIGUOUS},
        Row{"TwoEndRecords", Zip(With([](ZipOptions& o) { o.suffix = MakeZip({}); })), AMBIGUOUS},
        Row{"ZipBehindAZip", Zip() + Zip(), AMBIGUOUS},
        Row{"Comment", Zip(With([](ZipOptions& o) { o.comment = "hello"; })), AMBIGUOUS},
        Row{"OneEntryMoreSaid", Zip(With([](ZipOptions& o) { o.countError = 1; })), UpdateFault::ContainerDamaged},
        Row{"OneEntryLessSaid", Zip(With([](ZipOptions& o) { o.countError = -1; })), AMBIGUOUS},
        Row{"TwoRecordsForOneEntry", Zip(With([](ZipOptions& o) { o.isLastRecordTwice = true; })), AMBIGUOUS},
        Row{"GapBetweenEntries", Zip([](ForgedEntry& e) { e.gapBefore = "hidden"; }), AMBIGUOUS},
        Row{"OtherNameInLocalHeader", Zip([](ForgedEntry& e) { e.localName = "A.app/z"; }), AMBIGUOUS},
        Row{"LongerNameInLocalHeader", Zip([](ForgedEntry& e) { e.localName = "A.app/yy"; }), AMBIGUOUS},
        Row{"OtherMethodInLocalHeader", Zip([](ForgedEntry& e) { e.localMethod = 8; }), AMBIGUOUS},
        Row{"OtherFlagsInLocalHeader", Zip([](ForgedEntry& e) { e.localFlags = 0x800; }), AMBIGUOUS},
        Row{"OtherChecksumInLocalHeader", Zip([](ForgedEntry& e) { e.localChecksum = 1; }), AMBIGUOUS},
        Row{"OtherSizeInLocalHeader", Zip([](ForgedEntry& e) { e.localSize = 1; }), AMBIGUOUS},
        Row{"DescriptorOnlyInDirectory",
            Zip([](ForgedEntry& e) {
                e.descriptorBytes = 16;
                e.localFlags = 0;
            }),
            AMBIGUOUS},
        Row{"DescriptorLies",
            Zip([](ForgedEntry& e) {
                e.descriptorBytes = 16;
                e.isDescriptorWrong = true;
            }),
            AMBIGUOUS},
        Row{"Encrypted", Zip([](ForgedEntry& e) { e.flags = 1; }), ENCRYPTED},
        Row{"StronglyEncrypted", Zip([](ForgedEntry& e) { e.flags = 0x41; }), ENCRYPTED},
        Row{"MaskedHeaders", Zip([](ForgedEntry& e) { e.flags = 0x2000; }), ENCRYPTED},
        Row{"MethodLzma", Zip([](ForgedEntry& e) { e.method = 14; }), UpdateFault::ContainerMethodUnknown},
        Row{"MethodUnknown", Zip([](ForgedEntry& e) { e.method = 77; }), UpdateFault::ContainerMethodUnknown},
        Row{"PatchData", Zip([](ForgedEntry& e) { e.flags = 0x20; }), UpdateFault::ContainerMethodUnknown},
        Row{"NulInName", Zip([](ForgedEntry& e) { e.path = "A.app/y\0z"s; }), UpdateFault::EntryNameInvalid},
        Row{"BackslashInName", Zip([](ForgedEntry& e) { e.path = "A.app\\y"; }), UpdateFault::EntryNameInvalid},
        Row{"UnicodeNameOfTheSameBytes", Zip([](ForgedEntry& e) { e.unicodeName = e.path; }), UpdateFault::None},
        Row{"OtherUnicodeName", Zip([](ForgedEntry& e) { e.unicodeName = "A.app/z"; }), AMBIGUOUS},
        Row{"UnicodeNameOfNothing", Zip([](ForgedEntry& e) { e.unicodeName = ""; }), AMBIGUOUS},
        Row{"OtherUnicodeNameInLocalHeader",
            Zip([](ForgedEntry& e) {
                e.unicodeName = e.path;
                e.localUnicodeName = "A.app/z";
            }),
            AMBIGUOUS},
        Row{"FolderWithData", Zip([](ForgedEntry& e) { e.path = "A.app/y/"; }), AMBIGUOUS},
        Row{"FolderByItsKindWithData", Zip([](ForgedEntry& e) { e.type = 'd'; }), AMBIGUOUS},
        Row{"LinkWithTheNameOfAFolder",
            Zip([](ForgedEntry& e) {
                e.type = 'l';
                e.path = "A.app/y/";
            }),
            AMBIGUOUS},
        Row{"EmptyFolder",
            Zip([](ForgedEntry& e) {
                e.type = 'd';
                e.path = "A.app/y/";
                e.content.clear();
            }),
            UpdateFault::None},
        Row{"Fifo", Zip([](ForgedEntry& e) { e.type = 'p'; }), UpdateFault::EntryTypeRefused},
        Row{"EmptyName", Zip([](ForgedEntry& e) { e.path = ""; }), UpdateFault::ContainerDamaged},
        Row{"Nothing", "", AMBIGUOUS}, Row{"Text", "this is no archive at all, only text", AMBIGUOUS}),
    [](testing::TestParamInfo<Row> const& info) { return info.param.name; });

/// An end record that claims \a count entries, after \a recordBytes of zeros.
std::string DirectoryOf(std::uint64_t count, std::size_t recordBytes)
{
    std::string bytes(recordBytes, '\0');
    std::string end = MakeZip({}, With([](ZipOptions& o) { o.isZip64 = true; }));
    for (int i = 0; i < 8; ++i)
    {
        auto const index = static_cast<std::size_t>(i);
        end[24 + index] = end[32 + index] = static_cast<char>(count >> (8 * i));
        end[40 + index] = static_cast<char>(std::uint64_t{recordBytes} >> (8 * i));
        end[64 + index] = static_cast<char>(std::uint64_t{recordBytes} >> (8 * i));
    }
    return bytes + end;
}

TEST(ZipStructure, EntriesAreCappedBeforeThereIsMemoryForThem)
{
    constexpr std::size_t RECORD_BYTES = 46;
    std::size_t const limit = ArchiveLimits().maxEntries;
    EXPECT_EQ(Check(DirectoryOf(limit + 1, (limit + 1) * RECORD_BYTES)), UpdateFault::TooManyEntries);
    EXPECT_EQ(Check(DirectoryOf(limit, limit * RECORD_BYTES)), UpdateFault::ContainerDamaged); // they are zeros
    EXPECT_EQ(Check(DirectoryOf(UINT64_MAX, 100)), UpdateFault::ContainerDamaged);
    EXPECT_EQ(Check(DirectoryOf(UINT64_MAX / RECORD_BYTES, 100)), UpdateFault::ContainerDamaged);
}

TEST(ZipStructure, NamesAreToldInTheOrderOfTheData)
{
    std::string const zip = MakeZip({{"A.app/\xc3\xa9", 'f', "x"}, {"A.app/\xff", 'f', "y"}, {"A.app/b/", 'd', {}}});
    EXPECT_EQ(ReadZipStructure(Bytes(reinterpret_cast<std::uint8_t const*>(zip.data()), zip.size())).names,
              (std::vector<std::string>{"A.app/\xc3\xa9", "A.app/\xff", "A.app/b/"}));
}

TEST(ZipStructure, ZipOfALibraryIsClear)
{
    EXPECT_EQ(Check(MakeDeflatedZip(MakeBundle("2.0"))), UpdateFault::None);
}

TEST(ZipStructure, EveryShorterPieceIsRefused)
{
    for (std::string const& whole : {Zip(), Zip(With([](ZipOptions& o) { o.isZip64 = true; }))})
    {
        for (std::size_t size = 0; size < whole.size(); ++size)
        {
            EXPECT_NE(Check(whole.substr(0, size)), UpdateFault::None) << size;
            EXPECT_NE(Check(whole.substr(size + 1)), UpdateFault::None) << size;
        }
    }
}

TEST(ZipStructure, AnyChangedByteIsReadWithoutHarm)
{
    std::string const whole =
        Zip([](ForgedEntry& e) { e.isZip64 = true; }, With([](ZipOptions& o) { o.isZip64 = true; }));
    int refused = 0;
    for (std::size_t place = 0; place < whole.size(); ++place)
    {
        for (int const value : {0, 1, 0x7f, 0xff})
        {
            std::string changed = whole;
            changed[place] = static_cast<char>(value);
            refused += Check(changed) != UpdateFault::None ? 1 : 0;
        }
    }
    EXPECT_GT(refused, static_cast<int>(whole.size())); // dates, versions and modes may be anything
}

} // namespace
