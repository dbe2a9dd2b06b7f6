// VersionText.h: converts versions from and to text.
//
//     using namespace Pelnar::Util;
//     Pelnar::Core::Version const version = VersionFromString(QStringLiteral("5.10"), QStringLiteral("."));
//     auto const detail = VersionToStringDetail::PresentComponents;
//     QString const name = VersionToString(version, detail, QStringLiteral("_")); // "5_10"
//
// The host framework provides the definitions.
#pragma once

#include "HostFramework/Version.h"
#include "common/Export.h"

#include <QString>

namespace Pelnar::Util
{

/// Which components VersionToString prints.
enum class VersionToStringDetail
{
    PresentComponents = 0, ///< those before the first absent one
};

/// Parses one to four decimal components of 0 to 2147483647 each, separated by \a separator. The other components of
/// the result are absent. Anything else (blanks, signs, letters, digits of other scripts, an empty component) throws
/// std::invalid_argument, whose text names \a text.
PELNAR_EXPORT Core::Version VersionFromString(QString const& text, QString const& separator);

/// Returns the components that \a detail selects, in decimal, joined by \a separator. Empty for the invalid version.
PELNAR_EXPORT QString VersionToString(Core::Version const& version, VersionToStringDetail detail,
                                      QString const& separator);

} // namespace Pelnar::Util
