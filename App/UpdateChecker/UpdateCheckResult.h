// UpdateCheckResult.h: the result of a check.
//
//     using Pelnar::App::UpdateCheckResult;
//     auto const isNewer = [](UpdateCheckResult result)
//     { return result == UpdateCheckResult::UpdateAvailable || result == UpdateCheckResult::MajorUpdateAvailable; };
//
// The type is registered with Qt, so a result from another thread can be queued.
#pragma once

#include <QMetaType>

#include <cstdint>

namespace Pelnar::App
{

enum class UpdateCheckResult : std::int32_t
{
    None = 0,                 ///< no result; treated as NoUpdate
    NoUpdate = 1,             ///< no newer version, or the check could not start
    UpdateAvailable = 2,      ///< a newer version with the same or a lower major version
    MajorUpdateAvailable = 3, ///< a newer version with a greater major version
};

} // namespace Pelnar::App

Q_DECLARE_METATYPE(Pelnar::App::UpdateCheckResult)
