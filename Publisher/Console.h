// Console.h: the input, output and exit status of a verb of the publisher's tool. Ownership: streams belong to the
// caller, which outlives the verb.
#pragma once

#include "Publisher/TextLiterals.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <iosfwd>
#include <iterator>
#include <optional>
#include <string>

namespace Pelnar::Publisher
{

/// The program's exit status, and its meaning for a script.
enum class ExitStatus : std::int32_t
{
    Clean = 0,    ///< done, no problem found
    Findings = 1, ///< done, and the input has problems
    Unusable = 2, ///< not done: bad arguments or unreadable input
};

/// Why a verb cannot do its work. Printed as "FILE:LINE:COLUMN: what; mend"; empty parts and 0 are left out.
struct Problem
{
    Problem(QString what, QString mend) : what(std::move(what)), mend(std::move(mend)) {}
    Problem(QString file, QString what, QString mend) : Problem(std::move(file), 0, 0, std::move(what), std::move(mend))
    {
    }
    Problem(QString file, int line, int column, QString what, QString mend)
        : file(std::move(file)), line(line), column(column), what(std::move(what)), mend(std::move(mend))
    {
    }

    QString file; ///< as the person typed it
    int line = 0; ///< from 1
    int column = 0;
    QString what; ///< the fault; a full stop before the advice is not printed
    QString mend; ///< the way to correct it, without a full stop
};

/// One line, without its end and without colour.
QString TextOf(Problem const& problem);

/// The emphasis of a piece of text on a terminal with colours.
enum class Emphasis
{
    None,
    Bold,
    Dim,
    Good,    ///< green
    Warning, ///< yellow
    Bad,     ///< red
};

/// A stream that a person or a program reads.
struct Output
{
    std::ostream& stream;
    bool isTerminal = false;
    bool hasColour = false;

    /// \a text for this stream: printable, and between the codes of \a emphasis if the stream has colour.
    std::string Styled(Emphasis emphasis, QString const& text) const;
};

/// All that a verb may use besides files and servers.
struct Console
{
    std::istream& in;
    Output out;
    Output err;

    /// Prints \a problem for a person.
    /// \return ExitStatus::Unusable
    ExitStatus Refuse(Problem const& problem) const;
    /// Prints \a problem, which does not prevent the work.
    void Warn(Problem const& problem) const;
    /// Prints \a line, made printable, and ends it.
    void Print(QString const& line) const;
    void Print(QStringList const& lines) const;
    void PrintJson(QJsonObject const& object) const;
};

/// True if text on the file descriptor \a fileDescriptor is coloured: it is a terminal with colours, and NO_COLOR is
/// unset or empty.
[[nodiscard]] bool ShowsColour(int fileDescriptor);

/// \a text on one line: hidden characters (SafeText.h) become "?".
QString Printable(QString const& text);

/// \a sentence as the part of another one.
QString WithoutFullStop(QString sentence);

/// True if \a text ends with one of \a endings, in any case.
template <std::size_t N>
[[nodiscard]] bool EndsWithOneOf(QString const& text, char const* const (&endings)[N])
{
    return std::any_of(std::begin(endings), std::end(endings),
                       [&](char const* ending) { return text.endsWith(QLatin1String(ending), Qt::CaseInsensitive); });
}

/// "1 item", "2 items".
QString CountOf(std::size_t count, QString const& singular);

/// The whole of \a stream; empty if it has more than \a maxBytes.
std::optional<QByteArray> ReadWhole(std::istream& stream, qint64 maxBytes);

} // namespace Pelnar::Publisher
