#include "Publisher/Verb.h"

#include "Engine/core/feed/SignedFeed.h"
#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/edit/FeedEdits.h"
#include "Publisher/files/FolderLock.h"
#include "Publisher/gate/FeedLength.h"
#include "Publisher/keys/Signer.h"
#include "Publisher/signfeed/FeedSigner.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>

namespace Pelnar::Publisher
{
namespace
{

struct EditOptions
{
    std::string feed;
    std::string version;
    std::string channel;
    std::string notes;
    int keptVersions = 0;
    SignerOptions signer;
    SigningTerms terms;
    bool isDryRun = false;
};

using Edit = void (*)(FeedEdit& feed, EditOptions const& options);

bool HasSignature(QByteArray const& bytes)
{
    return Engine::SplitSignedFeed(bytes).fault != Engine::SignedFeedFault::Missing;
}

/// Writes \a edited, signed by \a signer unless it is null.
void Store(NewFeed edited, bool wasSigned, ISigner const* signer, EditOptions const& options, Console const& console)
{
    QString const name = edited.file;
    if (options.isDryRun)
    {
        CheckFeedLength(edited, console);
        console.Print(u"%1: not written, because this is a dry run"_s.arg(name));
        return;
    }
    if (!signer)
    {
        ReplaceFeed(edited, console);
        if (wasSigned)
        {
            console.Print(
                u"%1: the signature no longer matches the feed; sign it again with pelnar-appcast sign-feed --accept-changes"_s
                    .arg(name));
        }
        return;
    }
    SignedFeedBytes const feed = SignFeed(name, edited.bytes, *signer, options.terms, console);
    edited.bytes = feed.bytes;
    ReplaceFeed(edited, console);
    console.Print(u"%1: %2"_s.arg(name, TextOf(feed.terms)));
}

ExitStatus Run(Edit edit, EditOptions const& options, Console const& console)
{
    QString const name = QString::fromStdString(options.feed);
    FolderLock const lock(QFileInfo(name).absolutePath(), console);
    QByteArray bytes = ReadFeedFile(name);
    qint64 const bytesBefore = bytes.size();
    bool const wasSigned = HasSignature(bytes);
    std::unique_ptr<ISigner> const signer = options.signer.IsGiven() ? LoadSigner(options.signer) : nullptr;
    if (signer)
    {
        bytes = ReadFeedContent(name, bytes, *signer, ChangedFeed::Refused).bytes;
    }
    FeedEdit feed(name, bytes);
    edit(feed, options);
    console.Print(feed.Text().Differences());
    if (!feed.Text().HasChanges())
    {
        console.Print(u"%1: nothing to change"_s.arg(name));
        return ExitStatus::Clean;
    }
    FeedEdit const proof(name, feed.Text().Bytes());
    Store({name, QFileInfo(name).path(), feed.Text().Bytes(), bytesBefore}, wasSigned, signer.get(), options, console);
    return ExitStatus::Clean;
}

NewVerb<EditOptions> AddEdit(CLI::App& program, VerbContext& context, char const* name, char const* what, Edit edit)
{
    auto const [verb, options] = AddVerb<EditOptions>(program, context, name, what,
                                                      [edit](EditOptions const& given, Console const& console)
                                                      { return Run(edit, given, console); });
    verb.add_option("FEED", options.feed, "File of the feed; all other bytes stay unchanged")->required();
    verb.add_flag("--dry-run", options.isDryRun, "Show the changes, and write nothing");
    AddSignerOptions(verb, options.signer,
                     ": sign the changed feed. Without it a signed feed must be signed again afterwards");
    AddSigningOptions(verb, options.terms);
    return {verb, options};
}

void AddVersion(NewVerb<EditOptions> const& edit)
{
    edit.app.add_option("VERSION", edit.options.version, "Version of the items to change")->required();
}

} // namespace

void AddEdits(CLI::App& program, VerbContext& context)
{
    auto const promote =
        AddEdit(program, context, "promote", "Take a version out of its channel, so that all clients are offered it",
                [](FeedEdit& feed, EditOptions const& options)
                { Promote(feed, QString::fromStdString(options.version), QString::fromStdString(options.channel)); });
    AddVersion(promote);
    promote.app.add_option("--to", promote.options.channel, "Put it into this channel instead")->type_name("CHANNEL");

    AddVersion(AddEdit(program, context, "withdraw",
                       "Mark a version as withdrawn: no client is offered it, and its archive is not published again",
                       [](FeedEdit& feed, EditOptions const& options)
                       { Withdraw(feed, QString::fromStdString(options.version)); }));

    auto const editNotes = AddEdit(
        program, context, "edit-notes", "Replace the release notes of a version in the feed",
        [](FeedEdit& feed, EditOptions const& options)
        {
            QFileInfo const file(QString::fromStdString(options.notes));
            std::vector<ReleaseNotes> const fresh = ReadReleaseNotes(file.path(), file.completeBaseName());
            bool const isRead =
                std::any_of(fresh.begin(), fresh.end(),
                            [&file](ReleaseNotes const& each) { return each.fileName == file.fileName(); });
            if (!file.exists())
            {
                throw Refusal({file.filePath(), u"does not exist"_s, u"check the name of the file of release notes"_s});
            }
            if (!isRead)
            {
                throw Refusal({file.filePath(), u"is not a file of release notes"_s,
                               u"give a file that ends in .html, .md or .txt"_s});
            }
            EditNotes(feed, QString::fromStdString(options.version), fresh);
        });
    AddVersion(editNotes);
    editNotes.app
        .add_option(
            "NOTES", editNotes.options.notes,
            "File of the notes: NAME.html, .md or .txt. Files for a language, such as NAME.de.html, are included")
        ->required();

    auto const prune =
        AddEdit(program, context, "prune",
                "Remove old items from a feed. Refused if a client would then be offered another update. Move "
                "their archives out of the folder: \"generate\" adds every archive that the feed lacks",
                [](FeedEdit& feed, EditOptions const& options) { Prune(feed, options.keptVersions); });
    prune.app
        .add_option("--keep", prune.options.keptVersions,
                    "Number of versions to keep; withdrawn versions are kept in addition")
        ->required()
        ->type_name("N")
        ->check(CLI::Range(1, 2000));
}

} // namespace Pelnar::Publisher
