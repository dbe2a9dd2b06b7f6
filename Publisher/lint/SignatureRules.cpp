#include "Publisher/lint/SignatureRules.h"

#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/feed/SignedFeed.h"

namespace Pelnar::Publisher
{
namespace
{

using Engine::SignedFeedFault;

/// A feed that is signed every week has more time left than this.
constexpr int DAYS_LEFT = 7;

QString TextOf(SignedFeedFault fault)
{
    switch (fault)
    {
    case SignedFeedFault::None:
    case SignedFeedFault::Missing:
        break;
    case SignedFeedFault::Repeated:
        return u"there is more than one signature"_s;
    case SignedFeedFault::NotAtEnd:
        return u"the feed continues after its signature"_s;
    case SignedFeedFault::BytesAfter:
        return u"there is text after the line of the signature"_s;
    case SignedFeedFault::LineEndsRewritten:
        return u"the line of the signature ends with a carriage return, probably from a transfer as text"_s;
    case SignedFeedFault::AlgorithmUnknown:
        return u"the signature uses an algorithm that clients do not know"_s;
    case SignedFeedFault::Malformed:
        return u"the signature is damaged or is not alone on its line"_s;
    }
    return u"there is no signature"_s;
}

Engine::FeedChannel ChannelOf(LintSubject const& subject, QByteArray const& bytes)
{
    return Engine::ParseFeed(bytes, subject.address, Engine::FeedPlatform::Linux)
        .value_or(Engine::FeedContent())
        .channel;
}

/// The place of the channel's element with this name; otherwise of the channel, otherwise of the document.
TextPlace PlaceOf(LintSubject const& subject, char const* name)
{
    TextPlace place{1, 1};
    for (XmlElement const& top : subject.root.children)
    {
        for (XmlElement const& channel : top.children)
        {
            place = channel.name.IsPlain("channel") ? channel.place : place;
            if (XmlElement const* const own = channel.OwnChild(name))
            {
                return own->place;
            }
        }
    }
    return place;
}

void CheckTerms(LintSubject const& subject, QByteArray const& bytes, QDateTime const& now, LintFindings& findings)
{
    auto const terms = Engine::ReadFeedValidity(ChannelOf(subject, bytes));
    if (!terms)
    {
        bool const isSerial = terms.error().cause == Engine::ErrorCause::FeedSerialUnusable;
        findings.Add(isSerial ? LintRule::FeedSerial : LintRule::FeedExpires,
                     PlaceOf(subject, isSerial ? "serial" : "expires"),
                     isSerial ? u"the serial is missing, appears twice or is not a positive number"_s
                              : u"the date is missing, appears twice or has another form"_s);
        return;
    }
    if (!Engine::JudgeFeedValidity(*terms, 0, now))
    {
        findings.Add(LintRule::FeedExpired, PlaceOf(subject, "expires"),
                     u"the feed expired at %1"_s.arg(terms->expires.toString(Qt::ISODate)));
    }
    else if (terms->expires < now.addDays(DAYS_LEFT))
    {
        findings.Add(LintRule::FeedExpiresSoon, PlaceOf(subject, "expires"),
                     u"the feed expires at %1"_s.arg(terms->expires.toString(Qt::ISODate)));
    }
}

} // namespace

TextPlace PlaceOf(QByteArray const& bytes, int offset)
{
    if (offset < 0)
    {
        return {1, 1};
    }
    int const lineStart = offset == 0 ? 0 : bytes.lastIndexOf('\n', offset - 1) + 1;
    int const line = 1 + int(std::count(bytes.begin(), bytes.begin() + offset, '\n'));
    return {line, QString::fromUtf8(bytes.constData() + lineStart, offset - lineStart).size() + 1};
}

std::vector<LintFinding> CheckFeedSignature(QByteArray const& bytes, LintSubject const* subject,
                                            FeedSignatureQuestion const& question)
{
    LintFindings findings;
    Engine::SignedFeed const feed = Engine::SplitSignedFeed(bytes);
    TextPlace const place = PlaceOf(bytes, feed.blockOffset);
    if (feed.fault == SignedFeedFault::Missing)
    {
        if (question.wish == FeedSigningWish::Signed)
        {
            findings.Add(LintRule::FeedUnsigned, place, TextOf(feed.fault));
        }
        return findings.Sorted();
    }
    if (feed.fault != SignedFeedFault::None)
    {
        findings.Add(LintRule::FeedSignatureUnreadable, place, TextOf(feed.fault));
    }
    else if (!question.publicKeys.empty())
    {
        std::string_view const content(bytes.constData(), std::size_t(feed.contentBytes));
        if (Engine::VerifySignature(content, feed.signature, question.publicKeys) != Engine::UpdateFault::None)
        {
            findings.Add(LintRule::FeedSignatureWrong, place,
                         u"the signature does not match these bytes with any given key"_s);
        }
    }
    if (subject)
    {
        CheckTerms(*subject, bytes, question.now, findings);
    }
    return findings.Sorted();
}

} // namespace Pelnar::Publisher
