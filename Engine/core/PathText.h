// PathText.h: paths as texts, and back. A path on Linux is bytes, of any kind: what is no UTF-8 in them becomes
// unpaired surrogates, U+DC80 to U+DCFF, of which no text has any.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <QString>

#include <string>

namespace Pelnar::Engine
{

QString PathText(std::string const& bytes);
/// The bytes of which PathText made the text; of any other text its UTF-8.
std::string PathBytes(QString const& text);

} // namespace Pelnar::Engine
