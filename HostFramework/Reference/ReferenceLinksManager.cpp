#include "HostFramework/Reference/ReferenceLinksManager.h"

#include "HostFramework/Reference/SettingsFile_p.h"

namespace Pelnar::App
{

Links ReadLinks(QString const& iniPath)
{
    SettingsFile const settings(iniPath);
    Links links;
    for (auto const& [key, name] : LINK_KEY_NAMES)
    {
        QString const address = settings.Text(QStringLiteral("Links"), QString::fromStdString(name));
        if (!address.isEmpty())
        {
            links.emplace(key, address);
        }
    }
    return links;
}

ReferenceLinksManager::ReferenceLinksManager(Links const& links) : m_links(links) {}

ReferenceLinksManager::~ReferenceLinksManager() = default;

QString ReferenceLinksManager::GetLink(URLKeys key) const
{
    auto const found = m_links.find(key);
    return found == m_links.end() ? QString() : found->second;
}

} // namespace Pelnar::App
