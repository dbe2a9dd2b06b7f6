#include "Publisher/gate/ReleaseCheck.h"

#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/Progress.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/delta/DeltaFile.h"
#include "Publisher/gate/PrivateKeys.h"
#include "Publisher/gate/ReleaseFiles.h"
#include "Publisher/gate/ReleaseGate.h"
#include "Publisher/keys/Signer.h"
#include "Publisher/lint/KeyStatementRules.h"
#include "Publisher/lint/LintReport.h"

#include <algorithm>
#include <tuple>

namespace Pelnar::Publisher
{
namespace
{

using Engine::FeedItem;
using Engine::FeedPlatform;

/// The machines to judge. An item without machines is judged for the first one.
std::vector<std::string> MachinesOf(ReleaseCheckRequest const& request)
{
    std::vector<std::string> names = request.machines;
    if (names.empty())
    {
        names = Engine::MachineNames();
        names.insert(names.begin(), Engine::NameOf(Engine::OwnMachine()));
    }
    return names;
}

/// Lint reports the others.
bool CanBeJudged(FeedItem const& item)
{
    return !item.fileUrl.isEmpty() && item.contentLength != 0 &&
           !(item.edSignature.isEmpty() && item.signatures.empty());
}

/// The items of one platform whose downloads can be judged, oldest first.
std::vector<FeedItem> ItemsOf(ReleaseCheckRequest const& request, FeedPlatform platform)
{
    std::vector<FeedItem> items;
    for (std::string const& name : MachinesOf(request))
    {
        QString const machine = QString::fromStdString(name);
        for (FeedItem& item : Engine::ParseFeed(request.feed, request.feedAddress, {platform, machine})
                                  .value_or(Engine::FeedContent())
                                  .items)
        {
            bool const isKnown =
                std::any_of(items.begin(), items.end(),
                            [&item](FeedItem const& other)
                            { return std::tie(other.line, other.fileUrl) == std::tie(item.line, item.fileUrl); });
            if (!isKnown && CanBeJudged(item) && Engine::SuitsMachine(item.policy.machines, machine))
            {
                items.push_back(std::move(item));
            }
        }
    }
    std::stable_sort(items.begin(), items.end(),
                     [platform](FeedItem const& a, FeedItem const& b)
                     { return VersionOf(a, platform, {}).version < VersionOf(b, platform, {}).version; });
    return items;
}

bool IsContainer(FeedItem const& item, FeedPlatform platform)
{
    bool const isInstaller = UpdateTypeOf(item) == App::Session::UpdateType::INSTALLER;
    // macOS has packages and images, which this tool cannot read.
    return platform == FeedPlatform::Linux || !isInstaller;
}

/// True if all that \a newer names hold for what \a older names too. An empty list is unbounded.
bool Covers(QStringList const& newer, QStringList const& older)
{
    return newer.isEmpty() || (!older.isEmpty() && std::all_of(older.begin(), older.end(),
                                                               [&newer](QString const& machine)
                                                               { return Engine::SuitsMachine(newer, machine); }));
}

bool IsRolledOut(FeedItem const& item)
{
    QDateTime const last = Engine::RolloutTime(item, Engine::ROLLOUT_GROUPS - 1);
    return !last.isValid() || last <= QDateTime::currentDateTimeUtc();
}

/// True if every client that could take \a older is offered \a newer.
bool IsSuccessor(FeedItem const& newer, FeedItem const& older, FeedPlatform platform)
{
    QStringList const newKeys = Engine::SignersOf(newer);
    QStringList const oldKeys = Engine::SignersOf(older);
    auto const isNoTighter = [&](auto const& valueOf)
    { return valueOf(newer).isEmpty() || valueOf(newer) == valueOf(older); };
    return VersionOf(older, platform, {}).version < VersionOf(newer, platform, {}).version &&
           !newer.policy.isWithdrawn && newer.policy.channel == older.policy.channel && IsRolledOut(newer) &&
           Covers(newer.policy.machines, older.policy.machines) &&
           Covers(newer.policy.hardware, older.policy.hardware) &&
           isNoTighter([](FeedItem const& item) { return item.minimumSystemVersion; }) &&
           isNoTighter([](FeedItem const& item) { return item.maximumSystemVersion; }) &&
           isNoTighter([](FeedItem const& item) { return item.policy.minimumUpdateVersion; }) &&
           (newKeys.isEmpty() || std::all_of(oldKeys.begin(), oldKeys.end(),
                                             [&newKeys](QString const& key) { return newKeys.contains(key); }));
}

class PlatformCheck
{
public:
    PlatformCheck(ReleaseCheckRequest const& request, FeedPlatform platform, ReleaseFiles& files,
                  Console const& console, RefusalList& refusals)
        : m_request(request)
        , m_platform(platform)
        , m_files(files)
        , m_console(console)
        , m_refusals(refusals)
        , m_keys(request.publicKeys)
    {
    }

    /// \a items: oldest first, so that the clients of an item are known when it is judged. \a offered: all of the
    /// platform.
    void Check(std::vector<FeedItem> const& items, std::vector<FeedItem> const& offered)
    {
        m_offered = &offered;
        for (FeedItem const& item : items)
        {
            GatedVersion version = VersionOf(item, m_platform, m_request.feedName);
            m_refusals.Try([&] { CheckItem(item, items, version); });
            m_versions.push_back(std::move(version));
        }
        CheckTrust(m_versions, m_refusals);
    }

    /// After Check.
    std::vector<GatedVersion> const& Versions() const { return m_versions; }

private:
    bool IsTaken(FeedItem const& item) const
    {
        return !item.policy.isWithdrawn &&
               std::none_of(m_offered->begin(), m_offered->end(),
                            [&](FeedItem const& other) { return IsSuccessor(other, item, m_platform); });
    }

    /// The file of \a download, which is that of \a item or another one of it. The publisher may have removed those
    /// that clients take no longer.
    std::optional<InputFile> Open(FeedItem const& download, FeedItem const& item) const
    {
        std::optional<InputFile> file = m_files.Open(download);
        if (!file)
        {
            QString const name = VersionOf(item, m_platform, m_request.feedName).path;
            QString const missing = u"%1 is not in the folder"_s.arg(download.fileUrl.fileName());
            if (IsTaken(item))
            {
                m_refusals.Add({name, u"version %1 cannot be checked: %2"_s.arg(item.versionString, missing),
                                u"put the published file back; prune removes versions that no client takes"_s});
            }
            else
            {
                m_console.Print(u"%1: version %2 is not checked: %3"_s.arg(name, item.versionString, missing));
            }
        }
        return file;
    }

    void CheckItem(FeedItem const& item, std::vector<FeedItem> const& items, GatedVersion& version)
    {
        std::optional<InputFile> const file = Open(item, item);
        if (!file)
        {
            return;
        }
        CheckLength(*file, item);
        std::optional<BundleTree> bundle;
        if (IsContainer(item, m_platform))
        {
            bundle = Unpack(*file);
            TakeBundle(*bundle, *file, version);
        }
        version.signerIds = CheckSignatures(*file, item);
        version.path = file->name;
        if (bundle)
        {
            CheckBundleForClients(*bundle, version, m_versions, MachineFor(item), m_refusals);
            CheckContent(*bundle, version, m_versions, m_console, m_refusals);
            for (FeedItem const& recompressed : item.recompressed)
            {
                m_refusals.Try([&] { CheckRecompressed(recompressed, item, *bundle); });
            }
            for (FeedItem const& delta : item.deltas)
            {
                m_refusals.Try([&] { CheckDelta(delta, item, items, *bundle); });
            }
        }
        m_console.Print(u"%1: version %2, signed by the key %3%4"_s.arg(
            file->name, item.versionString, version.signerIds.join(u' '),
            version.trustedIds.isEmpty() ? QString() : u", trusts "_s + version.trustedIds.join(u' ')));
    }

    Engine::Machine MachineFor(FeedItem const& item) const
    {
        std::vector<std::string> const names = MachinesOf(m_request);
        auto const name =
            std::find_if(names.begin(), names.end(),
                         [&item](std::string const& each)
                         { return Engine::SuitsMachine(item.policy.machines, QString::fromStdString(each)); });
        return Engine::MachineOfName(name == names.end() ? names.front() : *name).value_or(Engine::OwnMachine());
    }

    void TakeBundle(BundleTree const& bundle, InputFile const& file, GatedVersion& version)
    {
        GatedVersion inside = VersionOf(bundle, file.name, version.kind);
        BelieveStatement(inside, m_request.feed);
        CheckFeedSignature(inside, Engine::VerifyFeed(m_request.feed, inside.bundle->clientKeys)
                                       ? FeedSignature::Present
                                       : FeedSignature::Missing);
        if (inside.HasClients() && inside.platform == FeedPlatform::Linux)
        {
            m_refusals.Try([&] { CheckFeedSize(inside.path, inside.bundle->maximumFeedBytes, m_request.feed.size()); });
        }
        version.bundle = inside.bundle;
        version.trustedIds = inside.trustedIds;
        for (std::string const& key : inside.bundle->knownKeys)
        {
            if (std::find(m_keys.begin(), m_keys.end(), key) == m_keys.end())
            {
                m_keys.push_back(key);
            }
        }
    }

    BundleTree Unpack(InputFile const& file) const
    {
        Progress bar(m_console.err, u"Unpacking "_s + file.name);
        return BundleTree::Unpack(file, std::ref(bar));
    }

    /// The ids of the keys that signed. The feed must name them correctly, because clients choose the signature by
    /// them.
    QStringList CheckSignatures(InputFile const& file, FeedItem const& item) const
    {
        QStringList ids;
        if (!item.edSignature.isEmpty())
        {
            ids.append(CheckSignature(file, item));
        }
        for (Engine::FeedSignature const& each : item.signatures)
        {
            auto const key = std::find_if(m_keys.begin(), m_keys.end(),
                                          [&](std::string const& text) { return KeyIdOf(text) == each.keyId; });
            if (key != m_keys.end() && !SignerOf(file, each.signature, {*key}))
            {
                throw Refusal({file.name,
                               u"does not match the published signature of the key %1 (line %2 of the feed)"_s.arg(
                                   each.keyId, QString::number(item.line)),
                               u"put the published file back, or sign it again with that key"_s},
                              RefusalCause::Content);
            }
            ids.append(each.keyId);
        }
        ids.removeDuplicates();
        return ids;
    }

    QString CheckSignature(InputFile const& file, FeedItem const& item) const
    {
        std::optional<std::string> const signer = SignerOf(file, item.edSignature, m_keys);
        QString const& said = item.signerKey;
        if (!signer)
        {
            throw Refusal(
                {file.name,
                 u"does not match the published signature (line %1 of the feed) with any key that an available bundle trusts"_s
                     .arg(item.line),
                 said.isEmpty() ? u"put the published file back, or give the key that signed it with --public-key"_s
                                : u"put the published file back, or give the key %1 with --public-key"_s.arg(said)},
                RefusalCause::Content);
        }
        QString const id = KeyIdOf(*signer);
        if (!said.isEmpty() && said != id)
        {
            throw Refusal(
                {file.name,
                 u"is signed by the key %1, but the feed says %2 (line %3); clients that trust the first would ignore it"_s
                     .arg(id, said, QString::number(item.line)),
                 u"write signer=\"%1\" into the item's pelnar:keys"_s.arg(id)},
                RefusalCause::Content);
        }
        return id;
    }

    void CheckRecompressed(FeedItem const& recompressed, FeedItem const& item, BundleTree const& target) const
    {
        std::optional<InputFile> const file = Open(recompressed, item);
        if (!file)
        {
            return;
        }
        CheckLength(*file, recompressed);
        static_cast<void>(CheckSignatures(*file, recompressed));
        BundleTree const bundle = Unpack(*file);
        if (bundle.Name() != target.Name() || bundle.Digest() != target.Digest())
        {
            throw Refusal(
                {file->name,
                 u"contains another bundle than the archive of the item (line %1 of the feed)"_s.arg(recompressed.line),
                 u"remove the element pelnar:recompressed, or pack the archive's bundle"_s},
                RefusalCause::Content);
        }
    }

    void CheckDelta(FeedItem const& delta, FeedItem const& item, std::vector<FeedItem> const& items,
                    BundleTree const& target) const
    {
        std::optional<InputFile> const file = Open(delta, item);
        if (!file || delta.contentLength == 0 || (delta.edSignature.isEmpty() && delta.signatures.empty()))
        {
            return;
        }
        CheckLength(*file, delta);
        static_cast<void>(CheckSignatures(*file, delta));
        auto const base = std::find_if(items.begin(), items.end(),
                                       [&](FeedItem const& item)
                                       {
                                           return IsContainer(item, m_platform) &&
                                                  item.versionString == delta.deltaFrom &&
                                                  Engine::ShareMachine(item.policy.machines, delta.policy.machines);
                                       });
        std::optional<InputFile> const baseFile =
            base == items.end() ? std::optional<InputFile>() : m_files.Open(*base);
        if (baseFile)
        {
            AsContent([&] { ProveDelta(*file, Unpack(*baseFile), target, m_console.err); });
        }
    }

    ReleaseCheckRequest const& m_request;
    FeedPlatform const m_platform;
    std::vector<FeedItem> const* m_offered = nullptr;
    ReleaseFiles& m_files;
    Console const& m_console;
    RefusalList& m_refusals;
    std::vector<std::string> m_keys; ///< the given ones, and those of the bundles so far
    std::vector<GatedVersion> m_versions;
};

} // namespace

ExitStatus CheckRelease(ReleaseCheckRequest const& request, Console const& console)
{
    std::vector<LintFinding> errors = LintAsPublished(request.feed, request.feedAddress);
    errors.erase(std::remove_if(errors.begin(), errors.end(),
                                [](LintFinding const& finding)
                                { return EntryOf(finding.rule).severity != Severity::Error; }),
                 errors.end());
    if (!errors.empty())
    {
        PrintFindings(request.feedName, errors, console);
    }
    RefusalList refusals;
    ReleaseFiles files(request.folder, console);
    std::vector<FeedItem> const linuxItems = ItemsOf(request, FeedPlatform::Linux);
    std::vector<FeedItem> const allMacItems = ItemsOf(request, FeedPlatform::MacOS);
    std::vector<FeedItem> macItems = allMacItems;
    // Items for both platforms were already checked as items for Linux.
    macItems.erase(std::remove_if(macItems.begin(), macItems.end(),
                                  [&linuxItems](FeedItem const& item)
                                  {
                                      return std::any_of(linuxItems.begin(), linuxItems.end(),
                                                         [&item](FeedItem const& other)
                                                         { return other.fileUrl == item.fileUrl; });
                                  }),
                   macItems.end());
    PlatformCheck forLinux(request, FeedPlatform::Linux, files, console, refusals);
    PlatformCheck forMacOS(request, FeedPlatform::MacOS, files, console, refusals);
    forLinux.Check(linuxItems, linuxItems);
    forMacOS.Check(macItems, allMacItems);
    if (!request.folder.isEmpty())
    {
        std::set<QString> ids = KnownKeyIds(forLinux.Versions());
        ids.merge(KnownKeyIds(forMacOS.Versions()));
        refusals.Try([&] { CheckFolderForKeys(request.folder, ids, refusals); });
    }
    refusals.ThrowIfAny();
    if (linuxItems.empty() && macItems.empty() && errors.empty())
    {
        throw Refusal(
            {request.feedName, u"offers nothing that can be checked"_s, u"give the feed that is published"_s});
    }
    return errors.empty() ? ExitStatus::Clean : ExitStatus::Findings;
}

} // namespace Pelnar::Publisher
