// KeysVerb.cpp: "keys": makes, shows and exports the key that signs archives.

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/keys/SigningKey.h"

namespace Pelnar::Publisher
{
namespace
{

constexpr char KEY_FILE_HELP[] = "File of the private key, or \"-\" for standard input";

/// How the public key is printed.
enum class PublicKeyForm
{
    Xml,
    Gnustep,
    Bare,
};

QStringList EntryOf(QString const& publicKey, PublicKeyForm form)
{
    switch (form)
    {
    case PublicKeyForm::Xml:
        return {u"<key>SUPublicEDKey</key>"_s, u"<string>%1</string>"_s.arg(publicKey)};
    case PublicKeyForm::Gnustep:
        return {u"SUPublicEDKey = \"%1\";"_s.arg(publicKey)};
    case PublicKeyForm::Bare:
        break;
    }
    return {publicKey};
}

/// Adds the option for the form of the public key.
void AddFormOption(CLI::App& verb, PublicKeyForm& form)
{
    AddChoiceOption<PublicKeyForm>(
        verb, "--format", form,
        {{"xml", PublicKeyForm::Xml}, {"gnustep", PublicKeyForm::Gnustep}, {"bare", PublicKeyForm::Bare}},
        "Form of the public key: an entry for an XML information file, an entry for a GNUstep file, or the key alone");
}

struct KeyOptions
{
    std::string file;
    PublicKeyForm form = PublicKeyForm::Xml;
};

ExitStatus Generate(KeyOptions const& options, Console const& console)
{
    SigningKey const key = SigningKey::Generate();
    key.Save(QString::fromStdString(options.file));
    console.Print(EntryOf(key.PublicKeyText(), options.form));
    return ExitStatus::Clean;
}

void AddGenerateKey(CLI::App& keys, VerbContext& context)
{
    auto const [verb, options] =
        AddVerb<KeyOptions>(keys, context, "generate",
                            "Make a key pair. Write the private key to a new file that only you may read, and print "
                            "the public key as the entry for the bundle's information file",
                            Generate);
    verb.add_option("FILE", options.file, "New file for the private key")->required();
    AddFormOption(verb, options.form);
}

ExitStatus Show(KeyOptions const& options, Console const& console)
{
    SigningKey const key = SigningKey::Load(QString::fromStdString(options.file));
    console.Print(EntryOf(key.PublicKeyText(), options.form));
    return ExitStatus::Clean;
}

void AddShow(CLI::App& keys, VerbContext& context)
{
    auto const [verb, options] = AddVerb<KeyOptions>(
        keys, context, "show", "Print the public key as the entry for the bundle's information file", Show);
    verb.add_option("FILE", options.file, KEY_FILE_HELP)->required();
    AddFormOption(verb, options.form);
}

struct ExportOptions
{
    std::string file;
    KeyForm form = KeyForm::Seed;
    bool isTerminalWanted = false;
};

ExitStatus Export(ExportOptions const& options, Console const& console)
{
    SigningKey const key = SigningKey::Load(QString::fromStdString(options.file));
    if (console.out.isTerminal && !options.isTerminalWanted)
    {
        return console.Refuse({u"the private key would be visible on this terminal"_s,
                               u"send the output to another program or a file, or add --to-terminal"_s});
    }
    SecretBytes const text = key.SecretText(options.form);
    console.out.stream.write(reinterpret_cast<char const*>(text.Data()), std::streamsize(text.Size() - 1));
    return ExitStatus::Clean;
}

void AddExport(CLI::App& keys, VerbContext& context)
{
    auto const [verb, options] = AddVerb<ExportOptions>(
        keys, context, "export", "Print the private key, for a backup or another program", Export);
    verb.add_option("FILE", options.file, KEY_FILE_HELP)->required();
    AddChoiceOption<KeyForm>(
        verb, "--form", options.form, {{"seed", KeyForm::Seed}, {"secret-key", KeyForm::SecretKey}},
        "Form of the private key: 32 bytes (seed), or 64 bytes with the public key (secret-key), in base64");
    verb.add_flag("--to-terminal", options.isTerminalWanted, "Print it even if standard output is a terminal");
}

} // namespace

void AddKeys(CLI::App& program, VerbContext& context)
{
    CLI::App& keys = *program.add_subcommand("keys", "Make, show and change the keys that sign archives and feeds");
    keys.require_subcommand(1);
    AddGenerateKey(keys, context);
    AddShow(keys, context);
    AddExport(keys, context);
    AddState(keys, context);
    AddRotate(keys, context);
}

} // namespace Pelnar::Publisher
