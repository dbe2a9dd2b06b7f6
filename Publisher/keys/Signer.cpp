#include "Publisher/keys/Signer.h"

#include "Engine/core/feed/FeedParser.h"
#include "Publisher/Refusal.h"
#include "Publisher/keys/CommandSigner.h"
#include "Publisher/keys/SigningKey.h"

namespace Pelnar::Publisher
{

QString KeyIdOf(std::string const& publicKey)
{
    return QString::fromStdString(Engine::KeyIdOf(publicKey));
}

QStringList KeyIdsOf(Engine::TrustedKeys const& keys)
{
    QStringList ids;
    for (std::string const& id : keys.Ids())
    {
        ids.append(QString::fromStdString(id));
    }
    return ids;
}

QString TextOf(std::vector<KeyedSignature> const& signatures)
{
    QStringList texts;
    for (KeyedSignature const& each : signatures)
    {
        texts.append(each.keyId + u':' + each.signature);
    }
    return texts.join(u' ');
}

QString AttributesOf(ArchiveSignature const& signature)
{
    return u"sparkle:edSignature=\"%1\" length=\"%2\""_s.arg(signature.signature, QString::number(signature.length));
}

void CheckArchiveSize(InputFile const& archive)
{
    if (archive.size == 0 || archive.size > Engine::FeedLimits().maxContentLength)
    {
        throw Refusal({archive.name,
                       archive.size == 0 ? u"is empty"_s : u"is larger than the 16 GiB that clients download"_s,
                       u"give the archive that is to be published"_s},
                      RefusalCause::Content);
    }
}

void AddSignerOptions(CLI::App& verb, SignerOptions& options, std::string const& purpose)
{
    std::string const command = options.commandOption;
    verb.add_option(options.keyOption, options.keyFile,
                    "File of the private key, or \"-\" for standard input" + purpose)
        ->type_name("FILE");
    verb.add_option(command, options.command,
                    "Instead of a private key: a program that reads the data from standard input and writes the "
                    "signature, 64 bytes or their base64, to standard output")
        ->type_name("COMMAND");
    verb.add_option(command + "-key", options.publicKey, "The public key that this program signs with, in base64")
        ->type_name("KEY");
}

std::unique_ptr<ISigner> LoadSigner(SignerOptions const& options)
{
    if (options.keyFile.empty() == options.command.empty())
    {
        QString const key = QLatin1String(options.keyOption);
        QString const command = QLatin1String(options.commandOption);
        throw Refusal(
            {options.keyFile.empty() ? u"%1 is required"_s.arg(key) : u"%1 and %2 cannot both sign"_s.arg(key, command),
             u"give %1 with the file of the private key, or %2 with a program that signs"_s.arg(key, command)});
    }
    if (options.command.empty())
    {
        return std::make_unique<SigningKey>(SigningKey::Load(QString::fromStdString(options.keyFile)));
    }
    return std::make_unique<CommandSigner>(QString::fromStdString(options.command), options.publicKey);
}

} // namespace Pelnar::Publisher
