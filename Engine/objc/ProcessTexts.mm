// ProcessTexts.mm: has Foundation take a command line and an environment that are in no encoding of its own. Foundation
// makes strings of all of them when it is first used, and ends the process at one that makes none: a document's path,
// say, that is not in UTF-8.
// Thread: the one that loads the library. Ownership: none.

#import <Foundation/Foundation.h>

#import <objc/runtime.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <unistd.h>

namespace
{

using MakeText = id (*)(id, SEL, char const*, NSStringEncoding);

MakeText makeText = nullptr; ///< Foundation's own

/// A text that is in no such encoding is read byte by byte.
id MakeAnyText(id self, SEL name, char const* text, NSStringEncoding encoding)
{
    id const made = makeText(self, name, text, encoding);
    return made || !text ? made : makeText(self, name, text, NSISOLatin1StringEncoding);
}

bool IsPlain(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool IsProcessPlain()
{
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    std::string const commandLine{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    bool isPlain = IsPlain(commandLine);
    for (char const* const* variable = environ; variable && *variable; ++variable)
    {
        isPlain = isPlain && IsPlain(*variable);
    }
    return isPlain;
}

} // namespace

@interface PelnarProcessTexts : NSObject
@end

@implementation PelnarProcessTexts

/// Before Foundation is first used from here. What is not plain may still be in the encoding; then nothing changes.
+ (void)load
{
    if (IsProcessPlain())
    {
        return;
    }
    Method const method = class_getClassMethod(static_cast<Class>(objc_getClass("NSString")),
                                               @selector(stringWithCString:encoding:));
    makeText = reinterpret_cast<MakeText>(method_setImplementation(method, reinterpret_cast<IMP>(&MakeAnyText)));
    @autoreleasepool
    {
        (void)[NSProcessInfo processInfo];
    }
    method_setImplementation(method, reinterpret_cast<IMP>(makeText));
}

@end
