// LintCase.h: one feed and the one finding that it must have.
// Thread: constants.
#pragma once

#include <QByteArray>

#include <ostream>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

/// Shown by its name.
struct LintCase
{
    std::string name;
    QByteArray feed;
    std::string finding; ///< "RULE LINE:COLUMN what", the only one; empty for a clean feed
};

inline void PrintTo(LintCase const& row, std::ostream* out)
{
    *out << row.name;
}

/// At least one row for every rule that needs no server, and for each rule similar feeds that it must accept.
std::vector<LintCase> const& LintCases();

/// A feed around \a items, which begin in line 2.
QByteArray FeedOf(QByteArray const& items);

} // namespace Pelnar::Testing
