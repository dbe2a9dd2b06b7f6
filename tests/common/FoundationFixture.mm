#include "tests/common/FoundationFixture.h"

#include "Foundation/FoundationText.h"

namespace Pelnar::Testing
{

QString ThroughFoundation(QString const& text)
{
    @autoreleasepool
    {
        return Foundation::ToQString(Foundation::ToNSString(text));
    }
}

QUrl ThroughFoundation(QUrl const& url)
{
    @autoreleasepool
    {
        return Foundation::ToQUrl(Foundation::ToNSURL(url));
    }
}

void Raise(QString const& reason)
{
    @autoreleasepool
    {
        NSString* const text = reason.isNull() ? nil : Foundation::ToNSString(reason);
        [[NSException exceptionWithName:@"TestException" reason:text userInfo:nil] raise];
    }
}

} // namespace Pelnar::Testing
