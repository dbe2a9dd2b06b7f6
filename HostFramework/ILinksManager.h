// ILinksManager.h: the addresses of the link keys.
//
//     class NotesLinks : public Pelnar::App::ILinksManager
//     {
//     public:
//         QString GetLink(Pelnar::URLKeys key) const override
//         {
//             return key == Pelnar::URLKeys::SPARKLE_APPCAST_URL
//                        ? QStringLiteral("https://updates.example.com/appcast.xml")
//                        : QString();
//         }
//     };
//
// Thread: the Qt main thread. Ownership: the application holds it by std::shared_ptr and lends it. The host implements
// this interface.
#pragma once

#include "common/Export.h"
#include "common/LinkKeys.h"

#include <QString>

namespace Pelnar::App
{

class PELNAR_EXPORT ILinksManager
{
public:
    virtual ~ILinksManager() = default;

    /// Returns the address for \a key, or an empty string. The updater asks only for URLKeys::SPARKLE_APPCAST_URL.
    virtual QString GetLink(URLKeys key) const = 0;
};

} // namespace Pelnar::App
