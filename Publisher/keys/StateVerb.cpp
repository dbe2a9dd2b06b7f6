// StateVerb.cpp: "keys state": declares with the root key which signing keys are valid.

#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/check/KeyStatement.h"
#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/keys/Signer.h"

#include <memory>

namespace Pelnar::Publisher
{
namespace
{

constexpr int USUAL_DAYS = 365;

struct Options
{
    SignerOptions root{"--root-key", "--signer"};
    std::string serial;
    std::vector<std::string> bundles;
    std::vector<std::string> validKeys;
    std::vector<std::string> revoked;
    int validDays = USUAL_DAYS;
};

/// The ids of keys that are given as an id or in full.
std::vector<std::string> IdsOf(std::vector<std::string> const& texts)
{
    std::vector<std::string> ids;
    for (std::string const& text : texts)
    {
        ids.push_back(Engine::IsKeyId(text) ? text : Engine::KeyIdOf(text));
        if (ids.back().empty())
        {
            throw Refusal({u"--revoke"_s,
                           u"\"%1\" is neither a key nor the id of one"_s.arg(QString::fromStdString(text).left(60)),
                           u"give the public key in base64, or the 16 digits of its id"_s});
        }
    }
    return ids;
}

ExitStatus State(Options const& options, Console const& console)
{
    std::unique_ptr<ISigner> const root = LoadSigner(options.root);
    Engine::KeyStatement statement;
    statement.serial = Engine::FeedSerial(QString::fromStdString(options.serial));
    statement.expires = QDateTime::currentDateTimeUtc().addDays(options.validDays);
    statement.bundles = options.bundles;
    statement.validKeys = options.validKeys;
    statement.revoked = IdsOf(options.revoked);
    std::string const text = Engine::TextOf(statement);
    if (!Engine::ParseKeyStatement(text))
    {
        throw Refusal(
            {u"clients would not accept this statement"_s,
             u"give a serial from 1, one to eight bundles, one or two valid keys and at most 64 revoked keys, each only once; a key cannot be both valid and revoked"_s});
    }
    if (statement.validKeys.HasId(Engine::KeyIdOf(root->PublicKeyText().toStdString())))
    {
        throw Refusal({u"--valid"_s, u"names the root key itself"_s,
                       u"sign updates with another key, so that the root key stays offline"_s});
    }
    QByteArray const line = Engine::KeyStatementLine(text, root->SignatureOf(QByteArray::fromStdString(text)));
    console.out.stream.write(line.constData(), line.size());
    return ExitStatus::Clean;
}

} // namespace

void AddState(CLI::App& keys, VerbContext& context)
{
    auto const [verb, options] = AddVerb<Options>(keys, context, "state",
                                                  "Declare with the root key which signing keys are valid and which "
                                                  "are revoked. Prints the line for the feed; needs no network",
                                                  State);
    AddSignerOptions(verb, options.root, ". It is the root key");
    verb.add_option("--serial", options.serial, "Serial number of the statement, greater than that of the last one")
        ->required()
        ->type_name("NUMBER");
    verb.add_option("--bundle", options.bundles, "Identifier of a bundle that it is for; may be repeated")
        ->required()
        ->allow_extra_args(false)
        ->type_name("IDENTIFIER");
    AddKeysOption(verb, "--valid", options.validKeys, "Public key that is valid, in base64; may be given twice")
        .required();
    verb.add_option("--revoke", options.revoked, "Public key that is revoked forever, or its id; may be repeated")
        ->allow_extra_args(false)
        ->type_name("KEY");
    verb.add_option("--valid-for", options.validDays, "Days until the statement expires")
        ->type_name("DAYS")
        ->check(CLI::Range(1, 3650))
        ->capture_default_str();
}

} // namespace Pelnar::Publisher
