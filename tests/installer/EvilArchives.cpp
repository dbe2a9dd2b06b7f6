#include "tests/installer/EvilArchives.h"

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "tests/delta/SeparateDelta.h"
#include "tests/installer/InstallerFixture.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <set>

namespace Pelnar::Testing
{

using Engine::UpdateFault;
using namespace std::string_literals;

namespace
{

constexpr std::uint16_t UTF8_FLAG = 0x800;

/// In a zip with the flag for UTF-8, in a tar in a pax header.
ForgedEntry CalledUtf8(ForgedEntry entry)
{
    entry.flags = UTF8_FLAG;
    entry.isPax = true;
    return entry;
}

/// Only a tar can contain such a name. Its readers stop at the first NUL; the shorter name is judged and written.
ForgedEntry InPax(ForgedEntry entry)
{
    entry.isPax = true;
    return entry;
}

ForgedEntry WithOtherUnicodeName(ForgedEntry entry, std::string const& name)
{
    entry.unicodeName = name;
    return entry;
}

/// Links that each lead to the next; the last leads to \a target.
std::vector<ForgedEntry> ChainOfLinks(int length, std::string const& target)
{
    std::vector<ForgedEntry> entries;
    for (int i = 0; i < length; ++i)
    {
        std::string const next = i + 1 < length ? "link" + std::to_string(i + 1) : target;
        entries.push_back({"My App.app/link" + std::to_string(i), 'l', next});
    }
    return entries;
}

/// And a file that would be written through them.
std::vector<ForgedEntry> ThroughAChainOfLinks(int length)
{
    std::vector<ForgedEntry> entries = ChainOfLinks(length, "../../decoy");
    entries.push_back({"My App.app/link0/x", 'f', "evil"});
    return entries;
}

/// The folders in the paths of \a tree that have no entry of their own.
void AddImpliedFolders(std::vector<ForgedEntry>& tree)
{
    std::set<std::string> paths;
    std::transform(tree.begin(), tree.end(), std::inserter(paths, paths.end()),
                   [](ForgedEntry const& entry) { return entry.path; });
    std::vector<ForgedEntry> implied;
    for (ForgedEntry const& entry : tree)
    {
        for (std::size_t slash = entry.path.find('/', 1); slash != std::string::npos;
             slash = entry.path.find('/', slash + 1))
        {
            if (paths.insert(entry.path.substr(0, slash)).second)
            {
                implied.push_back({entry.path.substr(0, slash), 'd', {}});
            }
        }
    }
    tree.insert(tree.end(), implied.begin(), implied.end());
}

Engine::Bytes BytesOf(std::string const& text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

/// \a forged as a delta's entry.
Engine::DeltaEntry EntryOf(ForgedEntry const& forged)
{
    Engine::DeltaEntry entry;
    entry.path = forged.path;
    if (forged.type == 'd')
    {
        return entry;
    }
    if (forged.type == 'l')
    {
        entry.kind = Engine::DeltaEntryKind::SymbolicLink;
        entry.linkTarget = forged.content;
        return entry;
    }
    Engine::Bytes const plain = BytesOf(forged.content);
    entry.kind = Engine::DeltaEntryKind::Whole;
    entry.isExecutable = (forged.mode & 0100) != 0;
    entry.size = plain.size();
    entry.hash = Engine::HashOf(plain, Engine::HashKind::Blake2b);
    return entry;
}

/// Adds the content of \a files to the container, one by one.
std::string StoreSeparately(Engine::DeltaManifest& manifest, std::vector<std::string> const& files)
{
    std::string data;
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        Engine::ByteBuffer const stored = Engine::CompressForDelta(BytesOf(files[i]));
        manifest.entries[i].wholeStored = stored.size();
        data.append(stored.begin(), stored.end());
    }
    return data;
}

/// The same, but joined in one stream.
std::string StoreJoined(Engine::DeltaManifest& manifest, std::vector<std::string> const& files)
{
    std::string all;
    Engine::ContentHasher hashes;
    Engine::DeltaUnit unit;
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        if (manifest.entries[i].kind == Engine::DeltaEntryKind::Whole)
        {
            unit.targets.push_back(static_cast<std::uint32_t>(i));
            all += files[i];
            Engine::ContentHash const hash = Engine::HashOf(BytesOf(files[i]));
            hashes.Add(Engine::View(hash));
        }
    }
    Engine::ByteBuffer const packed = Engine::CompressForDelta(BytesOf(all), Engine::EXTRA_WINDOW_LOG);
    manifest.format = Engine::DeltaFormat::Joined;
    manifest.units.push_back(unit);
    manifest.targetHash = hashes.Finish();
    manifest.baseHash = Engine::HashOf({});
    manifest.streams[4] = {0, packed.size()};
    return {packed.begin(), packed.end()};
}

/// Nested folders, so that a file in the last one is \a depth names deep.
std::string DeepPath(int depth)
{
    std::string path = "My App.app";
    for (int i = 2; i < depth; ++i)
    {
        path += "/d";
    }
    return path + "/x";
}

} // namespace

void PrintTo(Evil const& evil, std::ostream* out)
{
    *out << evil.name;
}

std::vector<Evil> const& EvilArchives()
{
    static std::vector<Evil> const evils{
        {"ParentFolder", {{"../decoy/x", 'f', "evil"}}, UpdateFault::EntryEscapes},
        {"ParentFolderInside", {{"My App.app/../../decoy/x", 'f', "evil"}}, UpdateFault::EntryEscapes},
        {"Absolute", {{"/tmp/pelnar-evil", 'f', "evil"}}, UpdateFault::EntryEscapes},
        {"DriveLetter", {{"C:/evil", 'f', "evil"}}, UpdateFault::EntryEscapes},
        {"Backslash", {{"My App.app\\..\\..\\decoy\\x", 'f', "evil"}}, UpdateFault::EntryNameInvalid},
        {"TrailingDot", {{"My App.app/x.", 'f', "evil"}}, UpdateFault::EntryNameInvalid},
        {"NotUtf8", {{"My App.app/\xff\xfe", 'f', "evil"}}, UpdateFault::EntryNameInvalid},
        {"NotUtf8ThoughItSaysSo", {CalledUtf8({"My App.app/\xff\xfe", 'f', "evil"})}, UpdateFault::EntryNameInvalid},
        {"OverlongUtf8", {CalledUtf8({"My App.app/\xc0\xae", 'f', "evil"})}, UpdateFault::EntryNameInvalid},
        {"SurrogateInUtf8", {CalledUtf8({"My App.app/\xed\xa0\x80", 'f', "evil"})}, UpdateFault::EntryNameInvalid},
        {"CutUtf8", {CalledUtf8({"My App.app/\xe4\xb8", 'f', "evil"})}, UpdateFault::EntryNameInvalid},
        {"Nul", {{"My App.app/x\0.txt"s, 'f', "evil"}}, UpdateFault::EntryNameInvalid, true, false},
        {"NulBehindAnEscape", {InPax({"../decoy/x\0/My App.app/x"s, 'f', "evil"})}, UpdateFault::EntryEscapes, false},
        {"NulBehindATwin", {InPax({"My App.app/run\0.txt"s, 'f', "evil"})}, UpdateFault::EntryDuplicate, false},
        {"NulBehindALinkOut", {InPax({"My App.app/l", 'l', "../../decoy\0run"s})}, UpdateFault::LinkEscapes, false},
        {"OtherUnicodeName",
         {WithOtherUnicodeName({"My App.app/x", 'f', "evil"}, "../decoy/x")},
         UpdateFault::ContainerAmbiguous,
         true,
         false},
        {"TrailingBlank", {{"My App.app/x ", 'f', "evil"}}, UpdateFault::EntryNameInvalid},
        {"ControlCharacter", {{"My App.app/x\ny", 'f', "evil"}}, UpdateFault::EntryNameInvalid},
        {"EmptyComponent", {{"My App.app//x", 'f', "evil"}}, UpdateFault::EntryNameInvalid},
        {"TooDeep", {{DeepPath(65), 'f', "evil"}}, UpdateFault::EntryTooDeep},
        {"PathOf5000Bytes", {{"My App.app/" + std::string(4989, 'd'), 'f', "evil"}}, UpdateFault::EntryNameTooLong},
        {"LinkAbsolute", {{"My App.app/l", 'l', "/etc/passwd"}}, UpdateFault::LinkEscapes},
        {"LinkOut", {{"My App.app/l", 'l', "../../decoy"}}, UpdateFault::LinkEscapes},
        {"LinkOutThenThrough",
         {{"My App.app/l", 'l', "../../decoy"}, {"My App.app/l/x", 'f', "evil"}},
         UpdateFault::EntryUnderNoFolder},
        {"LinkAbsoluteThenThrough",
         {{"My App.app/l", 'l', "/tmp"}, {"My App.app/l/pelnar-evil", 'f', "evil"}},
         UpdateFault::LinkEscapes},
        {"LinkInThenThrough",
         {{"My App.app/l", 'l', "Resources"}, {"My App.app/l/x", 'f', "evil"}},
         UpdateFault::EntryUnderNoFolder},
        {"LinkToNothing", {{"My App.app/l", 'l', "nothing"}}, UpdateFault::LinkDangles},
        {"LinkLoop", {{"My App.app/l", 'l', "m"}, {"My App.app/m", 'l', "l"}}, UpdateFault::LinkLoops},
        {"LinkOutThroughALink",
         {{"My App.app/Resources/up", 'l', ".."}, {"My App.app/l", 'l', "Resources/up/../decoy"}},
         UpdateFault::LinkEscapes},
        {"LinkOutAndBackIn", {{"My App.app/l", 'l', "../My App.app/run"}}, UpdateFault::LinkEscapes},
        {"LinkUnderAFile", {{"My App.app/l", 'l', "run/x"}}, UpdateFault::LinkDangles},
        {"LinkToItself", {{"My App.app/l", 'l', "l"}}, UpdateFault::LinkLoops},
        {"LinkLoopThenThrough",
         {{"My App.app/l", 'l', "m"}, {"My App.app/m", 'l', "l"}, {"My App.app/l/x", 'f', "evil"}},
         UpdateFault::EntryUnderNoFolder},
        {"ChainOf40Links", ChainOfLinks(40, "run"), UpdateFault::LinkLoops},
        {"ChainOf40LinksOutThenThrough", ThroughAChainOfLinks(40), UpdateFault::EntryUnderNoFolder},
        {"LinkTargetNotUtf8", {{"My App.app/l", 'l', "\xff\xfe"}}, UpdateFault::LinkTargetInvalid},
        {"LinkTargetNotUtf8ThoughItSaysSo",
         {CalledUtf8({"My App.app/l", 'l', "\xff\xfe"})},
         UpdateFault::LinkTargetInvalid},
        {"LinkTargetWithBackslash", {{"My App.app/l", 'l', "..\\decoy"}}, UpdateFault::LinkTargetInvalid},
        {"HardLink", {{"My App.app/h", 'h', "My App.app/run"}}, UpdateFault::EntryIsHardLink, false},
        {"HardLinkAbsolute", {{"My App.app/h", 'h', "/etc/passwd"}}, UpdateFault::EntryIsHardLink, false},
        {"HardLinkOut", {{"My App.app/h", 'h', "../decoy/x"}}, UpdateFault::EntryIsHardLink, false},
        {"HardLinkToALink", {{"My App.app/h", 'h', "My App.app/Resources/data"}}, UpdateFault::EntryIsHardLink, false},
        {"HardLinkNotYetSeen", {{"My App.app/h", 'h', "My App.app/later"}}, UpdateFault::EntryIsHardLink, false},
        {"Fifo", {{"My App.app/p", 'p', {}}}, UpdateFault::EntryTypeRefused},
        {"CharacterDevice", {{"My App.app/c", 'c', {}}}, UpdateFault::EntryTypeRefused},
        {"BlockDevice", {{"My App.app/b", 'b', {}}}, UpdateFault::EntryTypeRefused},
        {"SparseFile", {{"My App.app/s", 's', std::string(512, 'x')}}, UpdateFault::EntryIsSparse, false},
        {"DuplicateFile", {{"My App.app/run", 'f', "evil"}}, UpdateFault::EntryDuplicate},
        {"FileThenFolder", {{"My App.app/run/", 'd', {}}}, UpdateFault::EntryDuplicate},
        {"FolderThenLink", {{"My App.app/Resources", 'l', "run"}}, UpdateFault::EntryDuplicate},
        {"CaseTwin", {{"My App.app/RUN", 'f', "evil"}}, UpdateFault::EntryNameClash},
        {"CaseTwinOfAFolder", {{"My App.app/resources/x", 'f', "evil"}}, UpdateFault::EntryNameClash},
        {"CaseTwinBeyondAscii",
         {CalledUtf8({"My App.app/\xc3\x89", 'f', "evil"}), CalledUtf8({"My App.app/\xc3\xa9", 'f', "evil"})},
         UpdateFault::EntryNameClash},
        {"ComposedAndDecomposedTwins",
         {{"My App.app/\xc3\xa9", 'f', "evil"}, {"My App.app/e\xcc\x81", 'f', "evil"}},
         UpdateFault::EntryNameClash},
        {"ComposedAndDecomposedTwinsCalledUtf8",
         {CalledUtf8({"My App.app/e\xcc\x81", 'f', "evil"}), CalledUtf8({"My App.app/\xc3\xa9", 'f', "evil"})},
         UpdateFault::EntryNameClash},
        {"ImpliedFolderTwice",
         {{"My App.app/b/x", 'f', "x"}, {"My App.app/b", 'd', {}}, {"My App.app/b", 'd', {}}},
         UpdateFault::EntryDuplicate},
        {"ImpliedFolderThenLink",
         {{"My App.app/b/x", 'f', "x"}, {"My App.app/b", 'l', "Resources"}},
         UpdateFault::EntryDuplicate},
        {"SecondBundle", {{"Other.app/run", 'f', "evil"}}, UpdateFault::BundleNotAlone},
        {"FileBeside", {{"README", 'f', "evil"}}, UpdateFault::BundleNotAlone},
    };
    return evils;
}

std::vector<Evil> EvilTrees()
{
    std::string const root = std::string(APP) + '/';
    auto const isSaid = [&root](ForgedEntry const& entry)
    {
        bool const isOfAKind = entry.type == 'f' || entry.type == 'd' || entry.type == 'l';
        bool const isWhole = !entry.isPax || (entry.path + entry.content).find('\0') == std::string::npos;
        return isOfAKind && entry.path.compare(0, root.size(), root) == 0 && !entry.unicodeName && isWhole;
    };
    std::vector<Evil> trees;
    std::copy_if(EvilArchives().begin(), EvilArchives().end(), std::back_inserter(trees),
                 [&isSaid](Evil const& evil) { return std::all_of(evil.entries.begin(), evil.entries.end(), isSaid); });
    return trees;
}

std::string MakeWholeDelta(std::vector<ForgedEntry> tree, Engine::DeltaFormat format)
{
    for (ForgedEntry& entry : tree)
    {
        entry.path.erase(0, std::string(APP).size() + 1);
        if (entry.type == 'd' && !entry.path.empty() && entry.path.back() == '/')
        {
            entry.path.pop_back();
        }
    }
    AddImpliedFolders(tree);
    std::stable_sort(tree.begin(), tree.end(),
                     [](ForgedEntry const& a, ForgedEntry const& b) { return a.path < b.path; });
    Engine::DeltaManifest manifest;
    manifest.baseVersion = "1.0";
    manifest.targetVersion = "2.0";
    std::vector<std::string> files;
    for (ForgedEntry const& entry : tree)
    {
        if (!entry.path.empty()) // the bundle's own folder
        {
            manifest.entries.push_back(EntryOf(entry));
            files.push_back(manifest.entries.back().kind == Engine::DeltaEntryKind::Whole ? entry.content
                                                                                          : std::string());
        }
    }
    std::string const data =
        format == Engine::DeltaFormat::Joined ? StoreJoined(manifest, files) : StoreSeparately(manifest, files);
    Engine::ByteBuffer const opening = EncodeOpening(manifest);
    return std::string(opening.begin(), opening.end()) + data;
}

std::string MakeEvilDelta(Evil const& evil, Engine::DeltaFormat format)
{
    std::vector<ForgedEntry> tree = MakeBundle("2.0");
    tree.insert(tree.end(), evil.entries.begin(), evil.entries.end());
    return MakeWholeDelta(tree, format);
}

} // namespace Pelnar::Testing
