#include "Publisher/keys/CommandSigner.h"

#include "Publisher/Refusal.h"

#include <QFile>
#include <QProcess>

#include <cerrno>
#include <chrono>
#include <memory>

#include <signal.h>
#include <sys/mman.h>
#include <wordexp.h>

namespace Pelnar::Publisher
{
namespace
{

/// A person may have to find the token and type its number.
constexpr std::chrono::minutes LONGEST_RUN{10};
constexpr int MOST_OUTPUT_BYTES = 4096;

[[noreturn]] void RefuseSigner(QString const& what, QString const& mend)
{
    throw Refusal({u"--signer"_s, what, mend});
}

/// The words of \a command, split as a shell does; no command is run for this.
QStringList WordsOf(QString const& command)
{
    wordexp_t words{};
    int const fault = ::wordexp(QFile::encodeName(command).constData(), &words, WRDE_NOCMD | WRDE_UNDEF);
    std::unique_ptr<wordexp_t, void (*)(wordexp_t*)> const owner(&words, &::wordfree);
    if (fault != 0)
    {
        RefuseSigner(u"\"%1\" is not a single command"_s.arg(command.left(200)),
                     u"close every quote, set every variable, and put pipes into a script"_s);
    }
    QStringList texts;
    for (std::size_t i = 0; i < words.we_wordc; ++i)
    {
        texts.append(QFile::decodeName(words.we_wordv[i]));
    }
    return texts;
}

/// Base64 of the signature that a program printed as base64 or as bytes.
std::string SignatureIn(QByteArray const& output)
{
    QByteArray const text =
        output.size() == int(Engine::ED25519_SIGNATURE_BYTES) ? output.toBase64() : output.trimmed();
    Engine::Ed25519SignatureBytes signature;
    if (Engine::ParseSignature(text.toStdString(), signature) != Engine::UpdateFault::None)
    {
        RefuseSigner(output.isEmpty() ? u"the program printed nothing"_s
                                      : u"the program printed %1 bytes that are not a signature"_s.arg(output.size()),
                     u"let it write the 64 bytes of the Ed25519 signature, or their base64, to standard "
                     "output, and everything else to standard error"_s);
    }
    return text.toStdString();
}

/// A program that a person can interrupt: this process blocks the signals for that, and its children would too.
class SignerProcess final : public QProcess
{
private:
    void setupChildProcess() override
    {
        sigset_t none;
        ::sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
    }
};

/// The output of \a process until it ends.
QByteArray OutputOf(QProcess& process)
{
    if (!process.waitForStarted())
    {
        RefuseSigner(u"the program \"%1\" cannot be started: %2"_s.arg(process.program(), process.errorString()),
                     u"give the command as you would type it, with the path of its program"_s);
    }
    QByteArray output;
    auto const end = std::chrono::steady_clock::now() + LONGEST_RUN;
    auto const take = [&]
    {
        output += process.readAllStandardOutput();
        if (output.size() > MOST_OUTPUT_BYTES || std::chrono::steady_clock::now() > end)
        {
            process.kill();
            process.waitForFinished();
            RefuseSigner(output.size() > MOST_OUTPUT_BYTES ? u"the program printed more than a signature"_s
                                                           : u"the program did not end within ten minutes"_s,
                         u"the program must write the signature and exit"_s);
        }
    };
    while (process.state() != QProcess::NotRunning)
    {
        process.waitForReadyRead(1000);
        take();
    }
    take();
    return output;
}

} // namespace

CommandSigner::CommandSigner(QString const& command, std::string publicKey)
    : m_command(WordsOf(command)), m_publicKey(std::move(publicKey))
{
    if (m_command.isEmpty())
    {
        RefuseSigner(u"does not name a program"_s, u"give the command as you would type it"_s);
    }
    if (KeyIdOf(m_publicKey).isEmpty())
    {
        throw Refusal({u"--signer-key"_s,
                       m_publicKey.empty()
                           ? u"is required with --signer"_s
                           : u"\"%1\" is not an Ed25519 key"_s.arg(QString::fromStdString(m_publicKey).left(60)),
                       u"give the public key of the program that signs, 32 bytes in base64"_s});
    }
}

QString CommandSigner::PublicKeyText() const
{
    return QString::fromStdString(m_publicKey);
}

std::string CommandSigner::Run(int descriptor, QString const& name) const
{
    SignerProcess process;
    process.setProgram(m_command.first());
    process.setArguments(m_command.mid(1));
    // Opened again: the program reads from the beginning, and no other process can replace the file.
    process.setStandardInputFile(u"/proc/self/fd/%1"_s.arg(descriptor));
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QIODevice::ReadOnly);
    QByteArray const output = OutputOf(process);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
    {
        RefuseSigner(process.exitStatus() != QProcess::NormalExit
                         ? u"the program was ended by a signal"_s
                         : u"the program failed with exit status %1"_s.arg(process.exitCode()),
                     u"read its messages and try again"_s);
    }
    std::string signature = SignatureIn(output);
    if (Engine::VerifyFileSignature(descriptor, signature, {m_publicKey}) != Engine::UpdateFault::None)
    {
        RefuseSigner(u"the program's output is not a signature of %1 by the key %2"_s.arg(name, KeyIdOf(m_publicKey)),
                     u"check which key the program uses, and that it signs the bytes themselves and not their hash"_s);
    }
    return signature;
}

ArchiveSignature CommandSigner::Sign(InputFile const& archive) const
{
    CheckArchiveSize(archive);
    return {QString::fromStdString(Run(archive.descriptor.Get(), archive.name)), archive.size};
}

std::string CommandSigner::SignatureOf(QByteArray const& message) const
{
    Engine::UniqueFd const file(::memfd_create("feed", MFD_CLOEXEC));
    if (!file ||
        !Engine::WriteAll(file.Get(), Engine::Bytes(reinterpret_cast<unsigned char const*>(message.constData()),
                                                    std::size_t(message.size()))))
    {
        RefuseFile(u"the feed"_s, u"cannot be passed to the program"_s, errno,
                   u"close other programs, and run this again"_s);
    }
    return Run(file.Get(), u"the feed"_s);
}

} // namespace Pelnar::Publisher
