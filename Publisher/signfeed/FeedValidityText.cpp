#include "Publisher/signfeed/FeedValidityText.h"

#include "Engine/core/feed/FeedParser.h"
#include "Publisher/Refusal.h"

#include <QXmlStreamReader>

namespace Pelnar::Publisher
{
namespace
{

constexpr char BYTE_ORDER_MARK[] = "\xEF\xBB\xBF";
constexpr int CHANNEL_DEPTH = 2;

/// A part of the text, in characters; start is -1 if it is absent.
struct Range
{
    int start = -1;
    int end = -1;
};

struct TermsPlaces
{
    int channelStart = -1; ///< after the channel's start tag
    Range serial;          ///< between the tags
    Range expires;
};

class TermsFinder
{
public:
    TermsFinder(QString const& name, QString const& text) : m_name(name), m_text(text), m_reader(text) {}

    TermsPlaces Find()
    {
        while (!m_reader.atEnd())
        {
            switch (m_reader.readNext())
            {
            case QXmlStreamReader::StartElement:
                ++m_depth;
                TakeStart();
                break;
            case QXmlStreamReader::EndElement:
                TakeEnd();
                --m_depth;
                break;
            case QXmlStreamReader::NoToken:
            case QXmlStreamReader::Invalid:
            case QXmlStreamReader::StartDocument:
            case QXmlStreamReader::EndDocument:
            case QXmlStreamReader::Characters:
            case QXmlStreamReader::Comment:
            case QXmlStreamReader::DTD:
            case QXmlStreamReader::EntityReference:
            case QXmlStreamReader::ProcessingInstruction:
                break;
            }
        }
        bool const hasChannel = m_places.channelStart > 1 && m_text.at(m_places.channelStart - 2) != u'/';
        if (!hasChannel)
        {
            throw Refusal({m_name, 1, 0, u"has no channel for a serial"_s,
                           u"write <rss><channel> and </channel></rss> around the items"_s});
        }
        return m_places;
    }

private:
    void TakeStart()
    {
        int const offset = int(m_reader.characterOffset());
        if (m_depth == CHANNEL_DEPTH)
        {
            bool const isChannel = m_reader.namespaceUri().isEmpty() && m_reader.name() == "channel"_l;
            m_isInChannel = isChannel;
            m_places.channelStart = isChannel && m_places.channelStart < 0 ? offset : m_places.channelStart;
            return;
        }
        if (m_open)
        {
            throw Refusal({m_name, int(m_reader.lineNumber()), 0, u"the serial or the expiry contains elements"_s,
                           u"leave only text in these elements"_s});
        }
        bool const isOwn = m_isInChannel && m_depth == CHANNEL_DEPTH + 1 &&
                           m_reader.namespaceUri() == QLatin1String(Engine::OWN_FEED_NAMESPACE);
        Range* const range = !isOwn                           ? nullptr
                             : m_reader.name() == "serial"_l  ? &m_places.serial
                             : m_reader.name() == "expires"_l ? &m_places.expires
                                                              : nullptr;
        if (range && (range->start >= 0 || m_text.at(offset - 2) == u'/'))
        {
            throw Refusal({m_name, int(m_reader.lineNumber()), 0,
                           u"the element \"%1\" appears twice or is empty"_s.arg(m_reader.name()), u"remove it"_s});
        }
        if (range)
        {
            range->start = offset;
            m_open = range;
        }
    }

    void TakeEnd()
    {
        if (m_open)
        {
            m_open->end = m_text.lastIndexOf(u'<', int(m_reader.characterOffset()) - 1);
            m_open = nullptr;
        }
    }

    QString const& m_name;
    QString const& m_text;
    QXmlStreamReader m_reader;
    TermsPlaces m_places;
    int m_depth = 0;
    bool m_isInChannel = false;
    Range* m_open = nullptr; ///< the element that is being read
};

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

} // namespace

QString MomentText(QDateTime const& moment)
{
    return moment.toUTC().toString(u"yyyy-MM-dd'T'HH:mm:ss'Z'"_s);
}

QByteArray WithTerms(QString const& name, QByteArray const& content, Engine::FeedValidity const& terms)
{
    bool const hasMark = content.startsWith(BYTE_ORDER_MARK);
    QString text = QString::fromUtf8(content.constData(), content.size());
    if ((hasMark ? BYTE_ORDER_MARK + text.toUtf8() : text.toUtf8()) != content || content.contains('\0'))
    {
        throw Refusal({name, 1, 0, u"is not UTF-8; only UTF-8 feeds can be signed"_s, u"convert the feed to UTF-8"_s});
    }
    TermsPlaces const places = TermsFinder(name, text).Find();
    QString const gap = GapBehind(text, places.channelStart);
    QString const serial = QString::number(terms.serial);
    QString const expires = MomentText(terms.expires);
    // From the end of the text, so that earlier places stay valid.
    auto const replace = [&text](Range range, QString const& value)
    { text.replace(range.start, range.end - range.start, value); };
    bool const isSerialLast = places.serial.start > places.expires.start;
    Range const& last = isSerialLast ? places.serial : places.expires;
    Range const& first = isSerialLast ? places.expires : places.serial;
    if (last.start >= 0)
    {
        replace(last, isSerialLast ? serial : expires);
    }
    if (first.start >= 0)
    {
        replace(first, isSerialLast ? expires : serial);
    }
    QString const added = (places.serial.start < 0 ? gap + ElementOf("serial", serial) : QString()) +
                          (places.expires.start < 0 ? gap + ElementOf("expires", expires) : QString());
    text.insert(places.channelStart, added);
    return hasMark ? BYTE_ORDER_MARK + text.toUtf8() : text.toUtf8();
}

} // namespace Pelnar::Publisher
