#include "Engine/core/check/FeedTrust.h"

#include "Engine/core/feed/SignedFeed.h"
#include "Engine/core/fetch/FetchRules.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr char DATE_FORM[] = "0000-00-00T00:00:00Z"; // 0: any digit

std::optional<ErrorCause> CauseOf(SignedFeedFault fault)
{
    switch (fault)
    {
    case SignedFeedFault::None:
        return std::nullopt;
    case SignedFeedFault::Missing:
        return ErrorCause::FeedUnsigned;
    case SignedFeedFault::Repeated:
        return ErrorCause::FeedSignedTwice;
    case SignedFeedFault::NotAtEnd:
        return ErrorCause::FeedSignatureNotAtEnd;
    case SignedFeedFault::BytesAfter:
        return ErrorCause::FeedBytesAfterSignature;
    case SignedFeedFault::LineEndsRewritten:
        return ErrorCause::FeedLineEndsRewritten;
    case SignedFeedFault::AlgorithmUnknown:
        return ErrorCause::FeedSignatureUnknown;
    case SignedFeedFault::Malformed:
        return ErrorCause::FeedSignatureMalformed;
    }
    return ErrorCause::FeedUnsigned;
}

bool IsDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

} // namespace

Result<QByteArray> VerifyFeed(QByteArray const& bytes, TrustedKeys const& keys)
{
    SignedFeed const feed = SplitSignedFeed(bytes);
    if (feed.fault == SignedFeedFault::Missing && BeginsAsWebPage(bytes))
    {
        return Failure(ErrorCause::FeedIsWebPage);
    }
    if (auto const cause = CauseOf(feed.fault))
    {
        return Failure(*cause);
    }
    std::string_view const content(bytes.constData(), static_cast<std::size_t>(feed.contentBytes));
    UpdateFault const verdict = VerifySignature(content, feed.signature, keys);
    if (verdict == UpdateFault::SignatureMismatch)
    {
        return Failure(ErrorCause::FeedSignatureWrong);
    }
    if (verdict != UpdateFault::None)
    {
        return Failure(MakeFaultError(verdict));
    }
    return bytes.left(feed.contentBytes);
}

qint64 FeedSerial(QString const& text)
{
    QString const digits = text.trimmed();
    bool const isDecimal =
        !digits.isEmpty() && digits.at(0) != QLatin1Char('0') && std::all_of(digits.begin(), digits.end(), IsDigit);
    return isDecimal ? digits.toLongLong() : 0;
}

QDateTime FeedMoment(QString const& text)
{
    QLatin1String const form(DATE_FORM);
    bool const isOfForm = text.size() == form.size() &&
                          std::equal(text.begin(), text.end(), form.begin(),
                                     [](QChar character, char wanted)
                                     { return wanted == '0' ? IsDigit(character) : character == QLatin1Char(wanted); });
    return isOfForm ? QDateTime::fromString(text, Qt::ISODate) : QDateTime();
}

std::string FeedSigner(QByteArray const& feed, TrustedKeys const& keys)
{
    auto const signer = std::find_if(keys.Texts().begin(), keys.Texts().end(),
                                     [&](std::string const& key) { return VerifyFeed(feed, {key}).has_value(); });
    return signer == keys.Texts().end() ? std::string() : KeyIdOf(*signer);
}

Result<FeedValidity> ReadFeedValidity(FeedChannel const& channel)
{
    FeedValidity terms;
    terms.serial = channel.serials.size() == 1 ? FeedSerial(channel.serials.front()) : 0;
    if (terms.serial == 0)
    {
        return Failure(ErrorCause::FeedSerialUnusable);
    }
    terms.expires = channel.expirations.size() == 1 ? FeedMoment(channel.expirations.front().trimmed()) : QDateTime();
    if (!terms.expires.isValid())
    {
        return Failure(ErrorCause::FeedExpiryUnusable);
    }
    return terms;
}

Result<void> JudgeFeedValidity(FeedValidity const& terms, qint64 floor, QDateTime const& now)
{
    if (terms.serial < floor)
    {
        return Failure(ErrorCause::FeedReplayed);
    }
    if (now >= terms.expires)
    {
        return Failure(ErrorCause::FeedExpired);
    }
    return {};
}

} // namespace Pelnar::Engine
