// DeltaVerb.cpp: "delta": makes, applies and shows the small updates from one version of a bundle to another.

#include "Publisher/Verb.h"

#include "Publisher/Progress.h"
#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/delta/DeltaFile.h"
#include "Publisher/files/AtomicFile.h"
#include "Publisher/keys/Signer.h"

#include <QJsonArray>

#include <algorithm>
#include <memory>

namespace Pelnar::Publisher
{
namespace
{

BundleTree OpenBundle(Console const& console, std::string const& path)
{
    QString const name = QString::fromStdString(path);
    Progress bar(console.err, u"Unpacking"_s);
    return BundleTree::Open(name, std::ref(bar));
}

struct CreateOptions
{
    std::string oldBundle;
    std::string newBundle;
    std::string output;
    SignerOptions signer;
    Engine::DeltaEffort effort = Engine::DeltaEffort::Usual;
};

ExitStatus Create(CreateOptions const& options, Console const& console)
{
    QString const output = QString::fromStdString(options.output);
    std::unique_ptr<ISigner> const signer = options.signer.IsGiven() ? LoadSigner(options.signer) : nullptr;
    BundleTree const before = OpenBundle(console, options.oldBundle);
    BundleTree const after = OpenBundle(console, options.newBundle);
    AtomicFile file(output);
    Engine::DeltaReport const report = MakeDelta(before, after, file, output, {console.err, options.effort});
    file.Commit(ExistingFile::Keep);
    QString const baseVersion = QString::fromStdString(before.Information().version);
    console.Print(u"%1: %2 to %3, %4 bytes: %5 kept, %6 patched, %7 whole"_s.arg(
        output, baseVersion, QString::fromStdString(after.Information().version),
        QString::number(report.containerBytes), CountOf(report.keptFiles, u"file"_s),
        QString::number(report.patchedFiles), QString::number(report.wholeFiles)));
    if (signer)
    {
        console.Print(u"sparkle:deltaFrom=\"%1\" %2"_s.arg(baseVersion.toHtmlEscaped(),
                                                           AttributesOf(signer->Sign(OpenInputFile(output)))));
    }
    return ExitStatus::Clean;
}

void AddCreate(CLI::App& delta, VerbContext& context)
{
    auto const [verb, options] = AddVerb<CreateOptions>(
        delta, context, "create", "Make the delta from one version of a bundle to another, and verify it", Create);
    verb.add_option("OLD", options.oldBundle, "Old bundle, or its archive, that the delta starts from")->required();
    verb.add_option("NEW", options.newBundle, "New bundle, or its archive, that the delta makes")->required();
    verb.add_option("-o,--output", options.output, "New file for the delta")->required()->type_name("FILE");
    AddSignerOptions(verb, options.signer, ": sign the delta and print the attributes of its enclosure");
    AddEffortOption(verb, options.effort);
}

struct ApplyOptions
{
    std::string delta;
    std::string oldBundle;
    std::string output;
};

/// Makes the new bundle under a hidden name first, so that a bundle with the final name is always complete.
ExitStatus Apply(ApplyOptions const& options, Console const& console)
{
    QString const output = QString::fromStdString(options.output);
    InputFile const delta = OpenInputFile(QString::fromStdString(options.delta));
    Engine::DeltaManifest const manifest = ReadDeltaFile(delta);
    BundleTree const before = OpenBundle(console, options.oldBundle);
    NewFolder folder(output);
    ApplyDeltaFile(delta, before, folder.Descriptor(), output, console.err);
    folder.Commit();
    console.Print(u"%1: version %2"_s.arg(output, QString::fromStdString(manifest.targetVersion)));
    return ExitStatus::Clean;
}

void AddApply(CLI::App& delta, VerbContext& context)
{
    auto const [verb, options] =
        AddVerb<ApplyOptions>(delta, context, "apply", "Make the new version of a bundle, as clients do", Apply);
    verb.add_option("DELTA", options.delta, "Delta to apply")->required();
    verb.add_option("OLD", options.oldBundle, "Old bundle, or its archive, that the delta starts from")->required();
    verb.add_option("-o,--output", options.output, "New folder for the bundle, such as Name.app")
        ->required()
        ->type_name("FOLDER");
}

char const* KindName(Engine::DeltaEntryKind kind)
{
    switch (kind)
    {
    case Engine::DeltaEntryKind::Directory:
        return "folder";
    case Engine::DeltaEntryKind::SymbolicLink:
        return "link";
    case Engine::DeltaEntryKind::Kept:
        return "kept";
    case Engine::DeltaEntryKind::Patched:
        return "patched";
    case Engine::DeltaEntryKind::Whole:
        return "whole";
    }
    return "unknown";
}

constexpr char const* STREAM_NAMES[Engine::PATCH_STREAMS] = {"steps", "same", "changed", "difference", "extra"};

/// The entry's path in the previous version, if it differs.
QString OriginOf(Engine::DeltaEntry const& entry)
{
    bool const isElsewhere = !entry.sourcePath.empty() && entry.sourcePath != entry.path;
    return isElsewhere ? u" (from %1)"_s.arg(QString::fromStdString(entry.sourcePath)) : QString();
}

/// The joined format does not store the sizes of kept files.
bool TellsSize(Engine::DeltaManifest const& manifest, Engine::DeltaEntry const& entry)
{
    return manifest.format == Engine::DeltaFormat::Separate || entry.kind != Engine::DeltaEntryKind::Kept;
}

/// The separate format knows the packed size of each file, the joined format only the sum.
void ShowStored(Console const& console, Engine::DeltaManifest const& manifest)
{
    if (manifest.format == Engine::DeltaFormat::Separate)
    {
        quint64 stored = 0;
        for (Engine::DeltaEntry const& entry : manifest.entries)
        {
            stored += entry.StoredBytes();
        }
        console.Print(u"%1 bytes of data"_s.arg(stored));
        return;
    }
    QStringList parts;
    for (std::size_t i = 0; i < Engine::PATCH_STREAMS; ++i)
    {
        parts << u"%1 %2"_s.arg(QLatin1String(STREAM_NAMES[i])).arg(manifest.streams[i].size);
    }
    console.Print(u"bytes of data: %1"_s.arg(parts.join(u", "_s)));
}

void ShowText(Console const& console, InputFile const& delta, Engine::DeltaManifest const& manifest)
{
    console.Print(u"%1: %2 to %3, %4 bytes"_s.arg(delta.name, QString::fromStdString(manifest.baseVersion),
                                                  QString::fromStdString(manifest.targetVersion),
                                                  QString::number(delta.size)));
    for (Engine::DeltaEntry const& entry : manifest.entries)
    {
        console.Print(u"%1 %2  %3%4"_s.arg(QLatin1String(KindName(entry.kind)), -8)
                          .arg(TellsSize(manifest, entry) ? u"%1 bytes"_s.arg(entry.size) : QString(), 16)
                          .arg(QString::fromStdString(entry.path), OriginOf(entry)));
    }
    for (Engine::DeltaEntryKind const kind :
         {Engine::DeltaEntryKind::Kept, Engine::DeltaEntryKind::Patched, Engine::DeltaEntryKind::Whole})
    {
        auto const count = std::count_if(manifest.entries.begin(), manifest.entries.end(),
                                         [kind](Engine::DeltaEntry const& entry) { return entry.kind == kind; });
        console.Print(u"%1 %2"_s.arg(QLatin1String(KindName(kind)), -8).arg(CountOf(std::size_t(count), u"file"_s)));
    }
    ShowStored(console, manifest);
}

QJsonObject StreamsJson(Engine::DeltaManifest const& manifest)
{
    QJsonObject streams;
    for (std::size_t i = 0; i < Engine::PATCH_STREAMS; ++i)
    {
        streams.insert(QLatin1String(STREAM_NAMES[i]), qint64(manifest.streams[i].size));
    }
    return streams;
}

void ShowJson(Console const& console, InputFile const& delta, Engine::DeltaManifest const& manifest)
{
    bool const isJoined = manifest.format == Engine::DeltaFormat::Joined;
    QJsonArray entries;
    for (Engine::DeltaEntry const& entry : manifest.entries)
    {
        QJsonObject object{{u"path"_s, QString::fromStdString(entry.path)},
                           {u"kind"_s, QLatin1String(KindName(entry.kind))}};
        if (TellsSize(manifest, entry))
        {
            object.insert(u"size"_s, qint64(entry.size));
        }
        if (!isJoined)
        {
            object.insert(u"stored"_s, qint64(entry.StoredBytes()));
        }
        if (!entry.sourcePath.empty())
        {
            object.insert(u"source"_s, QString::fromStdString(entry.sourcePath));
        }
        entries.append(object);
    }
    QJsonObject answer{{u"delta"_s, delta.name},
                       {u"baseVersion"_s, QString::fromStdString(manifest.baseVersion)},
                       {u"targetVersion"_s, QString::fromStdString(manifest.targetVersion)},
                       {u"size"_s, qint64(delta.size)},
                       {u"entries"_s, entries}};
    if (isJoined)
    {
        answer.insert(u"streams"_s, StreamsJson(manifest));
    }
    console.PrintJson(answer);
}

struct ShowOptions
{
    std::string delta;
    bool isJson = false;
};

ExitStatus Show(ShowOptions const& options, Console const& console)
{
    InputFile const delta = OpenInputFile(QString::fromStdString(options.delta));
    Engine::DeltaManifest const manifest = ReadDeltaFile(delta);
    if (options.isJson)
    {
        ShowJson(console, delta, manifest);
    }
    else
    {
        ShowText(console, delta, manifest);
    }
    return ExitStatus::Clean;
}

void AddShow(CLI::App& delta, VerbContext& context)
{
    auto const [verb, options] = AddVerb<ShowOptions>(
        delta, context, "show", "Show which files a delta keeps, patches and contains whole", Show);
    verb.add_option("DELTA", options.delta, "Delta to show")->required();
    verb.add_flag("--json", options.isJson, "Print one JSON object instead of text");
}

} // namespace

void AddDelta(CLI::App& program, VerbContext& context)
{
    CLI::App& delta =
        *program.add_subcommand("delta", "Make, apply and show small updates from one version to another");
    delta.require_subcommand(1);
    AddCreate(delta, context);
    AddApply(delta, context);
    AddShow(delta, context);
}

} // namespace Pelnar::Publisher
