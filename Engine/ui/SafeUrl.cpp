#include "Engine/ui/SafeUrl.h"

#include "Engine/core/notes/ReleaseNotesLink.h"

namespace Pelnar::Engine
{

QUrl SafeUrl(QUrl const& address)
{
    std::optional<std::string> const safe = SafeLink(address.toEncoded().toStdString());
    return safe ? QUrl(QString::fromStdString(*safe), QUrl::StrictMode) : QUrl();
}

} // namespace Pelnar::Engine
