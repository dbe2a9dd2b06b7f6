// Translations.h: the languages of the engine's windows and of the update dialogs (contexts "PelnarEngine_…" and
// "SparkleUpdater"). The translations are compiled into the library.
// Thread: the Qt main thread, with an application object. Ownership: the application object owns the installed
// translators.
#pragma once

#include <QLocale>
#include <QString>

namespace Pelnar::Engine
{

/// The translation for the first of \a locale's preferred languages that has one; "en" if none has.
[[nodiscard]] QString TranslationNameFor(QLocale const& locale);

/// Installs the translation for \a locale in place of the previous one. Open windows keep their texts. The layout
/// direction of the application does not change: the engine's windows follow their own texts.
void InstallTranslations(QLocale const& locale);

} // namespace Pelnar::Engine
