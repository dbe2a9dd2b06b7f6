#include "Publisher/choice/ClientInstallation.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "HostFramework/VersionText.h"

namespace Pelnar::Publisher
{

using App::Session::VersionFromStringNoexcept;

Core::Version WholeVersion(Core::Version const& version)
{
    return Core::Util::ShrinkVersion(version, Core::Version::COMPONENT_COUNT);
}

Core::Version WholeVersion(QString const& text)
{
    return WholeVersion(VersionFromStringNoexcept(text));
}

QString TextOf(Core::Version const& version)
{
    return Util::VersionToString(version, Util::VersionToStringDetail::PresentComponents, u"."_s);
}

Engine::Installation InstallationOf(Client const& client, Engine::Installation installation)
{
    installation.version = TextOf(client.localVersion);
    return installation;
}

int OrderOfTexts(QString const& textA, QString const& textB)
{
    Core::Version const a = VersionFromStringNoexcept(textA);
    Core::Version const b = VersionFromStringNoexcept(textB);
    if (!a.IsValid() || !b.IsValid() || App::Session::IsSameVersion(a, b))
    {
        return 0;
    }
    return App::Session::IsOlderVersion(a, b) ? -1 : 1;
}

Engine::Installation InstallationAmong(std::vector<Engine::FeedItem> const& items, Client const& client,
                                       Engine::Installation installation)
{
    Engine::Installation among = InstallationOf(client, std::move(installation));
    for (Engine::FeedItem const& item : items)
    {
        bool const isAsked = among.trustedKeys.isEmpty() && !item.trustedKeys.isEmpty();
        Core::Version const version = isAsked ? VersionFromStringNoexcept(item.versionString) : Core::Version();
        if (version.IsValid() && App::Session::IsSameVersion(version, client.localVersion))
        {
            among.trustedKeys = item.trustedKeys;
        }
    }
    among.stones = Engine::SteppingStonesOf(items, among, OrderOfTexts);
    return among;
}

Engine::PolicyVerdict PolicyOf(Engine::FeedItem const& item, Engine::Installation const& installation)
{
    return Engine::JudgePolicy(item, installation, OrderOfTexts);
}

} // namespace Pelnar::Publisher
