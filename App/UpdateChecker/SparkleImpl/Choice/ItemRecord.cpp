#include "App/UpdateChecker/SparkleImpl/Choice/ItemRecord.h"

#include "App/UpdateChecker/SparkleImpl/Choice/TextPrefilters.h"
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

QString const& ItemRecord::AddressText()
{
    return Once(m_addressText,
                [this]
                {
                    // A separate copy: with a shared text the source would have to allocate for the next one.
                    QString const& text = m_source.FileAddress();
                    return QString(text.constData(), text.size());
                });
}

bool ItemRecord::HasValidAddress()
{
    return IsValidAddress(AddressText());
}

QUrl const& ItemRecord::Address()
{
    return Once(m_address, [this] { return QUrl(AddressText()); });
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
