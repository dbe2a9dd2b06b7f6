#include "Engine/core/check/KeyStatement.h"

#include "Engine/core/check/FeedTrust.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view FIRST_LINE = "pelnar-keys 1";
QByteArray const LINE_START = QByteArrayLiteral("<!-- pelnar-keys: ");
QByteArray const LINE_END = QByteArrayLiteral(" -->\n");
constexpr char ALGORITHM[] = "ed25519";

/// Splits a text into lines.
class StatementReader
{
public:
    explicit StatementReader(std::string_view text) : m_rest(text) {}

    /// The rest of the next line after \a word and a blank; empty if the next line has another word.
    std::optional<std::string> Take(std::string_view word)
    {
        std::size_t const end = m_rest.find('\n');
        std::string_view const line = m_rest.substr(0, end);
        if (end == std::string_view::npos || line.size() < word.size() + 2 || line.substr(0, word.size()) != word ||
            line[word.size()] != ' ')
        {
            return std::nullopt;
        }
        m_rest.remove_prefix(end + 1);
        return std::string(line.substr(word.size() + 1));
    }

    /// All following lines with \a word, at most \a most.
    std::vector<std::string> TakeAll(std::string_view word, std::size_t most)
    {
        std::vector<std::string> values;
        while (values.size() < most)
        {
            std::optional<std::string> value = Take(word);
            if (!value)
            {
                break;
            }
            values.push_back(std::move(*value));
        }
        return values;
    }

    bool TakeLine(std::string_view line)
    {
        bool const isThere = m_rest.substr(0, line.size()) == line && m_rest.substr(line.size(), 1) == "\n";
        m_rest.remove_prefix(isThere ? line.size() + 1 : 0);
        return isThere;
    }

    bool IsAtEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};

bool IsBundleName(std::string const& text)
{
    return text.size() <= KeyStatement::MOST_BUNDLE_BYTES &&
           std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < '\x7f'; });
}

bool HasTwice(std::vector<std::string> values)
{
    std::sort(values.begin(), values.end());
    return std::adjacent_find(values.begin(), values.end()) != values.end();
}

bool IsUsable(KeyStatement const& statement)
{
    bool const hasRevokedKey = std::any_of(statement.revoked.begin(), statement.revoked.end(),
                                           [&](std::string const& id) { return statement.validKeys.HasId(id); });
    return statement.serial > 0 && statement.expires.isValid() && !statement.bundles.empty() &&
           std::all_of(statement.bundles.begin(), statement.bundles.end(), IsBundleName) &&
           statement.validKeys.Fault() == UpdateFault::None &&
           std::all_of(statement.revoked.begin(), statement.revoked.end(), IsKeyId) && !hasRevokedKey &&
           !HasTwice(statement.bundles) && !HasTwice(statement.validKeys.Ids()) && !HasTwice(statement.revoked);
}

std::optional<std::string> TextOfBase64(QByteArray const& base64)
{
    auto const bytes = DecodeBase64(std::string_view(base64.constData(), std::size_t(base64.size())));
    return bytes && bytes->size() <= KeyStatement::MOST_BYTES ? std::optional(std::string(bytes->begin(), bytes->end()))
                                                              : std::nullopt;
}

Result<BelievedKeys> Judge(KeyStatement const& statement, KeyTrust const& trust, QDateTime const& now)
{
    std::vector<std::string> const& bundles = statement.bundles;
    if (std::find(bundles.begin(), bundles.end(), trust.bundleIdentifier) == bundles.end())
    {
        return Failure(ErrorCause::KeyStatementForAnother);
    }
    if (statement.serial < trust.lowestSerial)
    {
        return Failure(ErrorCause::KeyStatementReplayed);
    }
    if (now >= statement.expires)
    {
        return Failure(ErrorCause::KeyStatementExpired);
    }
    return BelievedKeys{statement.validKeys, statement.serial, statement.revoked};
}

} // namespace

std::optional<KeyStatement> ParseKeyStatement(std::string_view text)
{
    if (text.size() > KeyStatement::MOST_BYTES)
    {
        return std::nullopt;
    }
    StatementReader reader(text);
    KeyStatement statement;
    bool const isOurs = reader.TakeLine(FIRST_LINE);
    statement.serial = FeedSerial(QString::fromLatin1(reader.Take("serial").value_or("").c_str()));
    statement.expires = FeedMoment(QString::fromLatin1(reader.Take("expires").value_or("").c_str()));
    statement.bundles = reader.TakeAll("bundle", KeyStatement::MOST_BUNDLES);
    statement.validKeys = reader.TakeAll("valid", TrustedKeys::MOST_KEYS);
    statement.revoked = reader.TakeAll("revoked", KeyStatement::MOST_REVOKED);
    // The statement, written again, must give the same text: no blank, no leading zero and no NUL gives a second
    // spelling.
    bool const isWhole = isOurs && reader.IsAtEnd() && IsUsable(statement) && TextOf(statement) == text;
    return isWhole ? std::optional(std::move(statement)) : std::nullopt;
}

std::string TextOf(KeyStatement const& statement)
{
    std::string text(FIRST_LINE);
    auto const add = [&text](char const* word, std::string const& value)
    { text.append("\n").append(word).append(" ").append(value); };
    add("serial", std::to_string(statement.serial));
    add("expires", statement.expires.toUTC().toString(Qt::ISODate).toStdString());
    for (auto const& [word, values] :
         {std::pair("bundle", &statement.bundles), std::pair("valid", &statement.validKeys.Texts()),
          std::pair("revoked", &statement.revoked)})
    {
        for (std::string const& value : *values)
        {
            add(word, value);
        }
    }
    return text + '\n';
}

QByteArray KeyStatementLine(std::string const& text, std::string const& signature)
{
    return LINE_START + ALGORITHM + ' ' + QByteArray::fromStdString(text).toBase64() + ' ' +
           QByteArray::fromStdString(signature) + LINE_END;
}

Result<SignedKeyStatement> FindKeyStatement(QByteArray const& feed)
{
    int const start = feed.indexOf(LINE_START);
    if (start < 0)
    {
        return Failure(ErrorCause::KeyStatementMissing);
    }
    int const valueStart = start + LINE_START.size();
    int const end = feed.indexOf(LINE_END, valueStart);
    // The longest possible line of a statement; a longer line is not parsed.
    constexpr int MOST_LINE_BYTES = int(KeyStatement::MOST_BYTES) / 3 * 4 + 256;
    bool const isAlone = (start == 0 || feed.at(start - 1) == '\n') && feed.lastIndexOf(LINE_START) == start;
    if (end < 0 || !isAlone || end - valueStart > MOST_LINE_BYTES)
    {
        return Failure(ErrorCause::KeyStatementMalformed);
    }
    QList<QByteArray> const parts = feed.mid(valueStart, end - valueStart).split(' ');
    std::optional<std::string> text = parts.size() == 3 ? TextOfBase64(parts.at(1)) : std::nullopt;
    Ed25519SignatureBytes signature;
    if (!text || parts.at(0) != ALGORITHM || ParseSignature(parts.at(2).toStdString(), signature) != UpdateFault::None)
    {
        return Failure(ErrorCause::KeyStatementMalformed);
    }
    return SignedKeyStatement{std::move(*text), parts.at(2).toStdString(), start, end + LINE_END.size() - start};
}

Result<BelievedKeys> BelieveKeys(QByteArray const& feed, KeyTrust const& trust, QDateTime const& now)
{
    if (trust.rootKey.empty())
    {
        return BelievedKeys{trust.ownKeys, 0, {}};
    }
    Result<SignedKeyStatement> const line = FindKeyStatement(feed);
    if (!line)
    {
        return Failure(line.error());
    }
    UpdateFault const verdict = VerifySignature(line->text, line->signature, {trust.rootKey});
    if (verdict != UpdateFault::None)
    {
        return Failure(verdict == UpdateFault::KeyMalformed ? ErrorCause::RootKeyMalformed
                                                            : ErrorCause::KeyStatementSignatureWrong);
    }
    std::optional<KeyStatement> const statement = ParseKeyStatement(line->text);
    return statement ? Judge(*statement, trust, now) : Failure(ErrorCause::KeyStatementMalformed);
}

} // namespace Pelnar::Engine
