// PathTextTest.cpp: paths of any bytes, as texts and back.

#include "Engine/core/base/PathText.h"

#include <gtest/gtest.h>

namespace Pelnar::Engine
{
namespace
{

TEST(PathText, TextOfUtf8IsThatText)
{
    QString const text = QString::fromUtf8("\xEF\xBB\xBF/home/\xC3\xA9\xEF\xBF\xBE/\xF0\x9F\x98\x80");
    EXPECT_EQ(PathText(text.toStdString()), text);
    EXPECT_EQ(PathBytes(text), text.toStdString());
}

TEST(PathText, EachWrongByteIsOneUnpairedSurrogate)
{
    QString const text = PathText("a\x80\xC3/\xED\xA0\x80\xFF");
    char16_t const expected[] = {u'a', 0xDC80, 0xDCC3, u'/', 0xDCED, 0xDCA0, 0xDC80, 0xDCFF, 0};
    EXPECT_EQ(text, QString::fromUtf16(expected));
}

} // namespace
} // namespace Pelnar::Engine
