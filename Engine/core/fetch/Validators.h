// Validators.h: what a server says of the version of a file, so that a later request can ask for another one only.
// Thread: any; no state.
#pragma once

#include "Engine/core/fetch/HttpHead.h"

#include <QByteArray>

namespace Pelnar::Engine
{

/// Empty where the server says nothing of use.
struct Validators
{
    QByteArray entityTag;    ///< with its quotes, and with the sign of a weak one
    QByteArray lastModified; ///< as it came

    [[nodiscard]] bool IsEmpty() const { return entityTag.isEmpty() && lastModified.isEmpty(); }
};

/// Those of an answer that can prove, later, that a file is the same to the byte: a strong entity tag; a date of
/// modification that lies at least a second before the answer's own date.
Validators StrongValidators(HttpHead const& head);

/// As StrongValidators(), with weak entity tags. Without a date where there is an entity tag, be it a malformed one.
Validators FeedValidators(HttpHead const& head);

/// False for what StrongValidators() never answers: bytes that a request must not carry.
[[nodiscard]] bool AreUsable(Validators const& validators);
/// False for what FeedValidators() never answers, and for none.
[[nodiscard]] bool AreUsableForFeed(Validators const& validators);

/// The validator that a request carries: the entity tag if there is one, else the date.
QByteArray const& PreferredValidator(Validators const& validators);

/// True when two entity tags differ in their strength at most.
[[nodiscard]] bool IsSameTag(QByteArray const& a, QByteArray const& b);

} // namespace Pelnar::Engine
