// InputFile.h: a plain file that a person named, open for reading.
// Ownership: the descriptor is the object's.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace Pelnar::Publisher
{

struct InputFile
{
    Engine::UniqueFd descriptor;
    QString name; ///< as the person typed it
    std::uint64_t size = 0;
};

/// Throws Refusal unless \a path is a plain file that can be read, or a link to one.
InputFile OpenInputFile(QString const& path);

/// The bytes of \a file. Throws Refusal with \a mend if there are more than \a maxBytes.
QByteArray ReadInputFile(InputFile const& file, std::uint64_t maxBytes, QString const& mend);

} // namespace Pelnar::Publisher
