// Validators.h: a server's identification of one version of a file, with which a later request can ask only for a
// changed version. Pure functions.
#pragma once

#include "Engine/core/fetch/HttpHead.h"

#include <QByteArray>

namespace Pelnar::Engine
{

/// Empty fields mean that the server sent nothing usable.
struct Validators
{
    QByteArray entityTag;    ///< with its quotes and its weak mark
    QByteArray lastModified; ///< as received

    [[nodiscard]] bool IsEmpty() const { return entityTag.isEmpty() && lastModified.isEmpty(); }
};

/// The validators of an answer that can prove later that a file is identical byte for byte: a strong entity tag; a
/// modification date at least one second before the answer's own date.
Validators StrongValidators(HttpHead const& head);

/// Like StrongValidators(), but weak entity tags count too. The date is empty if there is an entity tag, even a
/// malformed one.
Validators FeedValidators(HttpHead const& head);

/// False for values that StrongValidators() never returns: a request must not carry such bytes.
[[nodiscard]] bool AreUsable(Validators const& validators);
/// False for values that FeedValidators() never returns, and for empty ones.
[[nodiscard]] bool AreUsableForFeed(Validators const& validators);

/// The validator for a request: the entity tag if there is one, else the date.
QByteArray const& PreferredValidator(Validators const& validators);

/// True if two entity tags differ at most in their strength.
[[nodiscard]] bool IsSameTag(QByteArray const& a, QByteArray const& b);

} // namespace Pelnar::Engine
