#include "Publisher/signfeed/FeedSigner.h"

#include "Engine/core/check/KeyStatement.h"
#include "Engine/core/feed/SignedFeed.h"
#include "Publisher/FeedSource.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/FeedText.h"
#include "Publisher/signfeed/SigningClock.h"

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

Engine::FeedContent ReadAsClient(QString const& name, QByteArray const& content)
{
    return ParseAsClient(name, content, {}, Engine::FeedPlatform::Linux, u"correct the feed; clients cannot read it"_s);
}

/// A time in the form that clients read.
QString MomentText(QDateTime const& moment)
{
    return moment.toUTC().toString(Qt::ISODate);
}

/// The serial that the new one must exceed.
qint64 PublishedSerial(Engine::FeedChannel const& channel)
{
    return channel.serials.size() == 1 ? Engine::FeedSerial(channel.serials.front()) : 0;
}

qint64 NextSerial(QString const& name, Engine::FeedContent const& content, SigningTerms const& terms,
                  QDateTime const& now, Console const& console)
{
    qint64 const published = PublishedSerial(content.channel);
    if (terms.serial && *terms.serial <= published)
    {
        throw Refusal({name, u"already has the serial %1, and the new one must be greater"_s.arg(published),
                       u"give a greater --serial, or leave the option out"_s});
    }
    if (!terms.serial && published == std::numeric_limits<qint64>::max())
    {
        throw Refusal(
            {name, u"has the greatest possible serial"_s,
             u"clients accept another feed only once a key statement revokes the key that signed this one"_s});
    }
    CheckClock(name, content, {published, terms.serial.has_value()}, now, console);
    // At least the current time, so that a feed that is made again from nothing has a higher serial than the published
    // one.
    return terms.serial ? *terms.serial : std::max(published + 1, now.toSecsSinceEpoch());
}

std::vector<XmlElement const*> ChannelsIn(XmlElement const& document)
{
    std::vector<XmlElement const*> channels;
    for (XmlElement const& top : document.children)
    {
        for (XmlElement const& channel : top.children)
        {
            if (channel.name.IsPlain("channel"))
            {
                channels.push_back(&channel);
            }
        }
    }
    return channels;
}

/// The only element with the name \a term in \a channels; null if no element has it. Throws Refusal if it cannot be
/// replaced.
XmlElement const* FindTerm(QString const& name, std::vector<XmlElement const*> const& channels, char const* term)
{
    XmlElement const* found = nullptr;
    for (XmlElement const* const channel : channels)
    {
        for (XmlElement const& child : channel->children)
        {
            if (!child.name.IsOwn(term))
            {
                continue;
            }
            if (found || child.IsSingleTag())
            {
                throw Refusal({name, child.place.line, 0,
                               u"the element \"%1\" appears twice or is empty"_s.arg(QLatin1String(term)),
                               u"remove it"_s});
            }
            if (!child.children.empty())
            {
                throw Refusal({name, child.place.line, 0,
                               u"the element \"%1\" contains elements"_s.arg(QLatin1String(term)),
                               u"leave only text in it"_s});
            }
            found = &child;
        }
    }
    return found;
}

/// The text between two children of the channel: a line feed and the blanks before the first child, or nothing.
QString GapBehind(QString const& text, int offset)
{
    int end = offset;
    while (end < text.size() && text.at(end).isSpace())
    {
        ++end;
    }
    QString const blanks = text.mid(offset, end - offset);
    int const lastLine = blanks.lastIndexOf(u'\n');
    int const lineEnd = lastLine > 0 && blanks.at(lastLine - 1) == u'\r' ? lastLine - 1 : lastLine;
    return lastLine < 0 ? QString() : blanks.mid(lineEnd);
}

QString ElementOf(char const* name, QString const& value)
{
    return u"<pelnar:%1 xmlns:pelnar=\"%2\">%3</pelnar:%1>"_s.arg(QLatin1String(name),
                                                                  QLatin1String(Engine::OWN_FEED_NAMESPACE), value);
}

/// Returns \a content with these values in its channel: in the existing elements, or in new ones at the channel's
/// start. Throws Refusal if the feed is not UTF-8 or has no channel, and if an element cannot be replaced.
QByteArray WithTerms(QString const& name, QByteArray const& content, Engine::FeedValidity const& terms)
{
    FeedText text(name, content);
    XmlElement const document = ReadFeedDocument(content);
    std::vector<XmlElement const*> const channels = ChannelsIn(document);
    if (channels.empty() || channels.front()->IsSingleTag())
    {
        throw Refusal({name, 1, 0, u"has no channel for a serial"_s,
                       u"write <rss><channel> and </channel></rss> around the items"_s});
    }
    int const start = channels.front()->content.start;
    QString const gap = GapBehind(text.Original(), start);
    auto const put = [&](char const* term, QString const& value)
    {
        XmlElement const* const known = FindTerm(name, channels, term);
        text.Replace(known ? known->content : TextRange{start, start}, known ? value : gap + ElementOf(term, value));
    };
    put("serial", QString::number(terms.serial));
    put("expires", MomentText(terms.expires));
    return text.Bytes();
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
                       u"has a signature that is not alone on the last line, or is damaged"_s,
                       u"find out what changed the feed, and remove every line with a signature"_s});
    }
    bool const isOurs = Engine::VerifyFeed(bytes, {key.PublicKeyText().toStdString()}).has_value();
    if (!isOurs && changed == ChangedFeed::Refused)
    {
        throw Refusal({name, LineOf(bytes, feed.blockOffset), 0,
                       u"was changed after it was signed, or was signed by another key"_s,
                       u"give the key that signed it (during a change of keys, the new one is --second-key of "
                       "generate); or check the changes, and use sign-feed --accept-changes if they are right"_s});
    }
    return {bytes.left(feed.contentBytes), true};
}

QByteArray WithKeyStatement(QString const& name, QByteArray content, QString const& statementFile, ISigner const& key)
{
    constexpr std::uint64_t MOST_LINE_BYTES = 64 * 1024;
    QByteArray const line =
        ReadInputFile(OpenInputFile(statementFile), MOST_LINE_BYTES, u"give the statement's file"_s);
    auto const given = Engine::FindKeyStatement(line);
    auto const statement = given ? Engine::ParseKeyStatement(given->text) : std::nullopt;
    QString const option = u"--key-statement"_s;
    if (!statement || given->size != line.size())
    {
        throw Refusal(
            {option, u"is not a key statement"_s, u"give the file with the one line that \"keys state\" printed"_s});
    }
    QString const id = QString::fromStdString(Engine::KeyIdOf(key.PublicKeyText().toStdString()));
    if (!statement->validKeys.HasId(id.toStdString()))
    {
        throw Refusal({option, u"does not list the key %1, which signs the feed, as valid"_s.arg(id),
                       u"sign with a key that it lists as valid, or make another statement"_s});
    }
    auto const published = Engine::FindKeyStatement(content);
    if (!published && published.error().cause == Engine::ErrorCause::KeyStatementMalformed)
    {
        throw Refusal(
            {name, u"has a key statement that is damaged or appears twice"_s, u"remove every line with a statement"_s});
    }
    auto const before = published ? Engine::ParseKeyStatement(published->text) : std::nullopt;
    if (before && before->serial > statement->serial)
    {
        throw Refusal(
            {option,
             u"has the serial %1, but the published one has %2, and clients refuse a lower one"_s.arg(statement->serial)
                 .arg(before->serial),
             u"make a statement with a greater --serial"_s});
    }
    if (published)
    {
        return content.replace(published->offset, published->size, line);
    }
    return content + (content.endsWith('\n') ? "" : "\n") + line;
}

SignedFeedBytes SignFeed(QString const& name, QByteArray const& content, ISigner const& key, SigningTerms const& terms,
                         Console const& console)
{
    QDateTime const now = QDateTime::currentDateTimeUtc();
    SignedFeedBytes result;
    result.terms.serial = NextSerial(name, ReadAsClient(name, content), terms, now, console);
    result.terms.expires = now.addDays(terms.validDays);
    result.bytes = WithTerms(name, content, result.terms);
    if (!result.bytes.endsWith('\n'))
    {
        result.bytes += result.bytes.contains("\r\n") ? "\r\n" : "\n";
    }
    result.bytes += Engine::SignatureBlock(key.SignatureOf(result.bytes));

    // With the code of clients.
    auto const verified = Engine::VerifyFeed(result.bytes, {key.PublicKeyText().toStdString()});
    if (!verified || !Engine::ReadFeedValidity(ReadAsClient(name, *verified).channel))
    {
        throw Refusal({name, u"clients would not accept the signature"_s,
                       u"remove text that looks like a signature from the feed"_s});
    }
    return result;
}

QString TextOf(Engine::FeedValidity const& terms)
{
    return u"signed with serial %1, expires %2"_s.arg(terms.serial).arg(MomentText(terms.expires));
}

} // namespace Pelnar::Publisher
