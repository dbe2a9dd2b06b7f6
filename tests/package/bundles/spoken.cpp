// spoken.cpp: prints where Qt searches for its translations, and one of Qt's words in German.

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTextStream>
#include <QTranslator>

int main(int argc, char** argv)
{
    QCoreApplication const application(argc, argv);
    QString const folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    QTranslator translator;
    bool const isLoaded =
        translator.load(QLocale(QLocale::German), QStringLiteral("qtbase"), QStringLiteral("_"), folder);
    QCoreApplication::installTranslator(&translator);
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << isLoaded << '\n' << folder << '\n' << QCoreApplication::translate("QPlatformTheme", "Cancel") << '\n';
    return 0;
}
