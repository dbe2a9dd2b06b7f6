// PartialRecordTest.cpp: the record of a partial archive: its bytes, and how much of the file is trusted.
#include "Engine/core/download/PartialRecord.h"

#include <gtest/gtest.h>

#include <tuple>

namespace Pelnar::Engine
{

static auto FieldsOf(PartialRecord const& record)
{
    return std::tie(record.url, record.declaredBytes, record.fileNumber, record.systemStart, record.durableBytes,
                    record.validators.entityTag, record.validators.lastModified, record.spent.receivedBytes,
                    record.spent.attempts, record.spent.seconds);
}

static bool operator==(PartialRecord const& a, PartialRecord const& b)
{
    return FieldsOf(a) == FieldsOf(b);
}

} // namespace Pelnar::Engine

namespace
{

using namespace Pelnar::Engine;

PartialRecord const RECORD{
    "https://a.example/x.zip", 100, 7, "start-1", 30, {"\"v1\"", "Fri, 20 Nov 2026 05:00:00 GMT"}, {150, 4, 9}};

TEST(PartialRecord, ReadsWhatWasWritten)
{
    EXPECT_EQ(DecodePartialRecord(EncodePartialRecord(RECORD)), RECORD);
    PartialRecord const bare{"", 0, 0, "", 0, {}, {}};
    EXPECT_EQ(DecodePartialRecord(EncodePartialRecord(bare)), bare);
}

TEST(PartialRecord, NoPrefixAndNoLongerBytesAreARecord)
{
    std::string const whole = EncodePartialRecord(RECORD);
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        EXPECT_FALSE(DecodePartialRecord(whole.substr(0, size))) << size;
    }
    EXPECT_FALSE(DecodePartialRecord(whole + 'x'));
    EXPECT_FALSE(DecodePartialRecord(std::string(100, '\0')));
}

TEST(PartialRecord, WhatCannotBeIsRefused)
{
    PartialRecord record = RECORD;
    record.durableBytes = 101;
    EXPECT_FALSE(DecodePartialRecord(EncodePartialRecord(record))) << "more than the archive has";
    record = RECORD;
    record.validators.entityTag = "\"a\r\nX-Injected: y\"";
    EXPECT_FALSE(DecodePartialRecord(EncodePartialRecord(record))) << "it would end a line of a request";
    record = RECORD;
    record.validators.lastModified = "now\r\n";
    EXPECT_FALSE(DecodePartialRecord(EncodePartialRecord(record)));
    record = RECORD;
    record.url.assign(MAX_PARTIAL_RECORD_BYTES, 'a');
    EXPECT_FALSE(DecodePartialRecord(EncodePartialRecord(record))) << "larger than any record";
}

TEST(TrustedBytes, AreAllOfOneRunOfTheSystemAndTheDurableOnesAfterIt)
{
    std::string const url = RECORD.url;
    struct
    {
        char const* name;
        FoundFile file;
        std::string url;
        std::uint64_t declaredBytes;
        std::uint64_t expected;
    } const rows[] = {
        {"same run", {50, 7, "start-1"}, url, 100, 50},
        {"same run, whole", {100, 7, "start-1"}, url, 100, 100},
        {"later run", {50, 7, "start-2"}, url, 100, 30},
        {"later run that lost more", {20, 7, "start-2"}, url, 100, 20},
        {"unknown run", {50, 7, ""}, url, 100, 30},
        {"larger than the archive", {101, 7, "start-1"}, url, 100, 0},
        {"another file", {50, 8, "start-1"}, url, 100, 0},
        {"another address", {50, 7, "start-1"}, "https://b.example/x.zip", 100, 0},
        {"another length", {50, 7, "start-1"}, url, 99, 0},
    };
    for (auto const& row : rows)
    {
        EXPECT_EQ(TrustedBytes(RECORD, row.file, row.url, row.declaredBytes), row.expected) << row.name;
    }
    PartialRecord unknown = RECORD;
    unknown.systemStart.clear();
    EXPECT_EQ(TrustedBytes(unknown, {50, 7, ""}, url, 100), 30u) << "two unknown runs need not be one";
}

} // namespace
