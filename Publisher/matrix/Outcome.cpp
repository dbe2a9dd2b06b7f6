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
    Outcome outcome{chosen.versionString, UpdateTypeNameOf(chosen),
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
    Outcome outcome{
        json[u"version"_s].toString(), json[u"updateType"_s].toString(), json[u"deltaFrom"_s].toString(), {}, 0, {}};
    QJsonArray const rivals = json[u"rivals"_s].toArray();
    std::transform(rivals.begin(), rivals.end(), std::back_inserter(outcome.rivals),
                   [](QJsonValue const& rival) { return OutcomeOf(rival); });
    return outcome;
}

QString TextOf(Outcome const& outcome)
{
    if (!outcome.IsUpdate())
    {
        return u"none"_s;
    }
    QString text = outcome.version + u' ' + outcome.updateType;
    text += outcome.deltaFrom.isEmpty() ? QString() : u" from "_s + outcome.deltaFrom;
    for (Outcome const& rival : outcome.rivals)
    {
        text += u" or from "_s + rival.deltaFrom;
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
        {u"version"_s, outcome.version},
        {u"updateType"_s, outcome.updateType},
        {u"deltaFrom"_s, outcome.deltaFrom.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(outcome.deltaFrom)},
        {u"url"_s, outcome.url},
        {u"length"_s, double(outcome.length)},
    };
    QJsonArray rivals;
    for (Outcome const& rival : outcome.rivals)
    {
        rivals.append(JsonOf(rival));
    }
    if (!rivals.isEmpty())
    {
        object.insert(u"rivals"_s, rivals);
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
