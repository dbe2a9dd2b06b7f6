// SignatureRules.h: checks the signature of a feed itself. See docs/formats/signed-feed.md.
#pragma once

#include "Publisher/lint/LintSubject.h"

#include <QDateTime>

namespace Pelnar::Publisher
{

enum class FeedSigningWish
{
    None,   ///< a feed without a signature is accepted
    Signed, ///< a feed without a signature is refused
};

struct FeedSignatureQuestion
{
    std::vector<std::string> publicKeys; ///< base64; empty: the signature is not checked
    FeedSigningWish wish = FeedSigningWish::None;
    QDateTime now; ///< in UTC
};

/// The place of the byte at \a offset; the beginning if it is negative.
TextPlace PlaceOf(QByteArray const& bytes, int offset);

/// \a subject is null if clients refuse the document.
std::vector<LintFinding> CheckFeedSignature(QByteArray const& bytes, LintSubject const* subject,
                                            FeedSignatureQuestion const& question);

} // namespace Pelnar::Publisher
