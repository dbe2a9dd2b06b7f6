// CommandSigner.h: signs by a program of the publisher's: a hardware token, a key service.
// Thread: the main thread, which waits for the program.
#pragma once

#include "Publisher/keys/Signer.h"

#include <QStringList>

namespace Pelnar::Publisher
{

/// The program is started once for each signature; its line is split as a shell does it. What it says on standard error
/// is shown. Every signature is verified at once.
class CommandSigner final : public ISigner
{
public:
    /// Throws Refusal: for a command without a program, and for a text that is no key.
    CommandSigner(QString const& command, std::string publicKey);

    QString PublicKeyText() const override;
    ArchiveSignature Sign(InputFile const& archive) const override;
    std::string SignatureOf(QByteArray const& message) const override;

private:
    /// The signature of the file behind \a descriptor, which \a name is.
    std::string Run(int descriptor, QString const& name) const;

    QStringList m_command;
    std::string m_publicKey;
};

} // namespace Pelnar::Publisher
