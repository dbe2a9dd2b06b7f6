// FeedFuzz.cpp: any bytes as a feed, its items and the choice among them. The limits hold, and the same bytes give the
// same result.

#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/choice/FeedChoice.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace
{

using namespace Pelnar;
using Engine::FeedItem;
using Engine::FeedParseResult;

void Require(bool holds, char const* promise)
{
    if (!holds)
    {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

/// By Qt's tables and not by the tested rule. These six format characters are visible.
bool IsSeen(uint codePoint)
{
    return (codePoint >= 0x600 && codePoint <= 0x605) || codePoint == 0x6DD || codePoint == 0x70F ||
           codePoint == 0x8E2 || codePoint == 0x110BD || codePoint == 0x110CD;
}

bool IsSafe(QString const& text)
{
    for (uint const codePoint : text.toUcs4())
    {
        switch (QChar::category(codePoint))
        {
        case QChar::Other_Control:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
        case QChar::Other_Surrogate:
            return false;
        case QChar::Other_Format:
            if (!IsSeen(codePoint))
            {
                return false;
            }
            break;
        default:
            break;
        }
    }
    return true;
}

void RequireSafe(QVariant const& value)
{
    if (value.type() == QVariant::Map)
    {
        for (QVariant const& entry : value.toMap())
        {
            RequireSafe(entry);
        }
    }
    else if (value.type() == QVariant::List)
    {
        for (QVariant const& entry : value.toList())
        {
            RequireSafe(entry);
        }
    }
    else
    {
        Require(value.type() == QVariant::String, "a property is a text, a map or a list");
        Require(IsSafe(value.toString()), "no property can forge a line");
    }
}

void RequirePromises(FeedItem const& item, Engine::FeedLimits const& limits)
{
    for (QString const& text :
         {item.title, item.dateString, item.descriptionFormat, item.minimumSystemVersion, item.maximumSystemVersion,
          item.versionString, item.displayVersionString, item.edSignature, item.installationType, item.deltaFrom})
    {
        Require(IsSafe(text), "no text can forge a line");
    }
    Require(item.contentLength <= limits.maxContentLength, "a length is within its limit");
    for (QUrl const& url : {item.fileUrl, item.infoUrl, item.releaseNotesUrl})
    {
        Require(url.isEmpty() || (url.isValid() && !url.isRelative()), "an address is absolute");
    }
    Require(item.line >= 1 && item.column >= 1, "an item has a place");
    QVariantMap properties = item.AllProperties();
    properties.remove(QStringLiteral("description"));
    RequireSafe(properties);
    for (FeedItem const& delta : item.deltas)
    {
        Require(delta.isDelta && delta.deltas.empty() && !item.isDelta, "deltas stand one level deep");
        RequirePromises(delta, limits);
    }
}

bool IsSame(FeedItem const& a, FeedItem const& b)
{
    return a.title == b.title && a.versionString == b.versionString && a.fileUrl == b.fileUrl &&
           a.contentLength == b.contentLength && a.properties == b.properties && a.deltas.size() == b.deltas.size();
}

void RequireSame(FeedParseResult const& a, FeedParseResult const& b)
{
    Require(a.has_value() == b.has_value(), "the same bytes give the same result");
    if (!a)
    {
        Engine::FeedParseError const& one = a.error();
        Engine::FeedParseError const& two = b.error();
        Require(one.cause == two.cause && one.line == two.line && one.column == two.column &&
                    one.sentence.English() == two.sentence.English() && one.detail == two.detail,
                "the same bytes give the same error");
        return;
    }
    Require(std::equal(a->items.begin(), a->items.end(), b->items.begin(), b->items.end(), IsSame),
            "the same bytes give the same items");
}

void RequireHonestChoice(std::vector<FeedItem> const& items)
{
    Publisher::Client const client{Core::Version(1, 2), Core::Version(12)};
    FeedItem const* const choice = Publisher::ChooseFromFeed(items, client).chosen;
    Require(choice == Publisher::ChooseFromFeed(items, client).chosen, "the same items give the same choice");
    Require(choice == nullptr || (choice->contentLength > 0 && choice->fileUrl.isValid()), "a choice can be fetched");
}

/// The items that a client removes before the choice, if it trusts a key, lists a channel and waits for its group.
void RequireHonestPolicy(std::vector<FeedItem> const& items)
{
    auto const group = [](QString const&) { return 3; };
    Engine::Installation asking{QStringLiteral("1.2"),
                                QStringLiteral("x86_64"),
                                {QStringLiteral("beta")},
                                group,
                                QDateTime::fromSecsSinceEpoch(1800000000, Qt::UTC),
                                {QStringLiteral("0123456789abcdef")},
                                {}};
    std::vector<FeedItem> left = items;
    Engine::LeaveOut(left, asking, Publisher::OrderOfTexts);
    std::vector<FeedItem> again = items;
    Engine::LeaveOut(again, asking, Publisher::OrderOfTexts);
    Require(left.size() == again.size(), "the same items are left out");
    asking.stones = Engine::SteppingStonesOf(items, asking, Publisher::OrderOfTexts);
    Require(asking.stones.size() <= Engine::MOST_STEPPING_STONES, "the way to a key is bounded");
    auto kept = left.begin();
    for (FeedItem const& item : items)
    {
        bool const isLeftOut = Engine::IsLeftOut(Engine::JudgePolicy(item, asking, Publisher::OrderOfTexts));
        Require(isLeftOut || kept != left.end(), "what the policy allows stays");
        if (!isLeftOut)
        {
            Require(kept->line == item.line && kept->column == item.column, "the order stays");
            Require(!kept->policy.isWithdrawn && kept->deltas.size() <= item.deltas.size(), "no delta is added");
            ++kept;
        }
    }
    Require(kept == left.end(), "what the policy leaves out does not stay");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    QByteArray const bytes(reinterpret_cast<char const*>(data), static_cast<int>(size));
    QUrl const feedUrl(QStringLiteral("https://feeds.example.com/app/appcast.xml"));
    // Small limits, so that short inputs reach them.
    Engine::FeedLimits limits;
    limits.maxDepth = 8;
    limits.maxAttributes = 8;
    limits.maxTagBytes = 512;
    limits.maxMarkup = 64;
    limits.maxItems = 6;
    limits.maxNamespaces = 4;
    FeedParseResult const result = Engine::ParseFeed(bytes, feedUrl, Engine::FeedPlatform::MacOS, limits);
    RequireSame(result, Engine::ParseFeed(bytes, feedUrl, Engine::FeedPlatform::MacOS, limits));
    if (!result)
    {
        Engine::FeedParseError const& refusal = result.error();
        Require(refusal.line >= 1 && refusal.column >= 1, "an error has a place");
        Require(IsSafe(refusal.sentence.English()) && IsSafe(refusal.detail), "no error can forge a line");
        return 0;
    }
    Require(result->items.size() <= static_cast<std::size_t>(limits.maxItems),
            "the number of items is within its limit");
    Require(!bytes.contains("<!DOCTYPE") || bytes.contains("<!--") || bytes.contains("<![CDATA[") ||
                bytes.contains("<?"),
            "a document type is refused");
    for (FeedItem const& item : result->items)
    {
        RequirePromises(item, limits);
    }
    RequireHonestChoice(result->items);
    RequireHonestPolicy(result->items);
    return 0;
}
