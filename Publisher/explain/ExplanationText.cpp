#include "Publisher/explain/ExplanationText.h"

#include "Publisher/matrix/Outcome.h"

#include <QJsonArray>

#include <ostream>

namespace Pelnar::Publisher
{
namespace
{

using Engine::FeedItem;

QString AddressOf(FeedItem const& item)
{
    return item.fileUrl.toString(QUrl::FullyEncoded);
}

QJsonObject JsonOfExtensions(QVariantMap const& extensions)
{
    QJsonObject result;
    for (auto extension = extensions.cbegin(); extension != extensions.cend(); ++extension)
    {
        result.insert(extension.key(), extension.value().isValid() ? QJsonValue(extension.value().toString())
                                                                   : QJsonValue(QJsonValue::Null));
    }
    return result;
}

QJsonObject JsonOfItem(ItemExplanation const& explained)
{
    FeedItem const& item = *explained.item;
    QJsonObject result{
        {u"index"_s, explained.index},
        {u"title"_s, item.title},
        {u"version"_s, item.versionString},
        {u"url"_s, AddressOf(item)},
        {u"length"_s, double(item.contentLength)},
        {u"updateType"_s, UpdateTypeNameOf(item)},
        {u"verdict"_s, QLatin1String(explained.VerdictName())},
        {u"detail"_s, explained.detail},
        {u"extensions"_s, JsonOfExtensions(explained.extensions)},
    };
    if (item.isDelta)
    {
        result.insert(u"deltaFrom"_s, item.deltaFrom);
        return result;
    }
    QJsonArray deltas;
    for (ItemExplanation const& delta : explained.deltas)
    {
        deltas.append(JsonOfItem(delta));
    }
    result.insert(u"deltas"_s, deltas);
    return result;
}

Emphasis EmphasisOf(Standing standing)
{
    switch (standing)
    {
    case Standing::Chosen:
        return Emphasis::Good;
    case Standing::Rival:
        return Emphasis::Warning;
    case Standing::Lost:
        return Emphasis::None;
    case Standing::Refused:
    case Standing::LeftOut:
        return Emphasis::Bad;
    case Standing::NotAsked:
        return Emphasis::Dim;
    }
    return Emphasis::None;
}

QString SizeOf(FeedItem const& item)
{
    return u"%1 bytes"_s.arg(item.contentLength);
}

QString HeadOf(ItemExplanation const& explained)
{
    FeedItem const& item = *explained.item;
    QString const version = item.versionString.isEmpty() ? u"no version"_s : item.versionString;
    QString const name = item.isDelta ? u"delta %1, from %2"_s.arg(explained.index).arg(item.deltaFrom)
                                      : u"item %1"_s.arg(explained.index);
    QString const title = item.isDelta || item.title.isEmpty() ? QString() : u"  "_s + item.title;
    return u"%1: %2  %3  %4%5"_s.arg(name, version, UpdateTypeNameOf(item), SizeOf(item), title);
}

void PrintItem(ItemExplanation const& explained, QString const& indent, Console const& console)
{
    FeedItem const& item = *explained.item;
    QString const inner = indent + u"  "_s;
    std::ostream& stream = console.out.stream;
    stream << indent.toStdString()
           << console.out.Styled(explained.standing == Standing::Chosen ? Emphasis::Bold : Emphasis::None,
                                 HeadOf(explained))
           << '\n';
    QString const verdict = QLatin1String(explained.VerdictName());
    QString const detail = explained.detail.isEmpty() ? QString() : u": "_s + explained.detail;
    stream << inner.toStdString() << console.out.Styled(EmphasisOf(explained.standing), verdict + detail) << '\n';
    if (!item.fileUrl.isEmpty())
    {
        console.Print(inner + AddressOf(item));
    }
    for (auto extension = explained.extensions.cbegin(); extension != explained.extensions.cend(); ++extension)
    {
        QString const value = extension.value().isValid() ? extension.value().toString() : u"<NOT A STRING>"_s;
        console.Print(inner + extension.key() + u" = "_s + value);
    }
    for (ItemExplanation const& delta : explained.deltas)
    {
        PrintItem(delta, inner, console);
    }
}

QString AnswerOf(Explanation const& explanation)
{
    if (!explanation.choice.chosen)
    {
        return u"no update"_s;
    }
    FeedItem const& chosen = *explanation.choice.chosen;
    QString const place = u"item %1"_s.arg(explanation.chosenIndex);
    QString download = place;
    if (chosen.isDelta)
    {
        download = u"the delta from %1"_s.arg(chosen.deltaFrom);
        for (FeedItem const* const rival : explanation.choice.rivals)
        {
            download += u" or from %1"_s.arg(rival->deltaFrom);
        }
        download += u" of "_s + place;
    }
    return u"%1 as %2, %3, %4"_s.arg(
        chosen.versionString, UpdateTypeNameOf(chosen), download,
        explanation.choice.rivals.empty() ? SizeOf(chosen) : u"as their order decides, which no rule defines"_s);
}

} // namespace

void PrintExplanation(Explanation const& explanation, ExplainQuestion const& question, Console const& console)
{
    console.Print(
        u"%1: %2 for %3"_s.arg(question.feed, CountOf(explanation.items.size(), u"item"_s), question.platform));
    for (ItemExplanation const& item : explanation.items)
    {
        PrintItem(item, QString(), console);
    }
    QString const asked = u"%1 on system %2%3 is offered: "_s.arg(
        question.localVersion, question.systemVersion,
        question.previousAnswer == PreviousAnswer::DELTA ? u", after a delta answer,"_s : QString());
    console.out.stream << asked.toStdString()
                       << console.out.Styled(explanation.choice.chosen ? Emphasis::Good : Emphasis::Warning,
                                             AnswerOf(explanation))
                       << '\n';
}

QJsonObject JsonOf(Explanation const& explanation, ExplainQuestion const& question)
{
    QJsonValue chosen = JsonOf(OutcomeOf(explanation.choice));
    if (chosen.isObject())
    {
        QJsonObject answer = chosen.toObject();
        answer.insert(u"index"_s, explanation.chosenIndex);
        chosen = answer;
    }
    QJsonArray items;
    for (ItemExplanation const& item : explanation.items)
    {
        items.append(JsonOfItem(item));
    }
    return {
        {u"feed"_s, question.feed},
        {u"localVersion"_s, question.localVersion},
        {u"systemVersion"_s, question.systemVersion},
        {u"platform"_s, question.platform},
        {u"chosen"_s, chosen},
        {u"items"_s, items},
    };
}

} // namespace Pelnar::Publisher
