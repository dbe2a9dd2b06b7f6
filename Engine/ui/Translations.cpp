#include "Engine/ui/Translations.h"

#include <QCoreApplication>
#include <QTranslator>

#include <array>

/// The library is linked statically, so its resources must be registered explicitly. The macro does not work in a
/// namespace.
static void InitTranslationResources()
{
    Q_INIT_RESOURCE(engine_translations);
}

namespace Pelnar::Engine
{
namespace
{

struct Translation
{
    QLocale::Language language;
    char const* name;
};

constexpr std::array TRANSLATIONS = {
    Translation{QLocale::Arabic, "ar"},        Translation{QLocale::German, "de"},
    Translation{QLocale::English, "en"},       Translation{QLocale::Spanish, "es"},
    Translation{QLocale::French, "fr"},        Translation{QLocale::Hebrew, "he"},
    Translation{QLocale::Italian, "it"},       Translation{QLocale::Japanese, "ja"},
    Translation{QLocale::Dutch, "nl"},         Translation{QLocale::Polish, "pl"},
    Translation{QLocale::Portuguese, "pt_BR"}, Translation{QLocale::Russian, "ru"},
    Translation{QLocale::Chinese, "zh_CN"},
};

/// The translation of one language; empty if it is missing. Brazilian Portuguese serves all Portuguese; simplified
/// Chinese does not serve traditional Chinese.
QString NameFor(QLocale const& language)
{
    for (Translation const& translation : TRANSLATIONS)
    {
        if (translation.language == language.language() && language.script() != QLocale::TraditionalChineseScript)
        {
            return QString::fromLatin1(translation.name);
        }
    }
    return {};
}

} // namespace

QString TranslationNameFor(QLocale const& locale)
{
    for (QString const& language : locale.uiLanguages())
    {
        QString const name = NameFor(QLocale(language));
        if (!name.isEmpty())
        {
            return name;
        }
    }
    return QStringLiteral("en");
}

void InstallTranslations(QLocale const& locale)
{
    QString const objectName = QStringLiteral("PelnarEngine_translator");
    QCoreApplication* const application = QCoreApplication::instance();
    // Deleting a translator uninstalls it.
    delete application->findChild<QTranslator*>(objectName, Qt::FindDirectChildrenOnly);

    InitTranslationResources();
    auto* const translator = new QTranslator(application);
    translator->setObjectName(objectName);
    // Not by locale: QTranslator would again consider other languages of the person's list.
    QString const file = QStringLiteral(":/pelnar/engine/translations/pelnar_engine_") + TranslationNameFor(locale);
    if (!translator->load(file))
    {
        qFatal("the library lacks its translation %s", qPrintable(file));
    }
    QCoreApplication::installTranslator(translator);
}

} // namespace Pelnar::Engine
