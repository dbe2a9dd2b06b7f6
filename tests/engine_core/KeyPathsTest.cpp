// KeyPathsTest.cpp: which signature of an item a bundle verifies, and which versions lead the bundle to another key.

#include "tests/engine_core/PolicyFixture.h"

#include <gtest/gtest.h>

namespace Pelnar::Testing
{
namespace
{

QString const KEY_A = QStringLiteral("aaaaaaaaaaaaaaaa");
QString const KEY_B = QStringLiteral("bbbbbbbbbbbbbbbb");
QString const KEY_C = QStringLiteral("cccccccccccccccc");

/// An item signed by \a signer, whose bundle trusts \a trusted.
FeedItem Keyed(char const* version, QString const& signer, QStringList const& trusted)
{
    FeedItem item;
    item.versionString = QLatin1String(version);
    item.edSignature = QStringLiteral("plain");
    item.signerKey = signer;
    item.trustedKeys = trusted;
    return item;
}

Installation Trusting(QStringList const& keys, char const* version = "5.0")
{
    Installation installation = Client(version);
    installation.trustedKeys = keys;
    return installation;
}

/// The remaining items of \a items, with the signatures that the bundle verifies.
std::string Left(std::vector<FeedItem> items, Installation const& installation)
{
    Engine::LeaveOut(items, installation, OrderOf);
    std::string texts;
    for (FeedItem const& item : items)
    {
        texts += item.versionString.toStdString() + ':' + item.edSignature.toStdString() + ' ';
    }
    return texts;
}

/// The name of the verdict for the last of \a items.
std::string Verdict(std::vector<FeedItem> const& items, Installation installation)
{
    installation.stones = Engine::SteppingStonesOf(items, installation, OrderOf);
    PolicyVerdict const verdict = Engine::JudgePolicy(items.back(), installation, OrderOf);
    EXPECT_EQ(verdict == PolicyVerdict::Plain, Engine::ReasonOf(verdict, items.back(), installation).isEmpty());
    return Engine::NameOf(verdict);
}

} // namespace

TEST(KeyPaths, SignaturesOfAnEnclosureAreReadWithTheirKeys)
{
    FeedItem const item =
        ItemWith("<pelnar:keys signer='aaaaaaaaaaaaaaaa' trusted='aaaaaaaaaaaaaaaa'/>",
                 "sparkle:edSignature='plain' pelnar:signatures='aaaaaaaaaaaaaaaa:one bbbbbbbbbbbbbbbb:two= B:three "
                 "cccccccccccccccc: CCCCCCCCCCCCCCCC:four five'");
    ASSERT_EQ(item.signatures.size(), 2u);
    EXPECT_EQ(item.signatures[1].keyId, KEY_B);
    EXPECT_EQ(item.signatures[1].signature.toStdString(), "two=");
    EXPECT_EQ(Engine::SignersOf(item), (QStringList{KEY_A, KEY_B}));
    QByteArray many;
    for (int i = 0; i < 9; ++i)
    {
        many += "000000000000000" + QByteArray::number(i) + ":x ";
    }
    EXPECT_EQ(ItemWith("", "pelnar:signatures='" + many + "'").signatures.size(), 8u) << "bounded";
}

TEST(KeyPaths, ABundleVerifiesTheSignatureOfAKeyThatItTrusts)
{
    FeedItem item = Keyed("6.0", KEY_A, {});
    item.signatures = {{KEY_B, QStringLiteral("second")}};
    EXPECT_EQ(Left({item}, Trusting({})), "6.0:plain ") << "nothing is known of its keys";
    EXPECT_EQ(Left({item}, Trusting({KEY_A})), "6.0:plain ");
    EXPECT_EQ(Left({item}, Trusting({KEY_B})), "6.0:second ");
    EXPECT_EQ(Left({item}, Trusting({KEY_C, KEY_B})), "6.0:second ");
    EXPECT_EQ(Left({item}, Trusting({KEY_C})), "");
    item.signerKey.clear();
    EXPECT_EQ(Left({item}, Trusting({KEY_C})), "6.0:plain ") << "the key is not named: the download is verified";
    item.signerKey = QStringLiteral("a key");
    EXPECT_EQ(Left({item}, Trusting({KEY_C})), "6.0:plain ") << "an empty id has no meaning";
    item.edSignature.clear();
    item.signerKey = KEY_A;
    EXPECT_EQ(Left({item}, Trusting({KEY_A})), "") << "there is no signature of that key";
    item.signatures.clear();
    EXPECT_EQ(Left({item}, Trusting({KEY_A})), "6.0: ") << "without a signature it has a fault of its own";
}

TEST(KeyPaths, DeltaOfAnotherKeyIsLeftOutAlone)
{
    FeedItem item = Keyed("6.0", KEY_A, {});
    item.signatures = {{KEY_B, QStringLiteral("second")}};
    FeedItem delta = Keyed("6.0", KEY_A, {});
    delta.isDelta = true;
    item.deltas = {delta};
    std::vector<FeedItem> items{item};
    Engine::LeaveOut(items, Trusting({KEY_B}), OrderOf);
    ASSERT_EQ(items.size(), 1u);
    EXPECT_TRUE(items[0].deltas.empty());
    items = {item};
    Engine::LeaveOut(items, Trusting({KEY_A}), OrderOf);
    EXPECT_EQ(items[0].deltas.size(), 1u);
}

TEST(KeyPaths, AVersionThatBringsTheKeyComesFirst)
{
    FeedItem const bridge = Keyed("5.5", KEY_A, {KEY_A, KEY_B});
    FeedItem const next = Keyed("6.0", KEY_B, {KEY_B});
    EXPECT_EQ(Left({bridge, next}, Trusting({KEY_A})), "5.5:plain ");
    EXPECT_EQ(Verdict({bridge, next}, Trusting({KEY_A})), "needs-another-version-first");
    EXPECT_EQ(Left({bridge, next}, Trusting({KEY_A, KEY_B}, "5.5")), "5.5:plain 6.0:plain ");
    EXPECT_EQ(Verdict({next}, Trusting({KEY_A})), "key-not-trusted");
    EXPECT_EQ(Verdict({Keyed("7.0", KEY_A, {KEY_A, KEY_B}), next}, Trusting({KEY_A})), "key-not-trusted")
        << "the other one is newer";
    EXPECT_EQ(Verdict({Keyed("4.0", KEY_A, {KEY_A, KEY_B}), next}, Trusting({KEY_A})), "key-not-trusted")
        << "the other one is older than the running version";
    FeedItem withdrawn = bridge;
    withdrawn.policy.isWithdrawn = true;
    EXPECT_EQ(Verdict({withdrawn, next}, Trusting({KEY_A})), "key-not-trusted");
    FeedItem informational = next;
    informational.policy.isInformational = true;
    EXPECT_EQ(Verdict({informational}, Trusting({KEY_A})), "informational") << "nothing of it is verified";
}

TEST(KeyPaths, SeveralVersionsMayBringOneKeyAfterTheOther)
{
    std::vector<FeedItem> items{Keyed("7.0", KEY_C, {KEY_C}), Keyed("6.0", KEY_B, {KEY_B, KEY_C}),
                                Keyed("5.5", KEY_A, {KEY_A, KEY_B}), Keyed("8.0", KEY_C, {KEY_C})};
    EXPECT_EQ(Verdict(items, Trusting({KEY_A})), "needs-another-version-first");
    items.erase(items.begin() + 1);
    EXPECT_EQ(Verdict(items, Trusting({KEY_A})), "key-not-trusted");
}

TEST(KeyPaths, AVersionThatIsJumpedOverBringsNoKey)
{
    std::vector<FeedItem> const items{Keyed("5.5", KEY_A, {KEY_B}), Keyed("5.6", KEY_A, {KEY_A}),
                                      Keyed("6.0", KEY_B, {KEY_B})};
    EXPECT_EQ(Verdict(items, Trusting({KEY_A})), "key-not-trusted") << "the client takes 5.6";
}

TEST(KeyPaths, VersionIsNoStepToItself)
{
    Engine::KeyedVersion const at{QStringLiteral("5.0"), {KEY_A}, {KEY_A}};
    EXPECT_TRUE(Engine::SteppingStonesFrom(at, {at}, OrderOf).empty());
    EXPECT_FALSE(Engine::IsBehindStone(at, {at}, OrderOf));
}

TEST(KeyPaths, VersionIsReachedByASteppingStoneThatIsNotOlder)
{
    Engine::KeyedVersion const target{QStringLiteral("6.0"), {}, {}};
    Engine::KeyedVersion const older{QStringLiteral("5.5"), {}, {}};
    Engine::KeyedVersion const newer{QStringLiteral("6.5"), {}, {}};
    EXPECT_FALSE(Engine::IsReached(target, {}, OrderOf));
    EXPECT_FALSE(Engine::IsReached(target, {older}, OrderOf));
    EXPECT_TRUE(Engine::IsReached(target, {older, target}, OrderOf));
    EXPECT_TRUE(Engine::IsReached(target, {newer, older}, OrderOf));
}

TEST(KeyPaths, SearchIsBounded)
{
    auto const key = [](int i) { return QStringLiteral("%1").arg(i, 16, 16, QLatin1Char('0')); };
    std::vector<FeedItem> items;
    for (int i = 1; i < 40; ++i)
    {
        items.push_back(Keyed("", key(i), {key(i + 1)}));
        items.back().versionString = QString::number(5 + 0.01 * i);
    }
    std::vector<Engine::KeyedVersion> const stones = Engine::SteppingStonesOf(items, Trusting({key(1)}), OrderOf);
    ASSERT_EQ(stones.size(), Engine::MOST_STEPPING_STONES);
    EXPECT_EQ(stones.back().version.toStdString(), "5.16");
}

} // namespace Pelnar::Testing
