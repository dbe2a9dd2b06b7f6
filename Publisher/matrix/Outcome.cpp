#include "Publisher/matrix/Outcome.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include <algorithm>

namespace Pelnar::Publisher
{

Outcome OutcomeFor(FeedChooser& feed, Client const& client)
{
    Engine::FeedItem const* const chosen = feed.Chosen(client);
    if (!chosen)
    {
        return {};
    }
    return {chosen->versionString, QLatin1String(App::Session::UpdateTypeName(UpdateTypeOf(*chosen))),
            chosen->deltaFrom, chosen->fileUrl.toString(QUrl::FullyEncoded), chosen->contentLength};
}

QString TextOf(Outcome const& outcome)
{
    if (!outcome.IsUpdate())
    {
        return QStringLiteral("none");
    }
    QString const text = outcome.version + QLatin1Char(' ') + outcome.updateType;
    QString const from = outcome.deltaFrom.isEmpty() ? QString() : QStringLiteral(" from ") + outcome.deltaFrom;
    return text + from;
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
