// ICustomizationManager.h: the names and the version of the running application.
//
//     class NotesNames : public Pelnar::App::ICustomizationManager
//     {
//     public:
//         std::string GetDisplayName() const override { return "Notes"; }
//         Pelnar::Core::Version GetApplicationVersion() const override { return Pelnar::Core::Version(5, 9); }
//         // The bundle is "Pelnar Notes 5.app".
//         std::string GetBundleNameFirstPart() const override { return "Pelnar"; }
//         std::string GetBundleNameSecondPart() const override { return "Notes"; }
//     };
//
// Thread: the Qt main thread. Ownership: the application holds it by std::shared_ptr and lends it. The host implements
// this interface.
#pragma once

#include "HostFramework/Version.h"
#include "common/Export.h"

#include <string>

namespace Pelnar::App
{

class PELNAR_EXPORT ICustomizationManager
{
public:
    virtual ~ICustomizationManager() = default;

    /// The name shown to the user, in UTF-8.
    virtual std::string GetDisplayName() const = 0;
    /// The version of the running application.
    virtual Core::Version GetApplicationVersion() const = 0;
    /// The two words of the application bundle's name: "First Second.app", or "First Second N.app" if the major version
    /// N is at least 2.
    virtual std::string GetBundleNameFirstPart() const = 0;
    virtual std::string GetBundleNameSecondPart() const = 0;
};

} // namespace Pelnar::App
