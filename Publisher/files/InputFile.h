// InputFile.h: a plain file that a person named, open for reading.
// Ownership: the descriptor is the object's.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <tuple>

namespace Pelnar::Publisher
{

/// What changes if somebody writes to a file or puts another in its place: device, number, size, and the seconds and
/// nanoseconds of the last change.
using FileMark = std::tuple<std::uint64_t, std::uint64_t, std::uint64_t, std::int64_t, std::int64_t>;

struct InputFile
{
    Engine::UniqueFd descriptor;
    QString name; ///< as the person typed it
    std::uint64_t size = 0;
    FileMark mark = {}; ///< when it was opened
};

/// True if there is a file or a folder at \a path, or behind the link there. Throws Refusal if the system cannot say.
[[nodiscard]] bool Exists(QString const& path);

/// Throws Refusal unless \a path is a plain file that can be read, or a link to one.
InputFile OpenInputFile(QString const& path);

/// The bytes of \a file. Throws Refusal with \a mend if there are more than \a maxBytes, and for a file that has not
/// as many bytes as the system says.
QByteArray ReadInputFile(InputFile const& file, std::uint64_t maxBytes, QString const& mend);

} // namespace Pelnar::Publisher
