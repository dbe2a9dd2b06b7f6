#include "Publisher/simulate/SimulationPicture.h"

#include <QTextStream>

#include <iterator>
#include <numeric>

namespace Pelnar::Publisher
{
namespace
{

constexpr int LEFT = 60;
constexpr int TOP = 20;
constexpr int WIDTH = 640;
constexpr int HEIGHT = 320;
constexpr int LEGEND = 160;
constexpr int LINE = 18;
constexpr char const* COLOURS[] = {"#4477aa", "#ee6677", "#228833", "#ccbb44", "#66ccee", "#aa3377", "#bbbbbb"};

class Picture
{
public:
    explicit Picture(Simulation const& simulation)
        : m_simulation(simulation)
        , m_clients(std::accumulate(simulation.counts.front().begin(), simulation.counts.front().end(), 0))
        , m_days(int(simulation.counts.size()) - 1)
    {
    }

    QByteArray Draw(QDateTime const& start)
    {
        int const legendHeight = TOP + LINE * m_simulation.versions.size();
        m_stream << u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" "
                    "font-family=\"sans-serif\" font-size=\"12\">\n"_s.arg(LEFT + WIDTH + LEGEND)
                        .arg(std::max(TOP + HEIGHT + 2 * LINE, legendHeight));
        m_stream << "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
        for (int version = 0; version < m_simulation.versions.size(); ++version)
        {
            DrawVersion(version);
        }
        DrawText(LEFT - 8, TOP + 10, "end", QString::number(m_clients));
        DrawText(LEFT - 8, TOP + HEIGHT, "end", u"0"_s);
        DrawText(LEFT, TOP + HEIGHT + LINE, "start", DayText(start, 0));
        DrawText(LEFT + WIDTH, TOP + HEIGHT + LINE, "end", DayText(start, m_days));
        m_stream << "</svg>\n";
        m_stream.flush();
        return m_text.toUtf8();
    }

private:
    static QString DayText(QDateTime const& start, int day)
    {
        return start.addDays(day).toUTC().date().toString(Qt::ISODate);
    }

    /// The top of the first \a versions on \a day.
    QString Point(int day, int versions) const
    {
        std::vector<int> const& counts = m_simulation.counts[std::size_t(day)];
        int const below = std::accumulate(counts.begin(), counts.begin() + versions, 0);
        return u"%1,%2 "_s.arg(LEFT + double(WIDTH) * day / std::max(1, m_days), 0, 'f', 1)
            .arg(TOP + HEIGHT - double(HEIGHT) * below / m_clients, 0, 'f', 1);
    }

    void DrawVersion(int version)
    {
        QString points;
        for (int day = 0; day <= m_days; ++day)
        {
            points += Point(day, version + 1);
        }
        for (int day = m_days; day >= 0; --day)
        {
            points += Point(day, version);
        }
        QString const colour = QLatin1String(COLOURS[std::size_t(version) % std::size(COLOURS)]);
        int const y = TOP + LINE * version;
        m_stream << u"<polygon points=\"%1\" fill=\"%2\"/>\n"_s.arg(points.trimmed(), colour);
        m_stream << u"<rect x=\"%1\" y=\"%2\" width=\"12\" height=\"12\" fill=\"%3\"/>\n"_s.arg(LEFT + WIDTH + 16)
                        .arg(y)
                        .arg(colour);
        DrawText(LEFT + WIDTH + 34, y + 10, "start", m_simulation.versions.at(version));
    }

    void DrawText(int x, int y, char const* anchor, QString const& text)
    {
        m_stream << u"<text x=\"%1\" y=\"%2\" text-anchor=\"%3\">%4</text>\n"_s.arg(x).arg(y).arg(QLatin1String(anchor),
                                                                                                  text.toHtmlEscaped());
    }

    Simulation const& m_simulation;
    int const m_clients;
    int const m_days;
    QString m_text;
    QTextStream m_stream{&m_text};
};

} // namespace

QByteArray PictureOf(Simulation const& simulation, QDateTime const& start)
{
    return Picture(simulation).Draw(start);
}

} // namespace Pelnar::Publisher
