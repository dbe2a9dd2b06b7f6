#include "App/UpdateChecker/SparkleImpl/Choice/ItemRecord.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

namespace Pelnar::App::Session
{
namespace
{

template <class T, class Read>
T const& Once(std::optional<T>& kept, Read read)
{
    if (!kept)
    {
        kept.emplace(read());
    }
    return *kept;
}

/// Qt reads the last word but one as the day of the month, so a text that ends in a time and a zone is no text date.
/// Nearly every date of a feed does, and without this shortcut dates cost a fifth of the choice.
bool EndsInTimeAndZone(QString const& text)
{
    int const blank = text.lastIndexOf(QLatin1Char(' '));
    return blank >= 3 && blank + 1 < text.size() && text[blank - 3] == QLatin1Char(':') &&
           text[blank - 2] != QLatin1Char(' ') && text[blank - 1] != QLatin1Char(' ');
}

QDate TextDate(QString const& text)
{
    return EndsInTimeAndZone(text) ? QDate() : QDate::fromString(text, Qt::TextDate);
}

} // namespace

Core::Version const& ItemRecord::MinimumSystem()
{
    return Once(m_minimumSystem, [this] { return VersionFromStringNoexcept(m_source.MinimumSystemVersion()); });
}

Core::Version const& ItemRecord::MaximumSystem()
{
    return Once(m_maximumSystem, [this] { return VersionFromStringNoexcept(m_source.MaximumSystemVersion()); });
}

Core::Version const& ItemRecord::Version()
{
    return Once(m_version, [this] { return VersionFromStringNoexcept(m_source.VersionString()); });
}

QUrl const& ItemRecord::Address()
{
    return Once(m_address, [this] { return QUrl(m_source.FileAddress()); });
}

QDate const& ItemRecord::Date()
{
    return Once(m_date, [this] { return TextDate(m_source.DateString()); });
}

std::uint64_t ItemRecord::Length()
{
    return Once(m_length, [this] { return m_source.ContentLength(); });
}

UpdateType ItemRecord::Type()
{
    return Once(m_type,
                [this]
                {
                    bool const isDelta = m_source.IsDelta();
                    return DetectUpdateType(isDelta, isDelta ? QString() : Address().fileName(QUrl::FullyDecoded));
                });
}

} // namespace Pelnar::App::Session
