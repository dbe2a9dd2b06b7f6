// ProcessTextsGnustep.mm: lets Foundation accept a command line and an environment with texts outside its encoding. At
// its first use Foundation makes strings of all these texts, and ends the process at the first one that it cannot
// convert, such as a document's path that is not UTF-8. The first program or library of a process that has this class
// does so. Thread: the one that loads the program or the library.

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

// Foundation's own methods. The first converts the program's name, the second all other texts.
MakeText makeText = nullptr;
MakeEncodedText makeEncodedText = nullptr;

/// A text outside Foundation's encoding is read byte by byte. The failed call has consumed its object.
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

/// Replaces Foundation's method with \a own, and returns the previous one.
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

/// Runs before Foundation is first used from here. A text beyond ASCII may still be in Foundation's encoding; then
/// nothing changes.
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
