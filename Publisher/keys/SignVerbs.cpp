// SignVerbs.cpp: "sign" and "verify": makes the signature of an archive, and verifies one with the code of clients.

#include "Engine/core/bundle/TrustedKeys.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/FaultText.h"
#include "Publisher/keys/Signer.h"

#include <memory>

namespace Pelnar::Publisher
{
namespace
{

/// Whether the fault is in the archive, or in the key or signature.
bool IsVerdict(Engine::UpdateFault fault)
{
    return fault == Engine::UpdateFault::SignatureMismatch || fault == Engine::UpdateFault::ArchiveEmpty;
}

struct SignOptions
{
    std::string archive;
    SignerOptions signer;
};

ExitStatus Sign(SignOptions const& options, Console const& console)
{
    InputFile const archive = OpenInputFile(QString::fromStdString(options.archive));
    std::unique_ptr<ISigner> const signer = LoadSigner(options.signer);
    console.Print(AttributesOf(signer->Sign(archive)));
    return ExitStatus::Clean;
}

struct VerifyOptions
{
    std::string archive;
    std::string signature;
    std::vector<std::string> publicKeys;
};

ExitStatus Verify(VerifyOptions const& options, Console const& console)
{
    QString const archiveName = QString::fromStdString(options.archive);
    InputFile const archive = OpenInputFile(archiveName);
    Engine::UpdateFault const verdict =
        Engine::VerifyFileSignature(archive.descriptor.Get(), options.signature, options.publicKeys);
    if (verdict == Engine::UpdateFault::None)
    {
        console.Print(u"%1: signed, %2 bytes"_s.arg(archiveName, QString::number(archive.size)));
        return ExitStatus::Clean;
    }
    if (!IsVerdict(verdict))
    {
        return console.Refuse(ProblemOf(verdict, 0, archiveName));
    }
    console.Print(TextOf(ProblemOf(verdict, 0, archiveName)));
    return ExitStatus::Findings;
}

} // namespace

void AddSign(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<SignOptions>(
        program, context, "sign", "Sign an archive and print the attributes for its enclosure in the feed", Sign);
    verb.add_option("ARCHIVE", options.archive, "Archive, installer or delta to sign")->required();
    AddSignerOptions(verb, options.signer);
}

void AddVerify(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<VerifyOptions>(
        program, context, "verify",
        "Verify an archive's signature as clients do. The exit status is 1 if they would refuse the archive", Verify);
    verb.add_option("ARCHIVE", options.archive, "Archive, installer or delta")->required();
    verb.add_option("--signature", options.signature, "The feed's sparkle:edSignature")
        ->required()
        ->type_name("SIGNATURE");
    verb.add_option("--public-key", options.publicKeys,
                    "The bundle's SUPublicEDKey; give the option twice if the bundle trusts two keys")
        ->required()
        ->expected(1, 2)
        ->allow_extra_args(false)
        ->type_name("KEY");
}

} // namespace Pelnar::Publisher
