// PlainItem.h: a feed item of plain values, and the installation for which it is judged.
// Thread: the test's.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/AppcastJudgement.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct PlainItem final : App::Session::IItemSource
{
    QString minimumSystem;
    QString maximumSystem;
    QString version = QStringLiteral("5.1");
    QString address = QStringLiteral("https://downloads.example/App.zip");
    QString date = QStringLiteral("Mon, 07 Jan 2019 10:00:00 +0000");
    std::uint64_t length = 1000;
    bool isDelta = false;
    mutable std::vector<std::string> reads; ///< the properties that were read, in order

    QString MinimumSystemVersion() const override { return Read("minimumSystem", minimumSystem); }
    QString MaximumSystemVersion() const override { return Read("maximumSystem", maximumSystem); }
    QString VersionString() const override { return Read("version", version); }
    QString FileAddress() const override { return Read("address", address); }
    QString DateString() const override { return Read("date", date); }
    std::uint64_t ContentLength() const override { return Read("length", length); }
    bool IsDelta() const override { return Read("isDelta", isDelta); }

private:
    template <class T>
    T const& Read(char const* name, T const& value) const
    {
        reads.push_back(name);
        return value;
    }
};

/// A running system and application, with the order that the updater lends.
struct PlainSubject
{
    Core::Version systemVersion{12, 3};
    Core::Version localVersion{5, 0};
    std::function<bool(Core::Version const&, Core::Version const&)> versionLess =
        [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) < Core::Util::ShrinkVersion(b, 4); };
    std::function<bool(Core::Version const&, Core::Version const&)> versionEqual =
        [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) == Core::Util::ShrinkVersion(b, 4); };

    App::Session::SelectionSubject View() const { return {systemVersion, localVersion, versionLess, versionEqual}; }
};

} // namespace Pelnar::Testing
