#include "Settings/DefaultsText.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

namespace Pelnar::Settings
{
namespace
{

using Engine::PropertyListValue;

constexpr int INDENT = 4;
constexpr int LENGTH_OF_TIME = 19; ///< "2026-01-31 23:59:59"

bool IsPlainText(std::string const& text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(),
                                        [](char c) {
                                            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                                                   (c >= '0' && c <= '9') || c == '.' || c == '_';
                                        });
}

std::string Quoted(std::string const& text)
{
    if (IsPlainText(text))
    {
        return text;
    }
    std::string quoted = "\"";
    for (char const c : text)
    {
        if (c == '"' || c == '\\')
        {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + '"';
}

void Append(std::string& out, PropertyListValue const& value, int depth)
{
    std::string const indent(static_cast<std::size_t>(depth) * INDENT, ' ');
    switch (value.kind)
    {
    case PropertyListValue::Kind::Text:
        out += Quoted(value.text);
        return;
    case PropertyListValue::Kind::List:
        out += "(\n";
        for (PropertyListValue const& item : value.items)
        {
            out += indent + std::string(INDENT, ' ');
            Append(out, item, depth + 1);
            out += ",\n";
        }
        out += indent + ")";
        return;
    case PropertyListValue::Kind::Dictionary:
        out += "{\n";
        for (auto const& [key, property] : value.properties)
        {
            out += indent + std::string(INDENT, ' ') + Quoted(key) + " = ";
            Append(out, property, depth + 1);
            out += ";\n";
        }
        out += indent + "}";
        return;
    }
}

/// Without the prefix with which the old style marks a number, a truth value or a date.
QString PlainTextOf(std::string const& text)
{
    constexpr std::string_view MARKS[] = {"*I", "*R", "*D"};
    if (text == "*BY" || text == "*BN")
    {
        return text == "*BY" ? QStringLiteral("YES") : QStringLiteral("NO");
    }
    bool const isMarked = std::any_of(std::begin(MARKS), std::end(MARKS),
                                      [&text](std::string_view mark) { return text.compare(0, 2, mark) == 0; });
    return QString::fromStdString(isMarked ? text.substr(2) : text);
}

QVariant BooleanOf(QString const& text)
{
    QString const word = text.toLower();
    if (QStringList{QStringLiteral("yes"), QStringLiteral("true"), QStringLiteral("1")}.contains(word))
    {
        return true;
    }
    if (QStringList{QStringLiteral("no"), QStringLiteral("false"), QStringLiteral("0")}.contains(word))
    {
        return false;
    }
    return text;
}

QVariant NumberOf(QString const& text)
{
    bool isNumber = false;
    qlonglong const number = text.toLongLong(&isNumber);
    return isNumber ? QVariant(number) : QVariant(text);
}

/// In the form of XML, or of the old style: "2026-01-31 23:59:59 +0100".
QVariant TimeOf(QString const& text)
{
    QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    if (text.size() > LENGTH_OF_TIME && text.at(LENGTH_OF_TIME) == QLatin1Char(' '))
    {
        QString const zone = text.mid(LENGTH_OF_TIME + 1);
        time = QDateTime::fromString(text.left(LENGTH_OF_TIME).replace(QLatin1Char(' '), QLatin1Char('T')) +
                                         zone.left(3) + QLatin1Char(':') + zone.mid(3),
                                     Qt::ISODate);
    }
    return time.isValid() ? QVariant(time.toUTC()) : QVariant(text);
}

} // namespace

std::optional<DefaultsEntries> ParseDefaults(std::string_view text)
{
    bool const isEmpty = text.find_first_not_of(" \t\r\n") == std::string_view::npos;
    auto const list = isEmpty ? std::nullopt : Engine::ParsePropertyList(text);
    if (!isEmpty && (!list || list->kind != PropertyListValue::Kind::Dictionary))
    {
        return std::nullopt;
    }
    DefaultsEntries entries;
    if (list)
    {
        entries.insert(list->properties.begin(), list->properties.end());
    }
    return entries;
}

std::string FormatDefaults(DefaultsEntries const& entries)
{
    PropertyListValue list;
    list.kind = PropertyListValue::Kind::Dictionary;
    list.properties.assign(entries.begin(), entries.end());
    std::string text;
    Append(text, list, 0);
    return text + '\n';
}

QVariant MeaningOf(PropertyListValue const& value, Core::SettingType type)
{
    if (value.kind != PropertyListValue::Kind::Text)
    {
        return QVariant(QVariant::List);
    }
    QString const text = PlainTextOf(value.text);
    switch (type)
    {
    case Core::SettingType::Text:
    case Core::SettingType::Dictionary:
        return text;
    case Core::SettingType::Boolean:
        return BooleanOf(text);
    case Core::SettingType::Number:
        return NumberOf(text);
    case Core::SettingType::Date:
        return TimeOf(text);
    }
    return {};
}

PropertyListValue EntryFor(QVariant const& value)
{
    PropertyListValue entry;
    if (value.type() == QVariant::Bool)
    {
        entry.text = value.toBool() ? "YES" : "NO";
    }
    else if (value.type() == QVariant::DateTime)
    {
        entry.text = value.toDateTime().toUTC().toString(Qt::ISODate).toStdString();
    }
    else
    {
        // A NUL ends the text for every reader.
        entry.text = value.toString().remove(QChar(QChar::Null)).toStdString();
    }
    return entry;
}

} // namespace Pelnar::Settings
