#include "Engine/core/delta/ContentHasher.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace Pelnar::Engine;

Bytes View(std::string const& text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

/// What `b2sum -l 256` prints for "abc".
TEST(ContentHasher, IsBlake2bWith32BytesOfOutput)
{
    constexpr ContentHash OF_ABC{0xbd, 0xdd, 0x81, 0x3c, 0x63, 0x42, 0x39, 0x72, 0x31, 0x71, 0xef,
                                 0x3f, 0xee, 0x98, 0x57, 0x9b, 0x94, 0x96, 0x4e, 0x3b, 0xb1, 0xcb,
                                 0x3e, 0x42, 0x72, 0x62, 0xc8, 0xc0, 0x68, 0xd5, 0x23, 0x19};
    EXPECT_EQ(HashOf(View("abc")), OF_ABC);
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
