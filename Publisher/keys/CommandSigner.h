// CommandSigner.h: signs with a program of the publisher: for a hardware token or a key service. Thread: the main
// thread, which waits for the program.
#pragma once

#include "Publisher/keys/Signer.h"

#include <QStringList>

namespace Pelnar::Publisher
{

/// Starts the program once for each signature, with a command line that is split as a shell does. Its standard error is
/// shown. Every signature is verified immediately.
class CommandSigner final : public ISigner
{
public:
    /// Throws Refusal for a command without a program, and for a text that is not a key.
    CommandSigner(QString const& command, std::string publicKey);

    QString PublicKeyText() const override;
    ArchiveSignature Sign(InputFile const& archive) const override;
    std::string SignatureOf(QByteArray const& message) const override;

private:
    /// The signature of the file behind \a descriptor, whose name is \a name.
    std::string Run(int descriptor, QString const& name) const;

    QStringList m_command;
    std::string m_publicKey;
};

} // namespace Pelnar::Publisher
