#include "Publisher/lint/KeyStatementRules.h"

#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/check/KeyStatement.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Engine/core/feed/SignedFeed.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/keys/Signer.h"
#include "Publisher/lint/SignatureRules.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

/// The root key is offline, so a new statement takes time.
constexpr int DAYS_LEFT = 30;

/// A well-formed statement and the place of its line.
struct PlacedStatement
{
    Engine::KeyStatement statement;
    Engine::SignedKeyStatement line;
};

std::optional<PlacedStatement> StatementIn(QByteArray const& bytes)
{
    auto found = Engine::FindKeyStatement(bytes);
    auto statement = found ? Engine::ParseKeyStatement(found->text) : std::nullopt;
    return statement ? std::optional(PlacedStatement{std::move(*statement), std::move(*found)}) : std::nullopt;
}

QString TextOf(QStringList const& ids)
{
    return ids.join(u" and "_s);
}

/// True if clients of \a other, and of all older versions, lose nothing without \a item.
bool Supersedes(Engine::FeedItem const& other, Engine::FeedItem const& item)
{
    return &other != &item && !other.policy.isWithdrawn && OrderOfTexts(other.versionString, item.versionString) >= 0 &&
           Engine::ShareMachine(other.policy.machines, item.policy.machines) &&
           (other.policy.channel.isEmpty() || other.policy.channel == item.policy.channel);
}

enum class Standing
{
    Usable,
    Superseded, ///< because a usable item replaces it
    Lost,
};

Standing StandingOf(Engine::FeedItem const& item, std::vector<Engine::FeedItem> const& all, QStringList const& valid)
{
    auto const isUsable = [&valid](Engine::FeedItem const& each)
    { return Engine::SignatureFor(each, valid).has_value(); };
    if (item.policy.isWithdrawn || isUsable(item))
    {
        return Standing::Usable;
    }
    bool const isSuperseded =
        std::any_of(all.begin(), all.end(),
                    [&](Engine::FeedItem const& other) { return Supersedes(other, item) && isUsable(other); });
    return isSuperseded ? Standing::Superseded : Standing::Lost;
}

void CheckItems(LintSubject const& subject, QStringList const& valid, LintFindings& findings)
{
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            if (StandingOf(*item.full.item, platform.parsed, valid) == Standing::Lost)
            {
                findings.Add(LintRule::KeyNotValid, item.full.Place(),
                             u"%1 is signed by the key %2; valid keys: %3"_s.arg(
                                 NameOf(*item.full.item), TextOf(Engine::SignersOf(*item.full.item)), TextOf(valid)));
            }
        }
    }
}

void CheckFeedSigner(QByteArray const& bytes, Engine::TrustedKeys const& valid, LintFindings& findings)
{
    Engine::SignedFeed const feed = Engine::SplitSignedFeed(bytes);
    std::string_view const content(bytes.constData(), std::size_t(std::max(feed.contentBytes, 0)));
    if (feed.fault == Engine::SignedFeedFault::None &&
        Engine::VerifySignature(content, feed.signature, valid) != Engine::UpdateFault::None)
    {
        findings.Add(LintRule::KeyNotValid, PlaceOf(bytes, feed.blockOffset),
                     u"no valid key signed the feed itself; valid keys: %1"_s.arg(TextOf(KeyIdsOf(valid))));
    }
}

qint64 FeedSerialOf(QByteArray const& bytes)
{
    auto const validity = Engine::ReadFeedValidity(
        Engine::ParseFeed(bytes, QUrl(), Engine::FeedPlatform::Linux).value_or(Engine::FeedContent()).channel);
    return validity ? validity->serial : 0;
}

/// What clients of the feed \a before remember when they read this feed.
void CheckSerials(QByteArray const& bytes, QByteArray const& before, TextPlace place, LintFindings& findings)
{
    std::optional<PlacedStatement> const past = StatementIn(before);
    std::optional<PlacedStatement> const now = StatementIn(bytes);
    qint64 const pastSerial = past ? past->statement.serial : 0;
    qint64 const serial = now ? now->statement.serial : 0;
    if (serial < pastSerial)
    {
        findings.Add(LintRule::SerialLower, place,
                     u"the key statement has the serial %1; the previous one had %2"_s.arg(serial).arg(pastSerial));
    }
    qint64 const pastFeed = FeedSerialOf(before);
    qint64 const feed = FeedSerialOf(bytes);
    if (feed < pastFeed)
    {
        findings.Add(LintRule::SerialLower, {1, 1},
                     u"the feed has the serial %1; the previous one had %2"_s.arg(feed).arg(pastFeed));
    }
}

void CheckSignature(Engine::SignedKeyStatement const& line, std::vector<std::string> const& rootKeys, TextPlace place,
                    LintFindings& findings)
{
    bool const isSigned =
        std::any_of(rootKeys.begin(), rootKeys.end(),
                    [&line](std::string const& key)
                    { return Engine::VerifySignature(line.text, line.signature, {key}) == Engine::UpdateFault::None; });
    if (!isSigned && !rootKeys.empty())
    {
        findings.Add(LintRule::KeyStatementWrong, place, u"the statement is not signed by a given root key"_s);
    }
}

} // namespace

std::vector<LintFinding> CheckKeyStatement(QByteArray const& bytes, LintSubject const* subject,
                                           KeyStatementQuestion const& question)
{
    LintFindings findings;
    auto const found = Engine::FindKeyStatement(bytes);
    bool const isMissing = !found && found.error().cause == Engine::ErrorCause::KeyStatementMissing;
    std::optional<PlacedStatement> const placed = StatementIn(bytes);
    TextPlace const place = PlaceOf(bytes, bytes.indexOf("<!-- pelnar-keys:"));
    if (!question.previousFeed.isEmpty())
    {
        CheckSerials(bytes, question.previousFeed, place, findings);
    }
    if (isMissing && !question.rootKeys.empty())
    {
        findings.Add(LintRule::KeyStatementMissing, place, u"there is no key statement"_s);
    }
    if (!placed)
    {
        if (!isMissing)
        {
            findings.Add(
                LintRule::KeyStatementUnreadable, place,
                u"the statement is damaged, appears twice, is not alone on its line, or breaks a rule of its format"_s);
        }
        return findings.Sorted();
    }
    CheckSignature(placed->line, question.rootKeys, place, findings);
    QString const until = placed->statement.expires.toString(Qt::ISODate);
    if (question.now >= placed->statement.expires)
    {
        findings.Add(LintRule::KeyStatementExpired, place, u"the statement expired at %1"_s.arg(until));
    }
    else if (placed->statement.expires < question.now.addDays(DAYS_LEFT))
    {
        findings.Add(LintRule::KeyStatementExpiresSoon, place, u"the statement expires at %1"_s.arg(until));
    }
    CheckFeedSigner(bytes, placed->statement.validKeys, findings);
    if (subject)
    {
        CheckItems(*subject, KeyIdsOf(placed->statement.validKeys), findings);
    }
    return findings.Sorted();
}

std::vector<LintFinding> LintAsPublished(QByteArray const& bytes, QUrl const& address)
{
    LintResult lint = LintFeed(bytes, address);
    std::vector<LintFinding> const more =
        CheckKeyStatement(bytes, lint.subject.get(), {{}, {}, QDateTime::currentDateTimeUtc()});
    lint.findings.insert(lint.findings.end(), more.begin(), more.end());
    return lint.findings;
}

std::vector<LintFinding> CheckKeyUse(QByteArray const& bytes, LintSubject const& subject)
{
    LintFindings findings;
    std::optional<PlacedStatement> const placed = StatementIn(bytes);
    if (!placed)
    {
        return {};
    }
    QStringList const valid = KeyIdsOf(placed->statement.validKeys);
    std::vector<std::string> const& revoked = placed->statement.revoked;
    QStringList used;
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            QStringList const signers = Engine::SignersOf(*item.full.item);
            used += signers;
            bool const isRevoked =
                std::any_of(revoked.begin(), revoked.end(),
                            [&signers](std::string const& id) { return signers.contains(QString::fromStdString(id)); });
            if (isRevoked && StandingOf(*item.full.item, platform.parsed, valid) == Standing::Superseded)
            {
                findings.Add(LintRule::KeyRevoked, item.full.Place(),
                             u"%1 is signed by the key %2"_s.arg(NameOf(*item.full.item), TextOf(signers)));
            }
        }
    }
    for (QString const& id : valid)
    {
        if (!used.isEmpty() && !used.contains(id))
        {
            findings.Add(LintRule::KeyUnused, PlaceOf(bytes, placed->line.offset),
                         u"no item is signed by the key %1"_s.arg(id));
        }
    }
    return findings.Sorted();
}

} // namespace Pelnar::Publisher
