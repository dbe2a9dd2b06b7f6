// SignatureRules.h: what is wrong with the signature of a feed itself; docs/formats/signed-feed.md.
#pragma once

#include "Publisher/lint/LintSubject.h"

#include <QDateTime>

namespace Pelnar::Publisher
{

enum class FeedSigningWish
{
    None,   ///< a feed without a signature is as good
    Signed, ///< for clients that require it
};

struct FeedSignatureQuestion
{
    std::vector<std::string> publicKeys; ///< base64; empty: whose signature it is is not asked
    FeedSigningWish wish = FeedSigningWish::None;
    QDateTime now; ///< in UTC
};

/// The place of the byte at \a offset; the beginning for a negative one.
LintPlace PlaceOf(QByteArray const& bytes, int offset);

/// \a subject is null when clients refuse the document.
std::vector<LintFinding> CheckFeedSignature(QByteArray const& bytes, LintSubject const* subject,
                                            FeedSignatureQuestion const& question);

} // namespace Pelnar::Publisher
