#include "Publisher/generate/FolderScan.h"

#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/FaultText.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <iterator>
#include <map>

namespace Pelnar::Publisher
{
namespace
{

constexpr char const* BUNDLE_ENDINGS[] = {".zip", ".tar.gz", ".tgz", ".tar.bz2", ".tbz2",
                                          ".tbz", ".tar.xz", ".txz", ".tar.zst", ".tzst"};
constexpr char DELTA_ENDING[] = ".delta";
constexpr char INSTALLER_MARK[] = ".sparkle_";
constexpr char GUIDED_MARK[] = ".sparkle_guided.";

struct NotesEnding
{
    char const* ending;
    Engine::ReleaseNotesFormat format;
};

constexpr NotesEnding NOTES_ENDINGS[] = {
    {".html", Engine::ReleaseNotesFormat::Html},     {".htm", Engine::ReleaseNotesFormat::Html},
    {".md", Engine::ReleaseNotesFormat::Markdown},   {".markdown", Engine::ReleaseNotesFormat::Markdown},
    {".txt", Engine::ReleaseNotesFormat::PlainText},
};

/// \a name without the first matching one of \a endings; empty if none matches.
std::optional<QString> StemOf(QString const& name, char const* ending)
{
    bool const hasEnding = name.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    return hasEnding ? name.chopped(int(qstrlen(ending))) : std::optional<QString>();
}

/// \a name without the ending of a zip or a tar; empty if it has none.
std::optional<QString> StemOfContainer(QString const& name)
{
    for (char const* const ending : BUNDLE_ENDINGS)
    {
        if (std::optional<QString> stem = StemOf(name, ending))
        {
            return stem;
        }
    }
    return std::nullopt;
}

std::optional<FolderArchive> Classify(QString const& name)
{
    std::optional<QString> const containerStem = StemOfContainer(name);
    if (App::Session::DetectUpdateType(false, name) == App::Session::UpdateType::INSTALLER)
    {
        return FolderArchive{name, name.left(name.lastIndexOf(QLatin1String(INSTALLER_MARK))),
                             name.contains(QLatin1String(GUIDED_MARK)) ? ArchiveKind::GuidedInstaller
                                                                       : ArchiveKind::InteractiveInstaller,
                             containerStem.has_value()};
    }
    if (std::optional<QString> const stem = StemOf(name, DELTA_ENDING))
    {
        return FolderArchive{name, *stem, ArchiveKind::Delta};
    }
    return containerStem ? FolderArchive{name, *containerStem, ArchiveKind::Bundle, true}
                         : std::optional<FolderArchive>();
}

/// The line of the first character of \a text that XML does not allow; 0 if XML allows all.
int LineOfBadCharacter(QString const& text)
{
    int line = 1;
    for (QChar const character : text)
    {
        ushort const code = character.unicode();
        bool const isControl = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
        if (isControl || code >= 0xFFFE)
        {
            return line;
        }
        line += code == '\n' ? 1 : 0;
    }
    return 0;
}

QString ReadNotesFile(QString const& path, Engine::ReleaseNotesFormat format)
{
    Engine::ReleaseNotesLimits const limits;
    QByteArray const bytes =
        ReadInputFile(OpenInputFile(path), limits.maxBytes,
                      u"shorten the notes: clients do not show longer ones, and fetch them with every feed"_s);
    QString const text = QString::fromUtf8(bytes.constData(), bytes.size()); // a NUL does not end it
    int const badLine = LineOfBadCharacter(text);
    if (text.toUtf8() != bytes && QByteArray("\xEF\xBB\xBF" + text.toUtf8()) != bytes)
    {
        throw Refusal({path, u"is not UTF-8"_s, u"save the notes as UTF-8"_s});
    }
    if (badLine > 0)
    {
        throw Refusal({path, badLine, 0, u"has a control character, which a feed cannot contain"_s, u"remove it"_s});
    }
    Engine::FilteredReleaseNotes const shown = Engine::FilterReleaseNotes(text.toStdString(), format, limits);
    if (shown.refusal != Engine::ReleaseNotesRefusal::None)
    {
        throw Refusal({path, u"clients would show these notes as plain text: "_s + ReasonOf(shown.refusal),
                       u"make the notes simpler"_s});
    }
    return format == Engine::ReleaseNotesFormat::Html ? text : QString::fromStdString(shown.html);
}

struct NotesFile
{
    QString fileName;
    QString language;
    Engine::ReleaseNotesFormat format;
};

/// "de" and "pt_BR" as xml:lang writes them; empty for a text that names no language.
std::optional<QString> LanguageOf(QString const& text)
{
    static QRegularExpression const FORM(u"^[A-Za-z]{2,3}([-_][A-Za-z0-9]{2,8})*$"_s);
    bool const isLanguage = FORM.match(text).hasMatch() && QLocale(QString(text).replace(u'-', u'_')) != QLocale::c();
    return isLanguage ? QString(text).replace(u'_', u'-') : std::optional<QString>();
}

/// The notes in the file \a name for the archive with that stem; empty if it is not one of its notes.
std::optional<NotesFile> NotesOf(QString const& name, QString const& stem)
{
    for (NotesEnding const& ending : NOTES_ENDINGS)
    {
        std::optional<QString> const front = StemOf(name, ending.ending);
        if (front == stem)
        {
            return NotesFile{name, {}, ending.format};
        }
        if (front && front->startsWith(stem + u'.'))
        {
            if (std::optional<QString> const language = LanguageOf(front->mid(stem.size() + 1)))
            {
                return NotesFile{name, *language, ending.format};
            }
        }
    }
    return std::nullopt;
}

/// Calls \a visit with each entry of \a folder. Deliberate: not with QDir, which takes a folder that cannot be read to
/// its end for a smaller one, and omits names that cannot be decoded.
void VisitEntries(QString const& folder, std::function<void(std::filesystem::directory_entry const&)> const& visit)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(QFile::encodeName(folder).toStdString(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
    {
        visit(*entry);
    }
    if (error)
    {
        RefuseFile(folder, u"cannot be read"_s, error.value(), u"check its permissions and its disk"_s);
    }
}

/// The names in \a folder, sorted, without hidden ones and without those that are not UTF-8.
QStringList NamesIn(QString const& folder)
{
    QStringList names;
    VisitEntries(folder,
                 [&names](std::filesystem::directory_entry const& entry)
                 {
                     QByteArray const bytes = QByteArray::fromStdString(entry.path().filename().string());
                     QString const name = QFile::decodeName(bytes);
                     if (!bytes.startsWith('.') && QFile::encodeName(name) == bytes)
                     {
                         names.append(name);
                     }
                 });
    names.sort();
    return names;
}

void RefuseLink(QString const& path, QString const& otherMend = {})
{
    if (QFileInfo(path).isSymLink())
    {
        throw Refusal({path, u"is a link, which a web server may not follow"_s,
                       u"put the file itself into the folder"_s + otherMend});
    }
}

} // namespace

QString PathIn(QString const& folder, QString const& fileName)
{
    return QDir(folder).filePath(fileName);
}

std::vector<FolderArchive> ScanFolder(QString const& folder)
{
    QDir const entries(folder);
    if (!entries.exists() || !QFileInfo(folder).isReadable())
    {
        RefuseFile(folder, u"cannot be read"_s, entries.exists() ? EACCES : ENOENT,
                   u"give the folder of the archives"_s);
    }
    std::vector<FolderArchive> archives;
    for (QString const& name : NamesIn(folder))
    {
        std::optional<FolderArchive> archive = Classify(name);
        if (archive && !QFileInfo(PathIn(folder, name)).isDir())
        {
            bool const isDelta = archive->kind == ArchiveKind::Delta;
            RefuseLink(PathIn(folder, name), isDelta ? u", or "_s + MEND_OF_DELTA : QString());
            archives.push_back(std::move(*archive));
        }
    }
    return archives;
}

std::vector<ReleaseNotes> ReadReleaseNotes(QString const& folder, QString const& stem)
{
    std::map<QString, NotesFile> byLanguage;
    for (QString const& name : NamesIn(folder))
    {
        std::optional<NotesFile> const notes = NotesOf(name, stem);
        if (!notes)
        {
            continue;
        }
        RefuseLink(PathIn(folder, name));
        auto const [known, isNew] = byLanguage.emplace(notes->language, *notes);
        if (!isNew)
        {
            throw Refusal({PathIn(folder, name), u"%1 has release notes too"_s.arg(known->second.fileName),
                           u"keep one of the two"_s});
        }
    }
    std::vector<ReleaseNotes> result;
    for (auto const& [language, notes] : byLanguage)
    {
        result.push_back({language, ReadNotesFile(PathIn(folder, notes.fileName), notes.format), notes.fileName});
    }
    return result;
}

QStringList IgnoredFiles(QString const& folder, std::vector<FolderArchive> const& archives, QString const& feedFile)
{
    QStringList ignored;
    bool const hasFeed = QFileInfo::exists(feedFile); // two missing files count as equal
    VisitEntries(folder,
                 [&](std::filesystem::directory_entry const& entry)
                 {
                     QString const name = QFile::decodeName(entry.path().filename().c_str());
                     bool const isKnown = name.startsWith(u'.') ||
                                          (hasFeed && QFileInfo(PathIn(folder, name)) == QFileInfo(feedFile)) ||
                                          std::any_of(archives.begin(), archives.end(),
                                                      [&](FolderArchive const& each)
                                                      { return each.fileName == name || NotesOf(name, each.stem); });
                     std::error_code error; // an entry whose kind is unknown is listed as a file
                     if (!isKnown)
                     {
                         ignored.append(entry.is_directory(error) ? name + u'/' : name);
                     }
                 });
    ignored.sort();
    return ignored;
}

QStringList UnreadableForOthers(QString const& folder, QStringList const& names)
{
    QStringList unreadable;
    std::copy_if(names.begin(), names.end(), std::back_inserter(unreadable),
                 [&folder](QString const& name)
                 {
                     QFileInfo const file(PathIn(folder, name));
                     return file.exists() && !file.permission(QFile::ReadOther);
                 });
    return unreadable;
}

} // namespace Pelnar::Publisher
