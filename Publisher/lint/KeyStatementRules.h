// KeyStatementRules.h: what is wrong with the root key's statement in a feed, and with what the feed is signed by
// after it; docs/formats/key-statement.md.
#pragma once

#include "Publisher/lint/LintSubject.h"

#include <QDateTime>

namespace Pelnar::Publisher
{

struct KeyStatementQuestion
{
    std::vector<std::string> rootKeys; ///< base64; empty: whose statement it is is not asked
    QByteArray previousFeed;           ///< that was published before this one; empty: nothing is compared
    QDateTime now;                     ///< in UTC
};

/// What clients with a root key would refuse. \a subject is null when clients refuse the document.
std::vector<LintFinding> CheckKeyStatement(QByteArray const& bytes, LintSubject const* subject,
                                           KeyStatementQuestion const& question);

/// What is right for a feed that is being changed to other keys, and else an oversight.
std::vector<LintFinding> CheckKeyUse(QByteArray const& bytes, LintSubject const& subject);

} // namespace Pelnar::Publisher
