#include "Publisher/matrix/Outcome.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>

namespace Pelnar::Publisher
{

Outcome OutcomeOf(FeedChoice const& choice)
{
    if (!choice.chosen)
    {
        return {};
    }
    Engine::FeedItem const& chosen = *choice.chosen;
    Outcome outcome{chosen.versionString, QLatin1String(App::Session::UpdateTypeName(UpdateTypeOf(chosen))),
                    chosen.deltaFrom,     chosen.fileUrl.toString(QUrl::FullyEncoded),
                    chosen.contentLength, {}};
    for (Engine::FeedItem const* const rival : choice.rivals)
    {
        outcome.rivals.push_back(OutcomeOf(FeedChoice{rival, nullptr, {}, {}}));
    }
    return outcome;
}

Outcome OutcomeOf(QJsonValue const& json)
{
    Outcome outcome{json[QStringLiteral("version")].toString(),
                    json[QStringLiteral("updateType")].toString(),
                    json[QStringLiteral("deltaFrom")].toString(),
                    {},
                    0,
                    {}};
    QJsonArray const rivals = json[QStringLiteral("rivals")].toArray();
    std::transform(rivals.begin(), rivals.end(), std::back_inserter(outcome.rivals),
                   [](QJsonValue const& rival) { return OutcomeOf(rival); });
    return outcome;
}

QString TextOf(Outcome const& outcome)
{
    if (!outcome.IsUpdate())
    {
        return QStringLiteral("none");
    }
    QString text = outcome.version + QLatin1Char(' ') + outcome.updateType;
    text += outcome.deltaFrom.isEmpty() ? QString() : QStringLiteral(" from ") + outcome.deltaFrom;
    for (Outcome const& rival : outcome.rivals)
    {
        text += QStringLiteral(" or from ") + rival.deltaFrom;
    }
    return text;
}

QJsonValue JsonOf(Outcome const& outcome)
{
    if (!outcome.IsUpdate())
    {
        return QJsonValue::Null;
    }
    QJsonObject object{
        {QStringLiteral("version"), outcome.version},
        {QStringLiteral("updateType"), outcome.updateType},
        {QStringLiteral("deltaFrom"),
         outcome.deltaFrom.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(outcome.deltaFrom)},
        {QStringLiteral("url"), outcome.url},
        {QStringLiteral("length"), double(outcome.length)},
    };
    QJsonArray rivals;
    for (Outcome const& rival : outcome.rivals)
    {
        rivals.append(JsonOf(rival));
    }
    if (!rivals.isEmpty())
    {
        object.insert(QStringLiteral("rivals"), rivals);
    }
    return object;
}

std::vector<NamedVersion> VersionsOfFeed(std::vector<Engine::FeedItem> const& items)
{
    std::vector<NamedVersion> versions;
    auto const add = [&](QString const& text)
    {
        Core::Version const version = App::Session::VersionFromStringNoexcept(text);
        if (version.IsValid())
        {
            versions.push_back({text, version});
        }
    };
    for (Engine::FeedItem const& item : items)
    {
        add(item.versionString);
        for (Engine::FeedItem const& delta : item.deltas)
        {
            add(delta.deltaFrom);
        }
    }
    std::stable_sort(versions.begin(), versions.end(),
                     [](NamedVersion const& a, NamedVersion const& b)
                     { return App::Session::IsOlderVersion(a.version, b.version); });
    versions.erase(std::unique(versions.begin(), versions.end(),
                               [](NamedVersion const& a, NamedVersion const& b)
                               { return App::Session::IsSameVersion(a.version, b.version); }),
                   versions.end());
    return versions;
}

} // namespace Pelnar::Publisher
