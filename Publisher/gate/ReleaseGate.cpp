#include "Publisher/gate/ReleaseGate.h"

#include "Engine/core/base/TreeAccess.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/files/FaultText.h"
#include "Publisher/gate/PrivateKeys.h"
#include "Publisher/gate/ProgramFile.h"

#include <algorithm>
#include <cstring>
#include <set>

#include <elf.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Publisher
{
namespace
{

using Engine::UpdateFault;

/// The system and machine that the start of a program names.
enum class ProgramKind
{
    Missing,
    NotRunnable, ///< not a plain file, or not executable
    Linux,
    MacOS,
    Script,
    Other,
};

ProgramKind KindOf(BundleTree const& bundle, std::string const& path)
{
    constexpr std::uint32_t MAC_MARKS[] = {0xfeedface, 0xfeedfacf, 0xcefaedfe, 0xcffaedfe, 0xcafebabe, 0xbebafeca};
    Engine::UniqueFd const file = Engine::TreeAccess(bundle.Descriptor()).OpenFile(path);
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0)
    {
        return ProgramKind::Missing;
    }
    char mark[4] = {};
    bool const isRead = Engine::ReadUpTo(file.Get(), 0, mark, sizeof mark) == sizeof mark;
    std::uint32_t number = 0;
    std::memcpy(&number, mark, sizeof number);
    if (isRead && std::memcmp(mark, ELFMAG, SELFMAG) == 0)
    {
        return ProgramKind::Linux;
    }
    if (!S_ISREG(status.st_mode) || (status.st_mode & S_IXUSR) == 0)
    {
        return ProgramKind::NotRunnable;
    }
    if (mark[0] == '#' && mark[1] == '!')
    {
        return ProgramKind::Script;
    }
    bool const isMac = isRead && std::find(std::begin(MAC_MARKS), std::end(MAC_MARKS), number) != std::end(MAC_MARKS);
    return isMac ? ProgramKind::MacOS : ProgramKind::Other;
}

QString EntryText(BundleTree const& bundle, std::string const& path)
{
    return u": \"%1\""_s.arg(QString::fromStdString(bundle.Name() + '/' + path));
}

/// Programs for macOS cannot run here. Only this is checked: the program exists, and it is not one for Linux.
void CheckMacProgram(BundleTree const& bundle, QString const& path, RefusalList& refusals)
{
    std::string const& name = bundle.Information().executable;
    std::string const usual = "Contents/MacOS/" + name;
    for (std::string const& place : {usual, "Contents/" + name, name, "bin/" + name})
    {
        if (KindOf(bundle, place) == ProgramKind::Linux)
        {
            refusals.Add({path,
                          u"the bundle is laid out for macOS (Contents/Info.plist), but its program is "
                          "for Linux"_s +
                              EntryText(bundle, place),
                          u"put the information file at Resources/Info-gnustep.plist and the program "
                          "directly into the bundle's folder"_s});
            return;
        }
    }
    UpdateFault fault = UpdateFault::None;
    switch (KindOf(bundle, usual))
    {
    case ProgramKind::Missing:
        fault = UpdateFault::ExecutableMissing;
        break;
    case ProgramKind::NotRunnable:
        fault = UpdateFault::ExecutableNotRunnable;
        break;
    case ProgramKind::Other:
        fault = UpdateFault::ExecutableForeign;
        break;
    case ProgramKind::Linux:
    case ProgramKind::MacOS:
    case ProgramKind::Script:
        return;
    }
    Problem problem = ProblemOf(fault, 0, path);
    problem.what += EntryText(bundle, usual);
    refusals.Add(std::move(problem));
}

/// The part of the bundle that has the fault.
QString EntryOf(UpdateFault fault, BundleTree const& bundle, std::string const& nameWhenInstalled)
{
    bool const isProgram = fault == UpdateFault::ExecutableMissing || fault == UpdateFault::ExecutableNotRunnable ||
                           fault == UpdateFault::ExecutableForeign;
    if (!isProgram)
    {
        return EntryText(bundle, Engine::INFORMATION_PATH);
    }
    // If a bundle names no program, the program with the name of its folder runs.
    Engine::BundleInformation const information = Engine::ReadBundleInformation(bundle.Descriptor(), nameWhenInstalled);
    QString text = EntryText(bundle, information.executable);
    struct stat status;
    if (::fstatat(bundle.Descriptor(), information.executable.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
    {
        text += S_ISLNK(status.st_mode) ? u" is a link"_s : S_ISDIR(status.st_mode) ? u" is a folder"_s : QString();
    }
    return text;
}

/// The check of one client. A fault is reported once, for the first client that has it.
class ClientCheck
{
public:
    ClientCheck(BundleTree const& bundle, GatedVersion const& version, Engine::Machine const& machine,
                RefusalList& refusals)
        : m_bundle(bundle), m_version(version), m_machine(machine), m_refusals(refusals)
    {
    }

    void CheckFor(GatedBundle const& installed, QString const& installedVersion)
    {
        bool const isInstaller = m_version.kind == Engine::PayloadKind::Installer;
        if (isInstaller && !installed.allowsInstallerPrograms && !installedVersion.isEmpty())
        {
            Report(UpdateFault::InstallerNotAllowed, QString(), installedVersion);
        }
        if (m_version.platform == Engine::FeedPlatform::MacOS)
        {
            CheckMacIdentity(installed, installedVersion);
            return;
        }
        std::string const& name = isInstaller ? m_bundle.Name() : installed.name;
        try
        {
            Engine::CheckNewBundle(m_bundle.Descriptor(), name,
                                   {m_version.kind, installed.identifier, m_version.versionText.toStdString(),
                                    installedVersion.toStdString(), m_machine});
        }
        catch (Engine::UpdateRefusal const& refusal)
        {
            Report(refusal.Fault(), EntryOf(refusal.Fault(), m_bundle, name), installedVersion);
        }
    }

private:
    void CheckMacIdentity(GatedBundle const& installed, QString const& installedVersion)
    {
        Engine::BundleInformation const& information = m_bundle.Information();
        UpdateFault const fault = information.identifier != installed.identifier ? UpdateFault::IdentifierDiffers
                                  : information.version != m_version.versionText.toStdString()
                                      ? UpdateFault::VersionDiffers
                                  : information.publicKeys.Texts().empty() ? UpdateFault::BundleKeyMissing
                                                                           : UpdateFault::None;
        if (fault != UpdateFault::None)
        {
            Report(fault, EntryText(m_bundle, "Contents/Info.plist"), installedVersion);
        }
    }

    void Report(UpdateFault fault, QString const& entry, QString const& installedVersion)
    {
        if (!m_reported.insert(fault).second)
        {
            return;
        }
        Problem problem = ProblemOf(fault, 0, m_version.path);
        problem.what += entry;
        if (!installedVersion.isEmpty())
        {
            problem.what += u" (seen by clients of version %1)"_s.arg(installedVersion);
        }
        m_refusals.Add(std::move(problem), CauseOf(fault));
    }

    BundleTree const& m_bundle;
    GatedVersion const& m_version;
    Engine::Machine const& m_machine;
    RefusalList& m_refusals;
    std::set<UpdateFault> m_reported;
};

QString KeyText(QStringList const& ids)
{
    return ids.join(u" and "_s);
}

void CheckOwnKey(GatedVersion const& version, std::vector<GatedVersion> const& all, RefusalList& refusals)
{
    if (!version.HasClients() || version.signerIds.isEmpty() || version.trustedIds.isEmpty() ||
        Engine::HasCommon(version.trustedIds, version.signerIds))
    {
        return;
    }
    // Newer statements of a root key apply to those who already have the version, too.
    bool const followsRoot = version.bundle && !version.bundle->rootKey.empty();
    bool const goesOn =
        std::any_of(all.begin(), all.end(),
                    [&version](GatedVersion const& newer)
                    { return IsOffered(newer, version) && Engine::HasCommon(version.trustedIds, newer.signerIds); });
    if (followsRoot && goesOn)
    {
        return;
    }
    if (followsRoot)
    {
        refusals.Add(
            {version.path,
             u"version %1 is signed by the key %2, but with the feed's key statement its clients trust %3"_s.arg(
                 version.versionText, KeyText(version.signerIds), KeyText(version.trustedIds)),
             u"sign it with a valid key, or make a new statement with \"keys state\" that names the key"_s});
        return;
    }
    refusals.Add(
        {version.path,
         u"version %1 is signed by the key %2, but its bundle trusts another key, %3; its clients would refuse the next update with the same key"_s
             .arg(version.versionText, KeyText(version.signerIds), KeyText(version.trustedIds)),
         u"write the entry that \"keys show\" prints for the signing key as SUPublicEDKey; during a change of keys, write the new key as PelnarNextPublicEDKey"_s});
}

/// True if clients of \a older reach \a version or a newer one, directly or through versions between them that bring
/// its key.
bool IsReachedFrom(GatedVersion const& older, GatedVersion const& version, std::vector<GatedVersion> const& all)
{
    std::vector<Engine::KeyedVersion> offered;
    for (GatedVersion const& each : all)
    {
        if (IsOffered(each, older))
        {
            offered.push_back(KeysOf(each));
        }
    }
    std::vector<Engine::KeyedVersion> const steps = SteppingStonesFrom(KeysOf(older), offered, OrderOfTexts);
    return IsReached(KeysOf(version), steps, OrderOfTexts);
}

/// The versions whose clients never reach \a version, oldest first.
QStringList StrandedBy(GatedVersion const& version, std::vector<GatedVersion> const& all)
{
    std::vector<GatedVersion const*> stranded;
    for (GatedVersion const& older : all)
    {
        if (IsOffered(version, older) && !older.trustedIds.isEmpty() && !IsReachedFrom(older, version, all))
        {
            stranded.push_back(&older);
        }
    }
    std::stable_sort(stranded.begin(), stranded.end(),
                     [](GatedVersion const* a, GatedVersion const* b) { return a->version < b->version; });
    QStringList texts;
    for (GatedVersion const* const each : stranded)
    {
        texts.append(u"%1 (%2)"_s.arg(each->versionText, each->path));
    }
    return texts;
}

} // namespace

void CheckBundleForClients(BundleTree const& bundle, GatedVersion const& version, std::vector<GatedVersion> const& all,
                           Engine::Machine const& machine, RefusalList& refusals)
{
    if (version.platform == Engine::FeedPlatform::MacOS)
    {
        CheckMacProgram(bundle, version.path, refusals);
    }
    ClientCheck check(bundle, version, machine, refusals);
    bool hasClient = false;
    for (GatedVersion const& older : all)
    {
        if (older.bundle && IsOffered(version, older))
        {
            hasClient = true;
            check.CheckFor(*older.bundle, older.versionText);
        }
    }
    if (!hasClient && version.bundle)
    {
        check.CheckFor(*version.bundle, QString());
    }
}

void CheckContent(BundleTree const& bundle, GatedVersion const& version, std::vector<GatedVersion> const& all,
                  Console const& console, RefusalList& refusals)
{
    CheckProgramFile(bundle, version, refusals);
    CheckPrivateKeys(bundle, version, KnownKeyIds(all), console, refusals);
}

void CheckTrust(std::vector<GatedVersion> const& all, RefusalList& refusals)
{
    for (GatedVersion const& version : all)
    {
        CheckOwnKey(version, all, refusals);
        QStringList const stranded = version.signerIds.isEmpty() ? QStringList() : StrandedBy(version, all);
        if (!stranded.isEmpty())
        {
            refusals.Add(
                {version.path,
                 u"version %1 is signed by the key %2, which strands these installed versions, because they do not trust it and no version between brings it: %3"_s
                     .arg(version.versionText, KeyText(version.signerIds), stranded.join(u", "_s)),
                 u"first publish a version that is signed by the key they trust and whose bundle trusts both keys; or sign this one with both keys; or give these versions up and remove their items and archives"_s});
        }
    }
}

} // namespace Pelnar::Publisher
