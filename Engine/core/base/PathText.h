// PathText.h: converts paths to texts and back. A path on Linux is any sequence of bytes. Bytes that are not UTF-8
// become unpaired surrogates, U+DC80 to U+DCFF, which no text contains. Pure functions.
#pragma once

#include <QString>

#include <string>

namespace Pelnar::Engine
{

QString PathText(std::string const& bytes);
/// The bytes from which PathText made the text; for any other text its UTF-8.
std::string PathBytes(QString const& text);

/// A path under which Qt's file classes find the folder \a path, which is open at \a folderFd. They find only folders
/// whose path is text in the locale's encoding.
QString PathForQt(int folderFd, QString const& path);

} // namespace Pelnar::Engine
