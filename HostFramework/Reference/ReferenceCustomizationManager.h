// ReferenceCustomizationManager.h: the customization service of the reference host framework. It returns the values of
// a record that a host fills itself or reads from a settings file.
//
//     Pelnar::App::Customization const record{"Notes", Pelnar::Core::Version(5, 9), "Pelnar", "Notes"};
//     auto const names = std::make_shared<Pelnar::App::ReferenceCustomizationManager>(record);
//
// Thread: the Qt main thread. Ownership: it holds its own copy of the record.
#pragma once

#include "HostFramework/ICustomizationManager.h"

#include <QString>

#include <string>

namespace Pelnar::App
{

/// The values that ICustomizationManager returns.
struct Customization
{
    std::string displayName;          ///< UTF-8
    Core::Version applicationVersion; ///< of the running application
    std::string bundleNameFirstPart;
    std::string bundleNameSecondPart;
};

/// Reads the record from the section [Application] of an ini file in UTF-8 with the keys DisplayName, Version,
/// BundleNameFirstPart and BundleNameSecondPart. Put text with a comma, a semicolon or a backslash in double quotes.
/// Throws std::runtime_error if the file cannot be read, a key is missing or empty, or Version is not a version. The
/// error's text names the file and the key.
PELNAR_EXPORT Customization ReadCustomization(QString const& iniPath);

/// Returns the values of a Customization.
class PELNAR_EXPORT ReferenceCustomizationManager : public ICustomizationManager
{
public:
    explicit ReferenceCustomizationManager(Customization const& customization);
    ~ReferenceCustomizationManager() override;

    std::string GetDisplayName() const override;
    Core::Version GetApplicationVersion() const override;
    std::string GetBundleNameFirstPart() const override;
    std::string GetBundleNameSecondPart() const override;

private:
    Customization m_customization;
};

} // namespace Pelnar::App
