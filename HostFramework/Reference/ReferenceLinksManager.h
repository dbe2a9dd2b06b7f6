// ReferenceLinksManager.h: the links service of the reference host framework, over a plain table that a host fills
// itself or reads from a settings file.
//
//     Pelnar::App::Links const table{
//         {Pelnar::URLKeys::SPARKLE_APPCAST_URL, QStringLiteral("https://updates.example.com/appcast.xml")}};
//     auto const links = std::make_shared<Pelnar::App::ReferenceLinksManager>(table);
//
// Thread: the Qt main thread. Ownership: holds its own copy of the table.
#pragma once

#include "HostFramework/ILinksManager.h"

#include <map>

namespace Pelnar::App
{

using Links = std::map<URLKeys, QString>;

/// Reads the table from the section [Links] of an ini file in UTF-8, whose keys are the names of the link keys
/// (SPARKLE_APPCAST_URL="https://…"); unknown names are left out. An address that holds a comma, a semicolon or a
/// backslash stands in double quotes. Throws std::runtime_error, whose text names the file, when it cannot be read.
PELNAR_EXPORT Links ReadLinks(QString const& iniPath);

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
