// UpdateType.h: the kinds of update package, their names and their order of preference. Plain C++, private to the
// session. Constants and pure functions.
#pragma once

#include <QList>
#include <QString>

#include <cstdint>

namespace Pelnar::App::Session
{

enum class UpdateType : std::int32_t
{
    UNKNOWN = 0,   ///< not classified; detection never returns it
    INSTALLER = 1, ///< the download's file name marks a guided or interactive installation
    BUNDLE = 2,    ///< any other full download
    DELTA = 3,     ///< a delta update
};

/// The name in every record; "Unknown UpdateType" for a value outside the four.
constexpr char const* UpdateTypeName(UpdateType type)
{
    switch (type)
    {
    case UpdateType::UNKNOWN:
        return "UNKNOWN";
    case UpdateType::INSTALLER:
        return "INSTALLER";
    case UpdateType::BUNDLE:
        return "BUNDLE";
    case UpdateType::DELTA:
        return "DELTA";
    }
    return "Unknown UpdateType";
}

/// Most preferred first. Deliberate: the two lists differ; a major update prefers its installer to a delta.
extern QList<UpdateType> const UPDATE_TYPE_PRIORITIES_FOR_MAJOR_UPDATE;
extern QList<UpdateType> const UPDATE_TYPE_PRIORITIES_FOR_MINOR_UPDATE;

/// The kind of a download: DELTA if \a isDelta; otherwise from its fully decoded file name. The markers may be at any
/// position in the name; their case counts.
UpdateType DetectUpdateType(bool isDelta, QString const& fileName);

} // namespace Pelnar::App::Session
