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

QString TypeName(App::Session::UpdateType type)
{
    return QLatin1String(App::Session::UpdateTypeName(type));
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
        {QStringLiteral("index"), explained.index},
        {QStringLiteral("title"), item.title},
        {QStringLiteral("version"), item.versionString},
        {QStringLiteral("url"), AddressOf(item)},
        {QStringLiteral("length"), double(item.contentLength)},
        {QStringLiteral("updateType"), TypeName(explained.updateType)},
        {QStringLiteral("verdict"), QLatin1String(explained.VerdictName())},
        {QStringLiteral("detail"), explained.detail},
        {QStringLiteral("extensions"), JsonOfExtensions(explained.extensions)},
    };
    if (item.isDelta)
    {
        result.insert(QStringLiteral("deltaFrom"), item.deltaFrom);
        return result;
    }
    QJsonArray deltas;
    for (ItemExplanation const& delta : explained.deltas)
    {
        deltas.append(JsonOfItem(delta));
    }
    result.insert(QStringLiteral("deltas"), deltas);
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
    return QStringLiteral("%1 bytes").arg(item.contentLength);
}

QString HeadOf(ItemExplanation const& explained)
{
    FeedItem const& item = *explained.item;
    QString const version = item.versionString.isEmpty() ? QStringLiteral("no version") : item.versionString;
    QString const name = item.isDelta ? QStringLiteral("delta %1, from %2").arg(explained.index).arg(item.deltaFrom)
                                      : QStringLiteral("item %1").arg(explained.index);
    QString const title = item.isDelta || item.title.isEmpty() ? QString() : QStringLiteral("  ") + item.title;
    return QStringLiteral("%1: %2  %3  %4%5").arg(name, version, TypeName(explained.updateType), SizeOf(item), title);
}

void PrintItem(ItemExplanation const& explained, QString const& indent, Console const& console)
{
    FeedItem const& item = *explained.item;
    QString const inner = indent + QStringLiteral("  ");
    std::ostream& stream = console.out.stream;
    stream << indent.toStdString()
           << console.out.Styled(explained.standing == Standing::Chosen ? Emphasis::Bold : Emphasis::None,
                                 Printable(HeadOf(explained)))
           << '\n';
    QString const verdict = QLatin1String(explained.VerdictName());
    QString const detail = explained.detail.isEmpty() ? QString() : QStringLiteral(": ") + Printable(explained.detail);
    stream << inner.toStdString() << console.out.Styled(EmphasisOf(explained.standing), verdict + detail) << '\n';
    if (!item.fileUrl.isEmpty())
    {
        console.Print(inner + AddressOf(item));
    }
    for (auto extension = explained.extensions.cbegin(); extension != explained.extensions.cend(); ++extension)
    {
        QString const value =
            extension.value().isValid() ? extension.value().toString() : QStringLiteral("<NOT A STRING>");
        console.Print(Printable(inner + extension.key() + QStringLiteral(" = ") + value));
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
        return QStringLiteral("no update");
    }
    FeedItem const& chosen = *explanation.choice.chosen;
    QString const place = QStringLiteral("item %1").arg(explanation.chosenIndex);
    QString download = place;
    if (chosen.isDelta)
    {
        download = QStringLiteral("the delta from %1").arg(chosen.deltaFrom);
        for (FeedItem const* const rival : explanation.choice.rivals)
        {
            download += QStringLiteral(" or from %1").arg(rival->deltaFrom);
        }
        download += QStringLiteral(" of ") + place;
    }
    return QStringLiteral("%1 as %2, %3, %4")
        .arg(chosen.versionString, TypeName(UpdateTypeOf(chosen)), download,
             explanation.choice.rivals.empty() ? SizeOf(chosen)
                                               : QStringLiteral("as their order decides, which no rule defines"));
}

} // namespace

void PrintExplanation(Explanation const& explanation, ExplainQuestion const& question, Console const& console)
{
    console.Print(Printable(
        QStringLiteral("%1: %2 for %3")
            .arg(question.feed, CountOf(explanation.items.size(), QStringLiteral("item")), question.platform)));
    for (ItemExplanation const& item : explanation.items)
    {
        PrintItem(item, QString(), console);
    }
    QString const asked =
        QStringLiteral("%1 on system %2%3 is offered: ")
            .arg(question.localVersion, question.systemVersion,
                 question.previousAnswer == PreviousAnswer::DELTA ? QStringLiteral(", after a delta answer,")
                                                                  : QString());
    console.out.stream << asked.toStdString()
                       << console.out.Styled(explanation.choice.chosen ? Emphasis::Good : Emphasis::Warning,
                                             Printable(AnswerOf(explanation)))
                       << '\n';
}

QJsonObject JsonOf(Explanation const& explanation, ExplainQuestion const& question)
{
    QJsonValue chosen = JsonOf(OutcomeOf(explanation.choice));
    if (chosen.isObject())
    {
        QJsonObject answer = chosen.toObject();
        answer.insert(QStringLiteral("index"), explanation.chosenIndex);
        chosen = answer;
    }
    QJsonArray items;
    for (ItemExplanation const& item : explanation.items)
    {
        items.append(JsonOfItem(item));
    }
    return {
        {QStringLiteral("feed"), question.feed},
        {QStringLiteral("localVersion"), question.localVersion},
        {QStringLiteral("systemVersion"), question.systemVersion},
        {QStringLiteral("platform"), question.platform},
        {QStringLiteral("chosen"), chosen},
        {QStringLiteral("items"), items},
    };
}

} // namespace Pelnar::Publisher
