// VersionText.h: versions from text and back.
//
//     using namespace Pelnar::Util;
//     Pelnar::Core::Version const version = VersionFromString(QStringLiteral("5.10"), QStringLiteral("."));
//     auto const detail = VersionToStringDetail::PresentComponents;
//     QString const name = VersionToString(version, detail, QStringLiteral("_")); // "5_10"
//
// Thread: any. Ownership: none. Declared here, provided by the host framework.
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

/// Parses one to four decimal components of 0 to 2147483647 each, separated by \a separator, into a version whose other
/// components are absent. Anything else (blanks, signs, letters, digits of other scripts, an empty component) throws
/// std::invalid_argument with a text that names \a text.
PELNAR_EXPORT Core::Version VersionFromString(QString const& text, QString const& separator);

/// The components that \a detail asks for, in decimal, joined by \a separator; empty for the invalid version.
PELNAR_EXPORT QString VersionToString(Core::Version const& version, VersionToStringDetail detail,
                                      QString const& separator);

} // namespace Pelnar::Util
