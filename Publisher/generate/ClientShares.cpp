#include "Publisher/generate/ClientShares.h"

#include "Publisher/Refusal.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/generate/Workplace.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Pelnar::Publisher
{
namespace
{

constexpr int MAX_BYTES = 1 << 20;

[[noreturn]] void RefuseLine(QString const& name, int line, QString const& what)
{
    throw Refusal({name, line, 0, what, u"write a version and its share, such as: 1.4.2 0.35"_s});
}

} // namespace

std::vector<ClientShare> ReadClientShares(QString const& name)
{
    static QRegularExpression const BLANKS(u"\\s+"_s);
    QByteArray const bytes = ReadInputFile(OpenInputFile(name), MAX_BYTES, u"keep it below 1 MiB"_s);
    std::vector<ClientShare> clients;
    int number = 0;
    for (QString const& text : QString::fromUtf8(bytes.constData(), bytes.size()).split(u'\n')) // a NUL does not end it
    {
        ++number;
        QString const line = text.trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
        {
            continue;
        }
        QStringList const words = line.split(BLANKS);
        bool isNumber = false;
        ClientShare const client{words.front(), WholeVersion(words.front()),
                                 words.size() == 2 ? words.back().toDouble(&isNumber) : 0};
        if (!client.version.IsValid() || !isNumber || !std::isfinite(client.share) || !(client.share > 0))
        {
            RefuseLine(name, number, u"\"%1\" is not a version and a share"_s.arg(line));
        }
        bool const isKnown =
            std::any_of(clients.begin(), clients.end(),
                        [&client](ClientShare const& other) { return other.version == client.version; });
        if (isKnown)
        {
            RefuseLine(name, number, u"version %1 appears twice"_s.arg(words.front()));
        }
        clients.push_back(client);
    }
    if (clients.empty())
    {
        RefuseLine(name, 0, u"names no version"_s);
    }
    std::stable_sort(clients.begin(), clients.end(),
                     [](ClientShare const& a, ClientShare const& b) { return a.share > b.share; });
    return clients;
}

} // namespace Pelnar::Publisher
