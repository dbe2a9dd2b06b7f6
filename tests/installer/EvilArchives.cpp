#include "tests/installer/EvilArchives.h"

#include <ostream>

namespace Pelnar::Testing
{

using Engine::UpdateFault;

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
        {"SecondBundle", {{"Other.app/run", 'f', "evil"}}, UpdateFault::BundleNotAlone},
        {"FileBeside", {{"README", 'f', "evil"}}, UpdateFault::BundleNotAlone},
    };
    return evils;
}

} // namespace Pelnar::Testing
