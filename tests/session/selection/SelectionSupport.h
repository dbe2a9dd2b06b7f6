// SelectionSupport.h: shared items, contexts and records of the tests of the appcast selection. Plain C++.
// Thread: the test's. Ownership: scripted items live as long as the process.
#pragma once

#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "tests/session/ScriptedSparkle.h"
#include "tests/support/LogCapture.h"

#include <memory>
#include <string>

namespace Pelnar::Testing
{

inline constexpr char SESSION_FILE[] = "App/UpdateChecker/SparkleImpl/SparkleManager";
inline constexpr char FEED_DATE[] = "Mon, 07 Jan 2019 10:00:00 +0000";

inline QString Latin1(char const* text)
{
    return QString::fromLatin1(text);
}

/// A valid item of \a version for the local version 5.0.
inline ItemProperties OfferOf(char const* version, char const* address = "https://a.example/App.zip",
                              quint64 contentLength = 1000)
{
    ItemProperties properties;
    properties.versionString = Latin1(version);
    properties.fileUrl = Latin1(address);
    properties.dateString = Latin1(FEED_DATE);
    properties.contentLength = contentLength;
    return properties;
}

inline ItemProperties DeltaOf(char const* version, quint64 contentLength = 10)
{
    ItemProperties properties = OfferOf(version, "https://a.example/App.delta", contentLength);
    properties.isDelta = true;
    return properties;
}

/// Local version 5.0 and the order that the updater lends.
inline std::shared_ptr<App::SparkleUpdateContext> MakeContext()
{
    auto context = std::make_shared<App::SparkleUpdateContext>();
    context->localVersion = Core::Version(5, 0);
    context->versionLess = [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) < Core::Util::ShrinkVersion(b, 4); };
    context->versionEqual = [](Core::Version const& a, Core::Version const& b)
    { return Core::Util::ShrinkVersion(a, 4) == Core::Util::ShrinkVersion(b, 4); };
    return context;
}

inline LogRecord NoContextRecord()
{
    return {google::GLOG_ERROR, SESSION_FILE, 475,
            "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const: Update context is NULL"};
}

inline LogRecord NoLocalVersionRecord()
{
    return {google::GLOG_ERROR, SESSION_FILE, 493,
            "bool Pelnar::App::SparkleManager::Impl::EnsureLocalVersion() const: Invalid local version"};
}

inline LogRecord NoOperatorsRecord()
{
    return {google::GLOG_ERROR, SESSION_FILE, 520,
            "bool Pelnar::App::SparkleManager::Impl::EnsureVersionOperators() const: Invalid version operators"};
}

inline LogRecord SamePrioritiesRecord()
{
    return {google::GLOG_ERROR, SESSION_FILE, 440,
            "SUAppcastItem *Pelnar::App::SparkleManager::Impl::SelectBestValidAppcastItem(SUAppcastItem *, "
            "SUAppcastItem *) const: !!! ACHTUNG !!! Detected two SUAppcastItem's with same priorities!"};
}

} // namespace Pelnar::Testing
