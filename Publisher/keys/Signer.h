// Signer.h: signs archives and feeds: with a private key, or with a program of the publisher that has one. Ownership:
// the caller owns a signer.
#pragma once

#include "Engine/core/bundle/TrustedKeys.h"
#include "Publisher/Verb.h"
#include "Publisher/files/InputFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// The short name of a public key, by which a feed says who signed and whom a version trusts:
/// docs/formats/item-keys.md.
QString KeyIdOf(std::string const& publicKey);
/// The ids of \a keys.
QStringList KeyIdsOf(Engine::TrustedKeys const& keys);

/// A signature in addition to the one that every client reads.
struct KeyedSignature
{
    QString keyId;
    QString signature; ///< base64
};

struct ArchiveSignature
{
    QString signature; ///< base64
    quint64 length = 0;
    std::vector<KeyedSignature> all = {}; ///< of every key that signed, if there are several
};

/// The attributes for the archive's enclosure in a feed.
QString AttributesOf(ArchiveSignature const& signature);

/// The value of the attribute that holds several signatures: docs/formats/item-keys.md.
QString TextOf(std::vector<KeyedSignature> const& signatures);

class ISigner
{
public:
    virtual ~ISigner() = default;

    /// Base64 of 32 bytes.
    [[nodiscard]] virtual QString PublicKeyText() const = 0;
    /// Throws Refusal if the archive is empty or longer than a feed allows, and if the check of clients does not accept
    /// the signature.
    [[nodiscard]] virtual ArchiveSignature Sign(InputFile const& archive) const = 0;
    /// Base64 of the signature of \a message. Throws Refusal.
    [[nodiscard]] virtual std::string SignatureOf(QByteArray const& message) const = 0;
};

/// Throws Refusal for an archive that no feed may offer.
void CheckArchiveSize(InputFile const& archive);

/// The signer that a command line names.
struct SignerOptions
{
    char const* keyOption = "--key";
    char const* commandOption = "--signer";
    std::string keyFile = {};   ///< of the private key, or "-"
    std::string command = {};   ///< of the publisher's program
    std::string publicKey = {}; ///< of that program

    /// True if the command line names a signer, even in a wrong way.
    [[nodiscard]] bool IsGiven() const { return !keyFile.empty() || !command.empty() || !publicKey.empty(); }
};

/// Adds the two options whose names are in \a options, and "--signer-key" or its counterpart there. \a purpose says
/// what the key in the file signs.
void AddSignerOptions(CLI::App& verb, SignerOptions& options, std::string const& purpose = {});

/// The signer that \a options name. Throws Refusal unless they name exactly one of the two, and if it cannot sign.
std::unique_ptr<ISigner> LoadSigner(SignerOptions const& options);

} // namespace Pelnar::Publisher
