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

using MakeText = id (*)(id, SEL, char const*);
using MakeEncodedText = id (*)(id, SEL, char const*, NSStringEncoding);

// Foundation's own. The program's name is made by the first, all else by the second.
MakeText makeText = nullptr;
MakeEncodedText makeEncodedText = nullptr;

/// A text that is in no encoding of Foundation's is read byte by byte. The call that made nothing has used up its
/// object.
id ReadByteByByte(char const* text)
{
    return makeEncodedText([NSString alloc], @selector(initWithCString:encoding:), text, NSISOLatin1StringEncoding);
}

id MakeAnyText(id self, SEL name, char const* text)
{
    id const made = makeText(self, name, text);
    return made || !text ? made : ReadByteByByte(text);
}

id MakeAnyEncodedText(id self, SEL name, char const* text, NSStringEncoding encoding)
{
    id const made = makeEncodedText(self, name, text, encoding);
    return made || !text ? made : ReadByteByByte(text);
}

/// Puts \a own in the place of Foundation's method, and returns that.
template <typename Make> Make Replace(SEL name, Make own)
{
    Method const method = class_getInstanceMethod(object_getClass([NSString alloc]), name);
    return reinterpret_cast<Make>(method_setImplementation(method, reinterpret_cast<IMP>(own)));
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
    makeText = Replace(@selector(initWithCString:), &MakeAnyText);
    makeEncodedText = Replace(@selector(initWithCString:encoding:), &MakeAnyEncodedText);
    @autoreleasepool
    {
        (void)[NSProcessInfo processInfo];
    }
    (void)Replace(@selector(initWithCString:), makeText);
    (void)Replace(@selector(initWithCString:encoding:), makeEncodedText);
}

@end
