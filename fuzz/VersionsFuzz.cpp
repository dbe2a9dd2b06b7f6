// VersionsFuzz.cpp: three versions, one per line of UTF-8. Both parsers agree, and the versions, shrunk to four
// components, have a total order.

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "HostFramework/VersionText.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <stdexcept>

namespace
{

using Pelnar::Core::Version;
using Pelnar::Core::Util::ShrinkVersion;

void Require(bool holds, char const* promise)
{
    if (!holds)
    {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

std::optional<Version> ParseOrCatch(QString const& text)
{
    try
    {
        return Pelnar::Util::VersionFromString(text, QStringLiteral("."));
    }
    catch (std::invalid_argument const&)
    {
        return std::nullopt;
    }
}

Version Parse(QString const& text)
{
    Version const version = Pelnar::App::Session::VersionFromStringNoexcept(text);
    Require(ParseOrCatch(text).value_or(Version()) == version, "both parsers agree");
    if (version.IsValid())
    {
        QString const canonical = Pelnar::Util::VersionToString(
            version, Pelnar::Util::VersionToStringDetail::PresentComponents, QStringLiteral("."));
        Require(Pelnar::App::Session::VersionFromStringNoexcept(canonical) == version, "printing keeps the version");
    }
    else
    {
        Require(version == Version(), "text that does not parse gives the one invalid version");
    }
    return version;
}

bool Less(Version const& a, Version const& b)
{
    return ShrinkVersion(a, 4) < ShrinkVersion(b, 4);
}

bool Equal(Version const& a, Version const& b)
{
    return ShrinkVersion(a, 4) == ShrinkVersion(b, 4);
}

void RequireShrinkIsStable(Version const& version)
{
    for (int count = 1; count <= Version::COMPONENT_COUNT; ++count)
    {
        Version const shrunk = ShrinkVersion(version, count);
        Require(ShrinkVersion(shrunk, count) == shrunk, "shrinking twice is shrinking once");
        Require(shrunk.IsValid() == version.IsValid(), "shrinking keeps validity");
        Require(!Less(version, shrunk), "shrinking never makes a version newer");
    }
    Require(Equal(version, ShrinkVersion(version, 4)), "a version equals itself shrunk");
}

void RequireOrder(Version const& a, Version const& b, Version const& c)
{
    Require(int(Less(a, b)) + int(Less(b, a)) + int(Equal(a, b)) == 1, "exactly one of less, greater and equal");
    Require(Equal(a, b) == Equal(b, a), "equality is symmetric");
    Require(!(Less(a, b) && Less(b, c)) || Less(a, c), "less is transitive");
    Require(!(Equal(a, b) && Equal(b, c)) || Equal(a, c), "equality is transitive");
    Require(!(Equal(a, b) && Less(b, c)) || Less(a, c), "equals stand at one place of the order");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    QList<QByteArray> lines = QByteArray(reinterpret_cast<char const*>(data), static_cast<int>(size)).split('\n');
    Version versions[3];
    for (int i = 0; i < 3 && i < lines.size(); ++i)
    {
        versions[i] = Parse(QString::fromUtf8(lines[i]));
        RequireShrinkIsStable(versions[i]);
    }
    for (Version const& a : versions)
    {
        for (Version const& b : versions)
        {
            for (Version const& c : versions)
            {
                RequireOrder(a, b, c);
            }
        }
    }
    return 0;
}
