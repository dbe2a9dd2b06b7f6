// ReferenceLinksManager.h: the links service of the reference host framework. It returns the values of a table that a
// host fills itself or reads from a settings file.
//
//     Pelnar::App::Links const table{
//         {Pelnar::URLKeys::SPARKLE_APPCAST_URL, QStringLiteral("https://updates.example.com/appcast.xml")}};
//     auto const links = std::make_shared<Pelnar::App::ReferenceLinksManager>(table);
//
// Thread: the Qt main thread. Ownership: it holds its own copy of the table.
#pragma once

#include "HostFramework/ILinksManager.h"

#include <map>

namespace Pelnar::App
{

/// The address for each link key.
using Links = std::map<URLKeys, QString>;

/// Reads the table from the section [Links] of an ini file in UTF-8. The keys of the section are the names of the link
/// keys (SPARKLE_APPCAST_URL="https://…"); unknown names are ignored. Put an address with a comma, a semicolon or a
/// backslash in double quotes. Throws std::runtime_error if the file cannot be read; the error's text names the file.
PELNAR_EXPORT Links ReadLinks(QString const& iniPath);

/// Returns the addresses of a table of Links; an empty string for a key that the table does not have.
class PELNAR_EXPORT ReferenceLinksManager : public ILinksManager
{
public:
    explicit ReferenceLinksManager(Links const& links);
    ~ReferenceLinksManager() override;

    QString GetLink(URLKeys key) const override;

private:
    Links m_links;
};

} // namespace Pelnar::App
