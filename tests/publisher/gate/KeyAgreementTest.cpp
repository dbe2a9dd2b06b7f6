// KeyAgreementTest.cpp: random releases with changing keys. If the gate accepts the newest version, every client
// reaches it step by step. If the gate refuses it, some client never reaches it.

#include "Engine/core/feed/ReleaseRules.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/gate/ReleaseGate.h"

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <random>

namespace Pelnar::Testing
{
namespace
{

using namespace Publisher;

struct Release
{
    std::vector<GatedVersion> versions; ///< oldest first
    std::vector<Engine::FeedItem> items;
};

class RandomReleases
{
public:
    explicit RandomReleases(unsigned seed) : m_random(seed) {}

    Release Next()
    {
        Release release;
        int const count = 2 + Below(4);
        for (int i = 0; i < count; ++i)
        {
            QStringList const trusted = SomeKeys();
            QStringList signers = SomeKeys();
            if (!signers.contains(trusted.front()))
            {
                signers.append(trusted.front()); // the gate refuses a version that does not trust its own key
            }
            if (Below(3) == 0)
            {
                signers = QStringList(trusted.front());
            }
            release.versions.push_back(Version(i, signers, trusted));
            release.items.push_back(Item(release.versions.back()));
        }
        return release;
    }

private:
    int Below(int limit) { return int(m_random() % unsigned(limit)); }

    QStringList SomeKeys()
    {
        QStringList keys;
        for (int count = 1 + Below(2); keys.size() < count;)
        {
            QString const id(16, QLatin1Char(char('a' + Below(4))));
            if (!keys.contains(id))
            {
                keys.append(id);
            }
        }
        return keys;
    }

    static GatedVersion Version(int number, QStringList const& signers, QStringList const& trusted)
    {
        Engine::FeedItem item;
        item.versionString = QStringLiteral("5.%1").arg(number);
        item.fileUrl = QUrl(QStringLiteral("https://example.com/%1.zip").arg(number));
        GatedVersion version = VersionOf(item, Engine::FeedPlatform::Linux, QStringLiteral("feed"));
        version.signerIds = signers;
        version.trustedIds = trusted;
        return version;
    }

    /// Each signature is the name of its key.
    static Engine::FeedItem Item(GatedVersion const& version)
    {
        Engine::FeedItem item;
        item.versionString = version.versionText;
        item.fileUrl = QUrl(QStringLiteral("https://example.com/%1.zip").arg(version.versionText));
        item.contentLength = 1;
        item.trustedKeys = version.trustedIds;
        item.signerKey = version.signerIds.front();
        item.edSignature = item.signerKey;
        for (QString const& id : version.signerIds)
        {
            item.signatures.push_back({id, id});
        }
        return item;
    }

    std::mt19937 m_random;
};

/// The last version of a client that starts with \a start, by the engine's rules. It stops at a download whose
/// signature it cannot verify.
std::size_t EndOf(Release const& release, std::size_t start)
{
    for (std::size_t at = start;;)
    {
        Engine::Installation installation;
        installation.version = release.versions[at].versionText;
        installation.trustedKeys = release.versions[at].trustedIds;
        std::vector<Engine::FeedItem> items = release.items;
        Engine::LeaveOut(items, installation, OrderOfTexts);
        std::size_t next = at;
        for (Engine::FeedItem const& item : items)
        {
            for (std::size_t i = next + 1; i < release.versions.size(); ++i)
            {
                next = release.versions[i].versionText == item.versionString ? i : next;
            }
            EXPECT_TRUE(installation.trustedKeys.contains(item.edSignature))
                << "it is offered an update that it refuses";
        }
        if (next == at)
        {
            return at;
        }
        at = next;
    }
}

bool IsRefusedForTheNewest(Release const& release)
{
    RefusalList refusals;
    CheckTrust(release.versions, refusals);
    try
    {
        refusals.ThrowIfAny();
        return false;
    }
    catch (Refusal const& refusal)
    {
        return std::any_of(
            refusal.Reasons().begin(), refusal.Reasons().end(),
            [&](Problem const& problem)
            { return problem.what.contains(QStringLiteral("version %1 ").arg(release.versions.back().versionText)); });
    }
}

} // namespace

TEST(KeyAgreement, WhatTheGateLetsThroughEveryClientTakes)
{
    FLAGS_minloglevel = google::GLOG_WARNING;
    RandomReleases releases(20261122);
    int accepted = 0;
    int refused = 0;
    for (int i = 0; i < 5000; ++i)
    {
        Release const release = releases.Next();
        bool isReached = true;
        for (std::size_t start = 0; start < release.versions.size(); ++start)
        {
            isReached = isReached && EndOf(release, start) + 1 == release.versions.size();
        }
        bool const isRefused = IsRefusedForTheNewest(release);
        ASSERT_NE(isRefused, isReached) << "release " << i;
        ++(isRefused ? refused : accepted);
    }
    EXPECT_GT(accepted, 500) << "both are tried";
    EXPECT_GT(refused, 500);
}

} // namespace Pelnar::Testing
