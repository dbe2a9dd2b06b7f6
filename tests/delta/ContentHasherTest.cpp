#include "Engine/core/base/ContentHasher.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace Pelnar::Engine;

Bytes View(std::string const& text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

/// The output of `sha256sum` for "abc".
TEST(ContentHasher, IsSha256)
{
    constexpr ContentHash OF_ABC{0xba, 0x78, 0x16, 0xbf, 0x8f, 0x01, 0xcf, 0xea, 0x41, 0x41, 0x40,
                                 0xde, 0x5d, 0xae, 0x22, 0x23, 0xb0, 0x03, 0x61, 0xa3, 0x96, 0x17,
                                 0x7a, 0x9c, 0xb4, 0x10, 0xff, 0x61, 0xf2, 0x00, 0x15, 0xad};
    EXPECT_EQ(HashOf(View("abc")), OF_ABC);
}

/// The output of `b2sum -l 256` for "abc". It is used for names on disks and in older deltas.
TEST(ContentHasher, IsBlake2bWith32BytesOfOutputWhereItIsAskedFor)
{
    constexpr ContentHash OF_ABC{0xbd, 0xdd, 0x81, 0x3c, 0x63, 0x42, 0x39, 0x72, 0x31, 0x71, 0xef,
                                 0x3f, 0xee, 0x98, 0x57, 0x9b, 0x94, 0x96, 0x4e, 0x3b, 0xb1, 0xcb,
                                 0x3e, 0x42, 0x72, 0x62, 0xc8, 0xc0, 0x68, 0xd5, 0x23, 0x19};
    EXPECT_EQ(HashOf(View("abc"), HashKind::Blake2b), OF_ABC);
}

TEST(ContentHasher, BeginsAgainWhenItHasFinished)
{
    ContentHasher hasher;
    hasher.Add(View("other bytes"));
    static_cast<void>(hasher.Finish());
    hasher.Add(View("abc"));
    EXPECT_EQ(hasher.Finish(), HashOf(View("abc")));
}

TEST(ContentHasher, PiecesDoNotMatter)
{
    std::string const text(1000, 'x');
    ContentHasher hasher;
    for (std::size_t at = 0; at < text.size(); at += 129)
    {
        hasher.Add(View(text.substr(at, 129)));
    }
    EXPECT_EQ(hasher.Finish(), HashOf(View(text)));
}

} // namespace
