#include "Publisher/lint/LintVocabulary.h"

#include <algorithm>
#include <vector>

namespace Pelnar::Publisher
{
namespace
{

constexpr char const* NAMES[] = {"version",
                                 "shortVersionString",
                                 "minimumSystemVersion",
                                 "maximumSystemVersion",
                                 "releaseNotesLink",
                                 "fullReleaseNotesLink",
                                 "deltas",
                                 "deltaFrom",
                                 "deltaFromSparkleExecutableSize",
                                 "deltaFromSparkleLocales",
                                 "tags",
                                 "criticalUpdate",
                                 "channel",
                                 "phasedRolloutInterval",
                                 "informationalUpdate",
                                 "hardwareRequirements",
                                 "minimumAutoupdateVersion",
                                 "minimumUpdateVersion",
                                 "ignoreSkippedUpgradesBelowVersion",
                                 "belowVersion",
                                 "edSignature",
                                 "dsaSignature",
                                 "installationType",
                                 "installerArguments",
                                 "os",
                                 "format",
                                 "signature",
                                 "md5",
                                 "md5Sum"};

/// The number of letters that must be added, removed, changed or exchanged with a neighbour.
int Distance(QString const& a, QString const& b)
{
    std::vector<std::vector<int>> rows(std::size_t(a.size()) + 1, std::vector<int>(std::size_t(b.size()) + 1));
    for (int i = 0; i <= a.size(); ++i)
    {
        for (int j = 0; j <= b.size(); ++j)
        {
            int& best = rows[std::size_t(i)][std::size_t(j)];
            if (i == 0 || j == 0)
            {
                best = i + j;
                continue;
            }
            auto const at = [&](int up, int left) { return rows[std::size_t(i - up)][std::size_t(j - left)]; };
            best = std::min({at(1, 0) + 1, at(0, 1) + 1, at(1, 1) + (a.at(i - 1) == b.at(j - 1) ? 0 : 1)});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
            {
                best = std::min(best, at(2, 2) + 1);
            }
        }
    }
    return rows.back().back();
}

} // namespace

std::optional<QString> MeantName(QString const& local)
{
    constexpr int FEWEST_LETTERS = 4;
    constexpr int MOST_LETTERS = 40;
    constexpr int MOST_ERRORS = 2;
    if (local.size() < FEWEST_LETTERS || local.size() > MOST_LETTERS)
    {
        return std::nullopt;
    }
    std::optional<QString> nearest;
    int least = MOST_ERRORS + 1;
    for (char const* const name : NAMES)
    {
        QString const known = QLatin1String(name);
        if (known.compare(local, Qt::CaseInsensitive) == 0)
        {
            return std::nullopt; // another rule reports the case
        }
        int const distance = known.size() < FEWEST_LETTERS ? least : Distance(local, known);
        if (distance < least && distance < known.size() / 2)
        {
            least = distance;
            nearest = known;
        }
    }
    return nearest;
}

} // namespace Pelnar::Publisher
