#include "Publisher/signfeed/FeedSigner.h"

#include "Engine/core/check/KeyStatement.h"
#include "Engine/core/feed/SignedFeed.h"
#include "Publisher/Refusal.h"
#include "Publisher/signfeed/FeedValidityText.h"

#include <algorithm>
#include <limits>

namespace Pelnar::Publisher
{
namespace
{

int LineOf(QByteArray const& bytes, int offset)
{
    return 1 + int(std::count(bytes.begin(), bytes.begin() + std::max(offset, 0), '\n'));
}

Engine::FeedChannel ReadChannel(QString const& name, QByteArray const& content)
{
    Engine::FeedParseResult const feed = Engine::ParseFeed(content, QUrl(), Engine::FeedPlatform::Linux);
    if (!feed)
    {
        throw Refusal({name, feed.error().line, feed.error().column, feed.error().sentence.English(),
                       QStringLiteral("mend the feed; clients do not read it")});
    }
    return feed->channel;
}

/// What the feed's serial must be above.
qint64 PublishedSerial(Engine::FeedChannel const& channel)
{
    return channel.serials.size() == 1 ? Engine::FeedSerial(channel.serials.front()) : 0;
}

qint64 NextSerial(QString const& name, Engine::FeedChannel const& channel, SigningTerms const& terms)
{
    qint64 const published = PublishedSerial(channel);
    if (terms.serial && *terms.serial <= published)
    {
        throw Refusal({name, 0, 0, QStringLiteral("has the serial %1 already, which must grow").arg(published),
                       QStringLiteral("give a greater --serial, or none")});
    }
    if (!terms.serial && published == std::numeric_limits<qint64>::max())
    {
        throw Refusal({name, 0, 0, QStringLiteral("has the greatest serial that there is"),
                       QStringLiteral("publish a feed at another address")});
    }
    // A serial without the option is the time. A clock that was set back makes an expiry that has passed.
    constexpr qint64 A_DAY = 86400;
    constexpr qint64 LAST_TIME = 4102444800; // of 2100; what is above is no time
    if (!terms.serial && published > terms.now.toSecsSinceEpoch() + A_DAY && published < LAST_TIME)
    {
        throw Refusal({name, 0, 0,
                       QStringLiteral("was signed at %1 by its serial, but the clock of this computer says %2")
                           .arg(MomentText(QDateTime::fromSecsSinceEpoch(published, Qt::UTC)), MomentText(terms.now)),
                       QStringLiteral("set the clock, or give sign-feed a --serial")});
    }
    // The time, so that a feed that is made from nothing is not below the one that clients have seen.
    return terms.serial ? *terms.serial : std::max(published + 1, terms.now.toSecsSinceEpoch());
}

} // namespace

FeedContent ReadFeedContent(QString const& name, QByteArray const& bytes, ISigner const& key, ChangedFeed changed)
{
    Engine::SignedFeed const feed = Engine::SplitSignedFeed(bytes);
    if (feed.fault == Engine::SignedFeedFault::Missing)
    {
        return {bytes, false};
    }
    if (feed.fault != Engine::SignedFeedFault::None)
    {
        throw Refusal({name, LineOf(bytes, feed.blockOffset), 0,
                       QStringLiteral("has a signature that is not alone on the last line, or is damaged"),
                       QStringLiteral("look at what changed the feed, and remove every line with a signature")});
    }
    bool const isOurs = Engine::VerifyFeed(bytes, {key.PublicKeyText().toStdString()}).has_value();
    if (!isOurs && changed == ChangedFeed::Refused)
    {
        throw Refusal({name, LineOf(bytes, feed.blockOffset), 0,
                       QStringLiteral("was changed after it was signed, or was signed by another key"),
                       QStringLiteral("look at what changed, and say sign-feed --accept-changes if it is right")});
    }
    return {bytes.left(feed.contentBytes), true};
}

QByteArray WithKeyStatement(QString const& name, QByteArray content, QString const& statementFile, ISigner const& key)
{
    constexpr std::uint64_t MOST_LINE_BYTES = 64 * 1024;
    QByteArray const line =
        ReadInputFile(OpenInputFile(statementFile), MOST_LINE_BYTES, QStringLiteral("give the statement's file"));
    auto const given = Engine::FindKeyStatement(line);
    auto const statement = given ? Engine::ParseKeyStatement(given->text) : std::nullopt;
    QString const option = QStringLiteral("--key-statement");
    if (!statement || given->size != line.size())
    {
        throw Refusal({option, 0, 0, QStringLiteral("is no key statement"),
                       QStringLiteral("give the file with the one line that \"keys state\" printed")});
    }
    QString const id = QString::fromStdString(Engine::KeyIdOf(key.PublicKeyText().toStdString()));
    if (!statement->validKeys.HasId(id.toStdString()))
    {
        throw Refusal({option, 0, 0,
                       QStringLiteral("does not say that the key %1 is valid, which signs the feed").arg(id),
                       QStringLiteral("sign with a key that is valid by it, or make another statement")});
    }
    auto const published = Engine::FindKeyStatement(content);
    if (!published && published.error().cause == Engine::ErrorCause::KeyStatementMalformed)
    {
        throw Refusal({name, 0, 0, QStringLiteral("has a key statement that is damaged or stands twice"),
                       QStringLiteral("remove every line with one")});
    }
    auto const before = published ? Engine::ParseKeyStatement(published->text) : std::nullopt;
    if (before && before->serial > statement->serial)
    {
        throw Refusal({option, 0, 0,
                       QStringLiteral("has the serial %1, and the published one has %2, which clients go on asking for")
                           .arg(statement->serial)
                           .arg(before->serial),
                       QStringLiteral("make a statement with a greater --serial")});
    }
    if (published)
    {
        return content.replace(published->offset, published->size, line);
    }
    return content + (content.endsWith('\n') ? "" : "\n") + line;
}

SignedFeedBytes SignFeed(QString const& name, QByteArray const& content, ISigner const& key, SigningTerms const& terms)
{
    SignedFeedBytes result;
    result.terms.serial = NextSerial(name, ReadChannel(name, content), terms);
    result.terms.expires = terms.now.addDays(terms.validDays);
    result.bytes = WithTerms(name, content, result.terms);
    if (!result.bytes.endsWith('\n'))
    {
        result.bytes += result.bytes.contains("\r\n") ? "\r\n" : "\n";
    }
    result.bytes += Engine::SignatureBlock(key.SignatureOf(result.bytes));

    // As a client will.
    auto const verified = Engine::VerifyFeed(result.bytes, {key.PublicKeyText().toStdString()});
    if (!verified || !Engine::ReadFeedValidity(ReadChannel(name, *verified)))
    {
        throw Refusal({name, 0, 0, QStringLiteral("clients would not take the signature"),
                       QStringLiteral("remove what looks like a signature from the feed's texts")});
    }
    return result;
}

QString TextOf(Engine::FeedValidity const& terms)
{
    return QStringLiteral("signed with serial %1, expires %2").arg(terms.serial).arg(MomentText(terms.expires));
}

} // namespace Pelnar::Publisher
