#include "HostFramework/VersionText.h"

#include <limits>
#include <optional>
#include <stdexcept>

namespace Pelnar::Util
{
namespace
{

/// Reads a decimal component of at most 2147483647 at \a position and moves past it; -1 if no digit stands there.
std::int32_t ReadComponent(QChar const*& position, QChar const* end) noexcept
{
    std::int64_t value = -1;
    for (; position != end; ++position)
    {
        ushort const unit = position->unicode();
        if (unit < u'0' || unit > u'9')
        {
            break;
        }
        value = (value < 0 ? 0 : value * 10) + (unit - u'0');
        if (value > std::numeric_limits<std::int32_t>::max())
        {
            return -1;
        }
    }
    return static_cast<std::int32_t>(value);
}

bool SkipSeparator(QChar const*& position, QChar const* end, QString const& separator) noexcept
{
    int const length = separator.length();
    if (length == 0 || end - position < length)
    {
        return false;
    }
    for (int i = 0; i < length; ++i)
    {
        if (position[i] != separator.constData()[i])
        {
            return false;
        }
    }
    position += length;
    return true;
}

std::optional<Core::Version> Parse(QString const& text, QString const& separator) noexcept
{
    std::int32_t components[Core::Version::COMPONENT_COUNT] = {Core::Version::ABSENT, Core::Version::ABSENT,
                                                               Core::Version::ABSENT, Core::Version::ABSENT};
    QChar const* position = text.constData();
    QChar const* const end = position + text.length();
    for (std::int32_t& component : components)
    {
        component = ReadComponent(position, end);
        if (component < 0)
        {
            return std::nullopt;
        }
        if (position == end)
        {
            return Core::Version(components[0], components[1], components[2], components[3]);
        }
        if (!SkipSeparator(position, end, separator))
        {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace

Core::Version VersionFromString(QString const& text, QString const& separator)
{
    if (std::optional<Core::Version> const version = Parse(text, separator))
    {
        return *version;
    }
    throw std::invalid_argument("\"" + text.toStdString() +
                                "\" is not a version: one to four numbers of 0 to 2147483647 separated by \"" +
                                separator.toStdString() + "\" are expected");
}

QString VersionToString(Core::Version const& version, VersionToStringDetail, QString const& separator)
{
    QString text;
    for (std::int32_t const component : version.Components())
    {
        if (component == Core::Version::ABSENT)
        {
            break;
        }
        if (!text.isEmpty())
        {
            text += separator;
        }
        text += QString::number(component);
    }
    return text;
}

} // namespace Pelnar::Util
