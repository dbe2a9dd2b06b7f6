#include "Publisher/Console.h"

#include "Engine/core/base/SafeText.h"

#include <QJsonDocument>

#include <array>
#include <istream>
#include <ostream>

#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

char const* CodeOf(Emphasis emphasis)
{
    switch (emphasis)
    {
    case Emphasis::None:
        return "";
    case Emphasis::Bold:
        return "\033[1m";
    case Emphasis::Dim:
        return "\033[2m";
    case Emphasis::Good:
        return "\033[32m";
    case Emphasis::Warning:
        return "\033[33m";
    case Emphasis::Bad:
        return "\033[31m";
    }
    return "";
}

} // namespace

QString TextOf(Problem const& problem)
{
    QString text;
    if (!problem.file.isEmpty())
    {
        text += problem.file + u':';
        if (problem.line > 0)
        {
            text += QString::number(problem.line) + u':';
            if (problem.column > 0)
            {
                text += QString::number(problem.column) + u':';
            }
        }
        text += u' ';
    }
    text += problem.mend.isEmpty() ? problem.what : WithoutFullStop(problem.what) + u"; "_s + problem.mend;
    return Printable(text);
}

std::string Output::Styled(Emphasis emphasis, QString const& text) const
{
    std::string const plain = Printable(text).toStdString();
    return hasColour && emphasis != Emphasis::None ? CodeOf(emphasis) + plain + "\033[0m" : plain;
}

ExitStatus Console::Refuse(Problem const& problem) const
{
    err.stream << err.Styled(Emphasis::Bad, u"error: "_s) << TextOf(problem).toStdString() << '\n';
    return ExitStatus::Unusable;
}

void Console::Warn(Problem const& problem) const
{
    err.stream << err.Styled(Emphasis::Warning, u"warning: "_s) << TextOf(problem).toStdString() << '\n';
}

void Console::Print(QString const& line) const
{
    out.stream << Printable(line).toStdString() << '\n';
}

void Console::Print(QStringList const& lines) const
{
    for (QString const& line : lines)
    {
        Print(line);
    }
}

void Console::PrintJson(QJsonObject const& object) const
{
    out.stream << QJsonDocument(object).toJson(QJsonDocument::Indented).toStdString();
}

bool ShowsColour(int fileDescriptor)
{
    QByteArray const terminal = qgetenv("TERM");
    return ::isatty(fileDescriptor) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR") && !terminal.isEmpty() &&
           terminal != "dumb";
}

QString Printable(QString const& text)
{
    return Engine::WithoutHidden(text, u'?');
}

QString WithoutFullStop(QString sentence)
{
    sentence.chop(sentence.endsWith(u'.') ? 1 : 0);
    return sentence;
}

QString CountOf(std::size_t count, QString const& singular)
{
    return u"%1 %2%3"_s.arg(count).arg(singular, count == 1 ? QString() : u"s"_s);
}

std::optional<QByteArray> ReadWhole(std::istream& stream, qint64 maxBytes)
{
    QByteArray bytes;
    std::array<char, 64 * 1024> block;
    while (stream)
    {
        stream.read(block.data(), block.size());
        bytes.append(block.data(), int(stream.gcount()));
        if (bytes.size() > maxBytes)
        {
            return std::nullopt;
        }
    }
    return bytes;
}

} // namespace Pelnar::Publisher
