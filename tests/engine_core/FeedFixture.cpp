// FeedFixture.cpp: feeds written in a test.
#include "tests/engine_core/FeedFixture.h"

#include <gtest/gtest.h>

namespace Pelnar::Engine::Tests
{

FeedItem OnlyItem(QByteArray const& content, FeedPlatform platform, QStringList const& languages)
{
    FeedParseResult const result = Parse(Feed("<item>" + content + "</item>\n"), platform, {}, languages);
    EXPECT_EQ(result ? "" : Text(result.error().sentence.English()), "");
    EXPECT_TRUE(result && result->items.size() == 1u);
    return result && result->items.size() == 1 ? result->items.front() : FeedItem();
}

} // namespace Pelnar::Engine::Tests
