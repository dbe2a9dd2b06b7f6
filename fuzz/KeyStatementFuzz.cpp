// KeyStatementFuzz.cpp: any bytes as a key statement and as a feed with one. An accepted statement has one spelling and
// is within the limits. A written line is found again. No statement is accepted that the root key has not signed.

#include "Engine/core/check/KeyStatement.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace
{

using namespace Pelnar::Engine;

constexpr char ROOT_KEY[] = "6kpsY+KcUgq+9VB7Ey7F+ZVHdq6+vnuSQh7qaRRG0iw=";

void Require(bool holds, char const* promise)
{
    if (!holds)
    {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

void RequireStatement(std::string const& text)
{
    std::optional<KeyStatement> const statement = ParseKeyStatement(text);
    if (!statement)
    {
        return;
    }
    Require(TextOf(*statement) == text, "a statement has one spelling");
    Require(statement->serial > 0 && statement->expires.isValid(), "its terms are usable");
    Require(!statement->bundles.empty() && statement->bundles.size() <= KeyStatement::MOST_BUNDLES,
            "it is for one bundle to eight");
    Require(statement->validKeys.Fault() == UpdateFault::None &&
                statement->validKeys.Texts().size() <= TrustedKeys::MOST_KEYS,
            "its keys are usable, one or two");
    Require(statement->revoked.size() <= KeyStatement::MOST_REVOKED, "its revoked keys are not too many");
    for (std::string const& id : statement->revoked)
    {
        Require(IsKeyId(id) && !statement->validKeys.HasId(id), "no valid key is revoked");
    }
}

void RequireLine(QByteArray const& feed)
{
    if (auto const line = FindKeyStatement(feed))
    {
        Require(line->text.size() <= KeyStatement::MOST_BYTES, "no statement is longer than it may be");
        Require(feed.mid(line->offset, line->size) == KeyStatementLine(line->text, line->signature),
                "the line is written in one way");
        Require(line->offset == 0 || feed.at(line->offset - 1) == '\n', "it stands alone");
        Require(!FindKeyStatement(feed + feed), "it stands once");
        RequireStatement(line->text);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    QByteArray const bytes(reinterpret_cast<char const*>(data), static_cast<int>(size));
    RequireStatement(bytes.toStdString());
    RequireLine(bytes);
    // No mutation produces a signature, but it produces the text that is signed.
    QByteArray const line = KeyStatementLine(bytes.toStdString(), std::string(86, 'A') + "==");
    RequireLine(line);
    bool const isReadable = size <= KeyStatement::MOST_BYTES;
    Require(FindKeyStatement(line).has_value() == isReadable, "a line that was made is found, unless it is too long");
    KeyTrust const trust{{}, ROOT_KEY, "com.example.app", 0};
    for (QByteArray const& feed : {bytes, line})
    {
        auto const believed = BelieveKeys(feed, trust, QDateTime::fromSecsSinceEpoch(0, Qt::UTC));
        Require(!believed, "nothing is believed that the root key has not signed");
    }
    return 0;
}
