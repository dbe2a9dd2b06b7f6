#include "Publisher/serve/ServerFault.h"

namespace Pelnar::Publisher
{
namespace
{

struct Syntax
{
    char const* word;
    ServerFaultKind kind;
    qint64 least;
    qint64 most;
};

constexpr qint64 ANY_NUMBER = qint64(1) << 53;
constexpr Syntax SYNTAX[] = {
    {"truncate", ServerFaultKind::Truncate, 0, ANY_NUMBER},
    {"slow", ServerFaultKind::Slow, 1, ANY_NUMBER},
    {"status", ServerFaultKind::Status, 200, 599},
    {"drop", ServerFaultKind::Drop, 0, ANY_NUMBER},
};

} // namespace

std::optional<ServerFault> ParseServerFault(QString const& text)
{
    int const first = text.indexOf(u':');
    int const last = text.lastIndexOf(u':');
    bool isNumber = false;
    qint64 const number = text.mid(last + 1).toLongLong(&isNumber);
    for (Syntax const& syntax : SYNTAX)
    {
        bool const isThis = last > first + 1 && isNumber && text.leftRef(first) == QLatin1String(syntax.word);
        if (isThis && number >= syntax.least && number <= syntax.most)
        {
            return ServerFault{syntax.kind, text.mid(first + 1, last - first - 1), number};
        }
    }
    return std::nullopt;
}

} // namespace Pelnar::Publisher
