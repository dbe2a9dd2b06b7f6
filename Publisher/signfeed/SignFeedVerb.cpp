#include "Publisher/Verb.h"

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/files/FolderLock.h"
#include "Publisher/gate/FeedLength.h"
#include "Publisher/signfeed/FeedSigner.h"

#include <QFileInfo>

#include <memory>

namespace Pelnar::Publisher
{
namespace
{

struct SignFeedOptions
{
    std::string feed;
    SignerOptions signer;
    std::string output;
    std::string keyStatement;
    SigningTerms terms;
    bool isAcceptingChanges = false;
};

ExitStatus SignFeedFile(SignFeedOptions const& options, Console const& console)
{
    QString const name = QString::fromStdString(options.feed);
    QString const output = options.output.empty() ? name : QString::fromStdString(options.output);
    FolderLock const lock(QFileInfo(output).absolutePath(), console);
    QByteArray const bytes = ReadFeedFile(name);
    std::unique_ptr<ISigner> const signer = LoadSigner(options.signer);
    ChangedFeed const changed = options.isAcceptingChanges ? ChangedFeed::Accepted : ChangedFeed::Refused;
    FeedContent const content = ReadFeedContent(name, bytes, *signer, changed);
    QByteArray bare = content.bytes;
    if (!options.keyStatement.empty())
    {
        bare = WithKeyStatement(name, bare, QString::fromStdString(options.keyStatement), *signer);
    }
    SignedFeedBytes const feed = SignFeed(name, bare, *signer, options.terms, console);
    ReplaceFeed({output, QFileInfo(name).path(), feed.bytes, content.isSigned ? bytes.size() : 0}, console);
    console.Print(u"%1: %2"_s.arg(output, TextOf(feed.terms)));
    return ExitStatus::Clean;
}

} // namespace

void AddSignFeed(CLI::App& program, VerbContext& context)
{
    auto const [verb, options] = AddVerb<SignFeedOptions>(
        program, context, "sign-feed",
        "Sign a feed, or sign it again before its signature expires. The feed gets a new serial and a new date; all "
        "other bytes stay unchanged. A feed that was changed since the last signature is refused",
        SignFeedFile);
    verb.add_option("FEED", options.feed, "File of the feed")->required();
    AddSignerOptions(verb, options.signer);
    AddSigningOptions(verb, options.terms);
    AddKeyStatementOption(verb, options.keyStatement);
    verb.add_flag("--accept-changes", options.isAcceptingChanges,
                  "Also sign a feed that was changed after it was signed, or that another key signed");
    verb.add_option("-o,--output", options.output, "File to write; default: FEED itself")->type_name("FILE");
}

} // namespace Pelnar::Publisher
