#include "tests/installer/EvilArchives.h"

#include "Engine/core/delta/ContentHasher.h"
#include "Engine/core/delta/DeltaContainer.h"
#include "tests/installer/InstallerFixture.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <set>
#include <utility>

namespace Pelnar::Testing
{

using Engine::UpdateFault;
using namespace std::string_literals;

namespace
{

constexpr std::uint16_t UTF8_FLAG = 0x800;

/// In a zip under the flag for UTF-8, in a tar in a pax header.
ForgedEntry CalledUtf8(ForgedEntry entry)
{
    entry.flags = UTF8_FLAG;
    entry.isPax = true;
    return entry;
}

ForgedEntry WithOtherUnicodeName(ForgedEntry entry, std::string const& name)
{
    entry.unicodeName = name;
    return entry;
}

/// Links that lead from one to the next, the last to a file.
std::vector<ForgedEntry> ChainOfLinks(int length)
{
    std::vector<ForgedEntry> entries;
    for (int i = 0; i < length; ++i)
    {
        std::string const next = i + 1 < length ? "link" + std::to_string(i + 1) : "run"s;
        entries.push_back({"My App.app/link" + std::to_string(i), 'l', next});
    }
    return entries;
}

/// Folders in folders, so that a file in the last lies \a depth names deep.
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
        {"ChainOf40Links", ChainOfLinks(40), UpdateFault::LinkLoops},
        {"LinkTargetNotUtf8", {{"My App.app/l", 'l', "\xff\xfe"}}, UpdateFault::LinkTargetInvalid},
        {"LinkTargetNotUtf8ThoughItSaysSo",
         {CalledUtf8({"My App.app/l", 'l', "\xff\xfe"})},
         UpdateFault::LinkTargetInvalid},
        {"LinkTargetWithBackslash", {{"My App.app/l", 'l', "..\\decoy"}}, UpdateFault::LinkTargetInvalid},
        {"HardLink", {{"My App.app/h", 'h', "My App.app/run"}}, UpdateFault::EntryIsHardLink, false},
        {"HardLinkAbsolute", {{"My App.app/h", 'h', "/etc/passwd"}}, UpdateFault::EntryIsHardLink, false},
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
        return isOfAKind && entry.path.compare(0, root.size(), root) == 0 && !entry.unicodeName;
    };
    std::vector<Evil> trees;
    std::copy_if(EvilArchives().begin(), EvilArchives().end(), std::back_inserter(trees),
                 [&isSaid](Evil const& evil) { return std::all_of(evil.entries.begin(), evil.entries.end(), isSaid); });
    return trees;
}

std::string MakeEvilDelta(Evil const& evil)
{
    std::vector<ForgedEntry> forged = MakeBundle("2.0");
    forged.insert(forged.end(), evil.entries.begin(), evil.entries.end());
    std::set<std::string> paths;
    std::vector<Engine::DeltaEntry> entries;
    auto const addFolder = [&entries](std::string const& path)
    {
        entries.emplace_back();
        entries.back().path = path;
    };
    std::size_t const rootBytes = std::string(APP).size() + 1;
    for (ForgedEntry& entry : forged)
    {
        entry.path.erase(0, rootBytes);
        entry.path.erase(entry.type == 'd' ? std::min(entry.path.find_last_not_of('/') + 1, entry.path.size())
                                           : entry.path.size());
        paths.insert(entry.path);
    }
    for (ForgedEntry const& entry : forged)
    {
        for (std::size_t slash = entry.path.find('/', 1); slash != std::string::npos;
             slash = entry.path.find('/', slash + 1))
        {
            if (paths.insert(entry.path.substr(0, slash)).second)
            {
                addFolder(entry.path.substr(0, slash));
            }
        }
        if (entry.type == 'd')
        {
            entry.path.empty() ? void() : addFolder(entry.path);
            continue;
        }
        Engine::DeltaEntry made;
        made.path = entry.path;
        made.kind = entry.type == 'l' ? Engine::DeltaEntryKind::SymbolicLink : Engine::DeltaEntryKind::Whole;
        made.linkTarget = entry.content; // of a file: what the container brings of it
        made.isExecutable = (entry.mode & 0100) != 0;
        entries.push_back(std::move(made));
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](Engine::DeltaEntry const& a, Engine::DeltaEntry const& b) { return a.path < b.path; });
    std::string data;
    for (Engine::DeltaEntry& entry : entries)
    {
        if (entry.kind == Engine::DeltaEntryKind::Whole)
        {
            std::string const content = std::exchange(entry.linkTarget, {});
            Engine::Bytes const plain(reinterpret_cast<std::uint8_t const*>(content.data()), content.size());
            Engine::ByteBuffer const stored = Engine::CompressForDelta(plain);
            entry.size = plain.size();
            entry.hash = Engine::HashOf(plain);
            entry.wholeStored = stored.size();
            data.append(stored.begin(), stored.end());
        }
    }
    Engine::ByteBuffer const opening = Engine::EncodeDeltaOpening({"1.0", "2.0", entries});
    return std::string(opening.begin(), opening.end()) + data;
}

} // namespace Pelnar::Testing
