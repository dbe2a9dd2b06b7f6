#include "HostFramework/Reference/ReferenceCustomizationManager.h"

#include "HostFramework/Reference/SettingsFile_p.h"
#include "HostFramework/VersionText.h"

#include <stdexcept>

namespace Pelnar::App
{
namespace
{

QString const SECTION = QStringLiteral("Application");

} // namespace

Customization ReadCustomization(QString const& iniPath)
{
    SettingsFile const settings(iniPath);
    QString const versionKey = QStringLiteral("Version");
    QString const versionText = settings.RequiredText(SECTION, versionKey);
    Core::Version version;
    try
    {
        version = Util::VersionFromString(versionText, QStringLiteral("."));
    }
    catch (std::invalid_argument const&)
    {
        throw std::runtime_error(settings.Describe(SECTION, versionKey) + ": \"" + versionText.toStdString() +
                                 "\" is not a version: one to four numbers separated by \".\" are expected");
    }
    return {settings.RequiredText(SECTION, QStringLiteral("DisplayName")).toStdString(), version,
            settings.RequiredText(SECTION, QStringLiteral("BundleNameFirstPart")).toStdString(),
            settings.RequiredText(SECTION, QStringLiteral("BundleNameSecondPart")).toStdString()};
}

ReferenceCustomizationManager::ReferenceCustomizationManager(Customization const& customization)
    : m_customization(customization)
{
}

ReferenceCustomizationManager::~ReferenceCustomizationManager() = default;

std::string ReferenceCustomizationManager::GetDisplayName() const
{
    return m_customization.displayName;
}

Core::Version ReferenceCustomizationManager::GetApplicationVersion() const
{
    return m_customization.applicationVersion;
}

std::string ReferenceCustomizationManager::GetBundleNameFirstPart() const
{
    return m_customization.bundleNameFirstPart;
}

std::string ReferenceCustomizationManager::GetBundleNameSecondPart() const
{
    return m_customization.bundleNameSecondPart;
}

} // namespace Pelnar::App
