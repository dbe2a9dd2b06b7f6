// Every text of the windows and of the update dialogs, in every language.

#include "Engine/ui/Translations.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/feed/FeedWalker.h"
#include "Engine/ui/EngineWindow.h"
#include "tests/engine_ui/WindowsFixture.h"
#include "tests/support/EveryFault.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

#include <map>
#include <set>

namespace Pelnar::Testing
{
namespace
{

using namespace Engine;

QString const FOLDER = QStringLiteral(PELNAR_SOURCE_FOLDER "/translations/");

struct Message
{
    QString key; ///< context, source and comment
    QString source;
    QStringList translations;
    bool isPlural = false;
    bool isFinished = true;
};

/// Such as "de" or "pt_BR", including "en".
QStringList NamesInTheFolder()
{
    return QDir(FOLDER)
        .entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name)
        .replaceInStrings(QRegularExpression(QStringLiteral("^pelnar_engine_(.*)\\.ts$")), QStringLiteral("\\1"));
}

std::vector<Message> ReadMessages(QString const& path)
{
    std::vector<Message> messages;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd())
    {
        if (xml.readNext() != QXmlStreamReader::StartElement)
        {
            continue;
        }
        QStringRef const name = xml.name();
        if (name == QLatin1String("name"))
        {
            context = xml.readElementText();
        }
        else if (name == QLatin1String("message"))
        {
            messages.emplace_back();
            messages.back().isPlural = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
        }
        else if (name == QLatin1String("source"))
        {
            messages.back().source = xml.readElementText();
            messages.back().key = context + QLatin1Char('|') + messages.back().source;
        }
        else if (name == QLatin1String("comment"))
        {
            messages.back().key += QLatin1Char('|') + xml.readElementText();
        }
        else if (name == QLatin1String("translation"))
        {
            messages.back().isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!messages.back().isPlural)
            {
                messages.back().translations += xml.readElementText();
            }
        }
        else if (name == QLatin1String("numerusform"))
        {
            messages.back().translations += xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return messages;
}

std::set<QString> KeysOf(std::vector<Message> const& messages)
{
    std::set<QString> keys;
    for (Message const& message : messages)
    {
        keys.insert(message.key);
    }
    return keys;
}

std::multiset<QString> PlaceholdersOf(QString const& text)
{
    static QRegularExpression const PLACEHOLDER(QStringLiteral("%(?:\\d|L?n)"));
    std::multiset<QString> placeholders;
    for (auto match = PLACEHOLDER.globalMatch(text); match.hasNext();)
    {
        placeholders.insert(match.next().captured());
    }
    return placeholders;
}

QString FileOf(QString const& name)
{
    return FOLDER + QStringLiteral("pelnar_engine_") + name + QStringLiteral(".ts");
}

/// Of every failure, with its English text.
std::map<QString, Sentence> EverySentence()
{
    std::vector<Sentence> sentences;
    for (ErrorCause const cause : EveryCause())
    {
        EngineError const error = MakeError(cause);
        sentences.push_back(error.sentence);
        sentences.push_back(AsDownloadError(error).sentence);
        if (char const* const line = EntryOf(cause).lineSentence)
        {
            sentences.push_back(Sentence(line, {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
        }
    }
    for (UpdateFault const fault : EveryUpdateFault())
    {
        sentences.push_back(MakeFaultError(fault).sentence);
    }
    std::map<QString, Sentence> byText;
    for (Sentence const& sentence : sentences)
    {
        byText.emplace(QString::fromLatin1(sentence.Source()), sentence);
    }
    return byText;
}

class Languages : public WindowsFixture, public ::testing::WithParamInterface<std::string>
{
protected:
    static QString Name() { return QString::fromStdString(GetParam()); }
    static bool IsRightToLeft() { return Name() == QLatin1String("ar") || Name() == QLatin1String("he"); }
};

std::vector<std::string> AllLanguages()
{
    std::vector<std::string> names;
    for (QString const& name : NamesInTheFolder())
    {
        names.push_back(name.toStdString());
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Translations, Languages, ::testing::ValuesIn(AllLanguages()),
                         [](::testing::TestParamInfo<std::string> const& info) { return info.param; });

TEST_P(Languages, HasEveryTextFinishedWithItsPlaceholders)
{
    std::map<QString, int> const pluralForms = {{QStringLiteral("ar"), 6},
                                                {QStringLiteral("ja"), 1},
                                                {QStringLiteral("zh_CN"), 1},
                                                {QStringLiteral("pl"), 3},
                                                {QStringLiteral("ru"), 3}};
    auto const forms = pluralForms.find(Name());
    std::vector<Message> const messages = ReadMessages(FileOf(Name()));
    for (Message const& message : messages)
    {
        EXPECT_TRUE(message.isFinished) << qPrintable(message.key);
        EXPECT_EQ(message.translations.size(), !message.isPlural            ? 1
                                               : forms == pluralForms.end() ? 2
                                                                            : forms->second)
            << qPrintable(message.key);
        std::multiset<QString> const wanted = PlaceholdersOf(message.source);
        bool isNumberSeen = false;
        for (QString const& translation : message.translations)
        {
            EXPECT_FALSE(translation.trimmed().isEmpty()) << qPrintable(message.key);
            isNumberSeen = isNumberSeen || PlaceholdersOf(translation) == wanted;
            // A language may write "one" and "two" as words.
            EXPECT_TRUE(message.isPlural || PlaceholdersOf(translation) == wanted) << qPrintable(translation);
        }
        EXPECT_TRUE(isNumberSeen || message.translations.isEmpty()) << qPrintable(message.key);
    }
    // The comparison with the sources shows that none is missing.
    EXPECT_GE(messages.size(), Name() == QLatin1String("en") ? 3U : 200U);
}

TEST_P(Languages, HasEverySentenceOfAnError)
{
    InstallTranslations(QLocale(Name()));
    std::set<QString> const keys = KeysOf(ReadMessages(FileOf(Name())));
    bool const isEnglish = Name() == QLatin1String("en");
    std::set<QString> shown;
    for (auto const& [source, sentence] : EverySentence())
    {
        EXPECT_NE(keys.count(QStringLiteral("PelnarEngine_Errors|") + source) == 1, isEnglish) << qPrintable(source);
        EXPECT_EQ(sentence.Translated() == sentence.English(), isEnglish) << qPrintable(source);
        EXPECT_TRUE(shown.insert(sentence.Translated()).second) << "two failures look alike: " << qPrintable(source);
    }
    EXPECT_GE(shown.size(), 170U);
}

TEST_P(Languages, PutsABlankBetweenSentencesOnlyWhereItsFullStopHasNone)
{
    InstallTranslations(QLocale(Name()));
    Sentence const sentence = MakeError(ErrorCause::FeedMalformed).sentence;
    QString const one = sentence.Translated();
    bool const isWide = Name() == QLatin1String("ja") || Name() == QLatin1String("zh_CN");
    EXPECT_EQ(sentence.FollowedBy(sentence).Translated(), one + (isWide ? QString() : QStringLiteral(" ")) + one);
}

TEST_P(Languages, IsInTheLibraryAndShown)
{
    InstallTranslations(QLocale(Name()));
    for (Message const& message : ReadMessages(FileOf(Name())))
    {
        QStringList const key = message.key.split(QLatin1Char('|'));
        QByteArray const comment = key.value(2).toUtf8();
        for (int const number : message.isPlural ? std::vector<int>{0, 1, 2, 3, 11, 21, 100} : std::vector<int>{-1})
        {
            QString const shown = QCoreApplication::translate(
                key.at(0).toUtf8().constData(), message.source.toUtf8().constData(), comment.constData(), number);
            QStringList expected;
            for (QString translation : message.translations)
            {
                expected += translation.replace(QStringLiteral("%Ln"), QLocale().toString(number));
            }
            EXPECT_TRUE(expected.contains(shown)) << qPrintable(message.key) << ' ' << qPrintable(shown);
        }
    }
}

TEST_P(Languages, RunsInItsOwnDirectionAndLeavesThatOfTheHostAlone)
{
    InstallTranslations(QLocale(Name()));
    for (WindowCase const& window : AllWindowCases())
    {
        Show(window);
        EXPECT_EQ(WindowOf(window)->layoutDirection(), IsRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight)
            << window.name;
    }
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_P(Languages, KeepsItsDirectionWhenATextStartsWithAName)
{
    InstallTranslations(QLocale(Name()));
    Ui().ShowUpToDate({QStringLiteral("Tidepool"), QStringLiteral("2")}, [] {});
    EXPECT_EQ(Part<QLabel>("PelnarEngine_detail")->text().isRightToLeft(), IsRightToLeft());
    Ui().ShowDownload({QStringLiteral("Tidepool"), QStringLiteral("2")}, [] {});
    Ui().SetProgress({UpdatePhase::Downloading, 10, 20, 1});
    for (char const* const part : {"PelnarEngine_heading", "PelnarEngine_amount", "PelnarEngine_speed"})
    {
        EXPECT_EQ(Part<QLabel>(part)->text().isRightToLeft(), IsRightToLeft()) << part;
    }
}

TEST_P(Languages, HasMnemonicsThatDifferInEachWindow)
{
    InstallTranslations(QLocale(Name()));
    for (WindowCase const& window : AllWindowCases())
    {
        Show(window);
        std::set<QChar> mnemonics;
        for (QPushButton* const button : WindowOf(window)->findChildren<QPushButton*>())
        {
            int const mark = button->text().indexOf(QLatin1Char('&'));
            ASSERT_GE(mark, 0) << qPrintable(button->text());
            EXPECT_TRUE(mnemonics.insert(button->text().at(mark + 1).toLower()).second) << qPrintable(button->text());
        }
    }
}

TEST_P(Languages, ShowsItsLongestSentenceOfAnErrorWhole)
{
    InstallTranslations(QLocale(Name()));
    Sentence longest;
    for (auto const& [source, sentence] : EverySentence())
    {
        if (longest.IsEmpty() || sentence.Translated().size() > longest.Translated().size())
        {
            longest = sentence;
        }
    }
    Ui().ShowError(longest, [] {});
    QCoreApplication::processEvents();
    auto* const label = Part<QLabel>("PelnarEngine_detail");
    EXPECT_TRUE(label->wordWrap());
    EXPECT_GE(label->height(), label->heightForWidth(label->width())) << qPrintable(label->text());
    EXPECT_GE(label->width(), label->minimumSizeHint().width());
    QString const folder = qEnvironmentVariable("PELNAR_PICTURES");
    EXPECT_TRUE(folder.isEmpty() || label->window()->grab().save(folder + QStringLiteral("/longest-error-") + Name() +
                                                                 QStringLiteral(".png")));
}

TEST_P(Languages, FitsIntoEveryWindow)
{
    InstallTranslations(QLocale(Name()));
    for (WindowCase const& window : AllWindowCases())
    {
        Show(window);
        QCoreApplication::processEvents();
        for (QWidget* const part : WindowOf(window)->findChildren<QWidget*>())
        {
            auto* const label = qobject_cast<QLabel*>(part);
            if (!part->isVisible() || (label == nullptr && qobject_cast<QPushButton*>(part) == nullptr))
            {
                continue;
            }
            EXPECT_GE(part->width(), part->minimumSizeHint().width())
                << window.name << ' ' << qPrintable(part->objectName());
            int const height = label != nullptr && label->wordWrap() ? label->heightForWidth(label->width())
                                                                     : part->minimumSizeHint().height();
            EXPECT_GE(part->height(), height) << window.name << ' ' << qPrintable(part->objectName());
        }
    }
}

TEST(Translations, AreInStepWithTheSources)
{
    QTemporaryDir const folder;
    QProcess update;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SELECT"), QStringLiteral("qt5"));
    update.setProcessEnvironment(environment);
    update.start(QStringLiteral(PELNAR_SOURCE_FOLDER "/scripts/translations"), {folder.path()});
    ASSERT_TRUE(update.waitForFinished(60000));
    ASSERT_EQ(update.exitCode(), 0) << update.readAllStandardError().constData();
    for (QString const& name : NamesInTheFolder())
    {
        QString const updated = folder.filePath(QStringLiteral("pelnar_engine_") + name + QStringLiteral(".ts"));
        EXPECT_EQ(KeysOf(ReadMessages(updated)), KeysOf(ReadMessages(FileOf(name)))) << qPrintable(name);
    }
}

TEST(Translations, AreThoseOfTheFolder)
{
    QStringList names;
    for (int language = QLocale::C; language <= QLocale::LastLanguage; ++language)
    {
        names += TranslationNameFor(QLocale(static_cast<QLocale::Language>(language)));
    }
    names.removeDuplicates();
    names.sort();
    EXPECT_EQ(names, NamesInTheFolder());
    EXPECT_EQ(names.size(), 13);
}

TEST(Translations, AreChosenByLanguage)
{
    std::map<QString, QString> const expected = {
        {QStringLiteral("de_AT"), QStringLiteral("de")},    {QStringLiteral("pt_PT"), QStringLiteral("pt_BR")},
        {QStringLiteral("pt_BR"), QStringLiteral("pt_BR")}, {QStringLiteral("zh_CN"), QStringLiteral("zh_CN")},
        {QStringLiteral("zh_SG"), QStringLiteral("zh_CN")}, {QStringLiteral("zh_TW"), QStringLiteral("en")},
        {QStringLiteral("zh_HK"), QStringLiteral("en")},    {QStringLiteral("ar_EG"), QStringLiteral("ar")},
        {QStringLiteral("he_IL"), QStringLiteral("he")},    {QStringLiteral("en_GB"), QStringLiteral("en")},
        {QStringLiteral("C"), QStringLiteral("en")},        {QStringLiteral("sw_KE"), QStringLiteral("en")},
    };
    for (auto const& [locale, name] : expected)
    {
        EXPECT_EQ(TranslationNameFor(QLocale(locale)), name) << qPrintable(locale);
    }
}

using InstalledTranslations = WindowsFixture;

TEST_F(InstalledTranslations, TakeThePlaceOfTheOnesBefore)
{
    auto const remind = [] { return QCoreApplication::translate("SparkleUpdater", "Remind Me Later"); };
    EXPECT_EQ(remind(), QStringLiteral("Remind Me Later"));
    InstallTranslations(QLocale(QLocale::German));
    EXPECT_EQ(remind(), QStringLiteral("Später erinnern"));
    InstallTranslations(QLocale(QLocale::Dutch));
    EXPECT_EQ(remind(), QStringLiteral("Herinner mij later"));
    InstallTranslations(QLocale(QLocale::English));
    EXPECT_EQ(remind(), QStringLiteral("Remind Me Later"));
    EXPECT_EQ(qApp->findChildren<QTranslator*>().size(), 1);
}

TEST_F(InstalledTranslations, HaveTheTextsOfTheUpdateDialogs)
{
    InstallTranslations(QLocale(QLocale::French));
    for (char const* const text :
         {"Update is already running. Please try later.", "A new version of %1 %2 is ready to install",
          "The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update "
          "and relaunch %1 now?",
          "Skip This Version", "Remind Me Later", "Install and Relaunch"})
    {
        EXPECT_NE(QCoreApplication::translate("SparkleUpdater", text), QString::fromLatin1(text));
    }
}

} // namespace
} // namespace Pelnar::Testing
