// UpdateCheckResult.h: the outcome of a check.
//
//     using Pelnar::App::UpdateCheckResult;
//     auto const isNewer = [](UpdateCheckResult result)
//     { return result == UpdateCheckResult::UpdateAvailable || result == UpdateCheckResult::MajorUpdateAvailable; };
//
// Thread: a plain value. Qt knows its type, so that a result from another thread is queued.
#pragma once

#include <QMetaType>

#include <cstdint>

namespace Pelnar::App
{

enum class UpdateCheckResult : std::int32_t
{
    None = 0,                 ///< no result; treated as NoUpdate
    NoUpdate = 1,             ///< nothing newer, or the check could not be started
    UpdateAvailable = 2,      ///< newer, with a major version that is not greater
    MajorUpdateAvailable = 3, ///< newer, with a greater major version
};

} // namespace Pelnar::App

Q_DECLARE_METATYPE(Pelnar::App::UpdateCheckResult)
