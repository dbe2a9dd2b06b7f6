// FoundationText.h: converts text and addresses between Qt and Foundation.
// Ownership: returned Foundation objects are autoreleased, so the caller needs a pool. Objective-C++ only.
#pragma once

#if !defined(__OBJC__)
#error "FoundationText.h is for Objective-C++ sources."
#endif

#include "Foundation/ManualReferences.h"

#import <Foundation/Foundation.h>

#include <QString>
#include <QUrl>

#include <string>

namespace Pelnar::Foundation
{

/// nil gives a null string.
QString ToQString(NSString* text);
/// Never nil; an unpaired surrogate becomes "?".
NSString* ToNSString(QString const& text);

/// nil gives an empty string.
std::string ToUtf8(NSString* text);

/// nil gives an empty address; text that Qt does not accept as an address gives an invalid one.
QUrl ToQUrl(NSURL* url);
/// nil for an empty or invalid address.
NSURL* ToNSURL(QUrl const& url);

} // namespace Pelnar::Foundation
