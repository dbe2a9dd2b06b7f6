// KeyStatementRules.h: checks the root key's statement in a feed, and the signatures of the feed and its items against
// it. See docs/formats/key-statement.md.
#pragma once

#include "Publisher/lint/LintSubject.h"

#include <QDateTime>

namespace Pelnar::Publisher
{

struct KeyStatementQuestion
{
    std::vector<std::string> rootKeys; ///< base64; empty: the statement's signature is not checked
    QByteArray previousFeed;           ///< the feed that was published before this one; empty: no comparison
    QDateTime now;                     ///< in UTC
};

/// The faults for which clients with a root key would refuse the feed. \a subject is null if clients refuse the
/// document.
std::vector<LintFinding> CheckKeyStatement(QByteArray const& bytes, LintSubject const* subject,
                                           KeyStatementQuestion const& question);

/// The findings of "lint" without options for the feed that is published at \a address.
std::vector<LintFinding> LintAsPublished(QByteArray const& bytes, QUrl const& address);

/// Findings that are correct during a change of keys and are mistakes otherwise.
std::vector<LintFinding> CheckKeyUse(QByteArray const& bytes, LintSubject const& subject);

} // namespace Pelnar::Publisher
