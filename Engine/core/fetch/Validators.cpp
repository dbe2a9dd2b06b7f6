#include "Engine/core/fetch/Validators.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr int MAX_ENTITY_TAG_BYTES = 1024;
constexpr char WEAK_SIGN[] = "W/";

QByteArray WithoutSign(QByteArray const& tag)
{
    return tag.startsWith(WEAK_SIGN) ? tag.mid(2) : tag;
}

bool IsStrongEntityTag(QByteArray const& tag)
{
    return tag.size() >= 2 && tag.size() <= MAX_ENTITY_TAG_BYTES && tag.startsWith('"') && tag.endsWith('"') &&
           std::all_of(tag.begin() + 1, tag.end() - 1,
                       [](char character) {
                           return character != '"' && character != 0x7f && static_cast<unsigned char>(character) > ' ';
                       });
}

/// Parses the one date form that servers may send today; invalid for any other form.
QDateTime HttpDate(QByteArray const& text)
{
    QDateTime date =
        QLocale::c().toDateTime(QString::fromLatin1(text), QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
    date.setTimeSpec(Qt::UTC);
    return date;
}

/// A file could change twice within the second that the date names, unless this second was over.
bool IsStrongDate(QByteArray const& lastModified, QByteArray const& answered)
{
    QDateTime const modification = HttpDate(lastModified);
    QDateTime const answer = HttpDate(answered);
    return modification.isValid() && answer.isValid() && modification.secsTo(answer) >= 1;
}

bool IsDateUsable(QByteArray const& lastModified)
{
    return lastModified.isEmpty() || HttpDate(lastModified).isValid();
}

QByteArray StrongDate(HttpHead const& head)
{
    QByteArray const lastModified = head.OnlyValue("last-modified");
    return IsStrongDate(lastModified, head.OnlyValue("date")) ? lastModified : QByteArray();
}

} // namespace

Validators StrongValidators(HttpHead const& head)
{
    QByteArray const tag = head.OnlyValue("etag");
    return {IsStrongEntityTag(tag) ? tag : QByteArray(), StrongDate(head)};
}

Validators FeedValidators(HttpHead const& head)
{
    std::vector<QByteArray> const tags = head.Values("etag");
    if (tags.empty())
    {
        return {{}, StrongDate(head)};
    }
    bool const isUsable = tags.size() == 1 && IsStrongEntityTag(WithoutSign(tags.front()));
    return {isUsable ? tags.front() : QByteArray(), {}};
}

bool AreUsable(Validators const& validators)
{
    return (validators.entityTag.isEmpty() || IsStrongEntityTag(validators.entityTag)) &&
           IsDateUsable(validators.lastModified);
}

bool AreUsableForFeed(Validators const& validators)
{
    bool const isTagUsable = validators.entityTag.isEmpty() || IsStrongEntityTag(WithoutSign(validators.entityTag));
    return !validators.IsEmpty() && isTagUsable && IsDateUsable(validators.lastModified);
}

QByteArray const& PreferredValidator(Validators const& validators)
{
    return validators.entityTag.isEmpty() ? validators.lastModified : validators.entityTag;
}

bool IsSameTag(QByteArray const& a, QByteArray const& b)
{
    return WithoutSign(a) == WithoutSign(b);
}

} // namespace Pelnar::Engine
