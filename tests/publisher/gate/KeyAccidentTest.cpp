// KeyAccidentTest.cpp: accidents with keys, which would leave clients without updates. "generate" publishes none of
// these.

#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "tests/publisher/gate/AccidentFixture.h"

#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

std::uint8_t const NEW_SEED = 9;

/// A version that is signed by the new key and trusts it alone.
BundleText WithNewKey(std::string const& version)
{
    BundleText text = Version(version);
    text.publicKey = MakeKeyPair(NEW_SEED).publicKey;
    return text;
}

/// A version that is signed by the old key and trusts both.
BundleText WithBothKeys(std::string const& version)
{
    BundleText text = Version(version);
    text.nextKey = MakeKeyPair(NEW_SEED).publicKey;
    return text;
}

} // namespace

TEST_F(Accident, BundleTrustsAnotherKeyThanTheOneThatSigns)
{
    m_folder.PutBundle(WithNewKey("2.0"));
    ExpectRefused(Generate(),
                  {"Test-2.0.zip: version 2.0 is signed by the key ", ", but its bundle trusts another key, ",
                   "; write the entry that \"keys show\" prints", "PelnarNextPublicEDKey"});
}

TEST_F(Accident, KeyOfTheBundleIsGarbage)
{
    BundleText text = Version("2.0");
    text.publicKey = "garbage";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(),
                  {"Test-2.0.zip: SUPublicEDKey \"garbage\" in the bundle's information file is not an Ed25519 "
                   "key",
                   "; write the entry"});
}

TEST_F(Accident, SecondKeyOfTheBundleIsGarbage)
{
    BundleText text = Version("2.0");
    text.nextKey = "AAAA";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-2.0.zip: PelnarNextPublicEDKey \"AAAA\""});
}

TEST_F(Accident, NewKeyStrandsVersions)
{
    m_folder.PutVersion("5.9");
    m_folder.PutVersion("5.9.1");
    Publish();
    m_folder.PutBundle(WithNewKey("5.11"));
    Remember();
    ExpectRefused(m_folder.GenerateWithKey(NEW_SEED),
                  {"Test-5.11.zip: version 5.11 is signed by the key ", ", which strands these installed versions",
                   "5.9 (", "Test-5.9.zip)", "5.9.1 (",
                   "; first publish a version that is signed by the key they trust"});
}

TEST_F(Accident, NewKeyThatAVersionBetweenBringsIsAccepted)
{
    m_folder.PutVersion("5.9");
    Publish();
    m_folder.PutBundle(WithBothKeys("5.10"));
    Publish();
    m_folder.PutBundle(WithNewKey("5.11"));
    ToolRun const run = m_folder.GenerateWithKey(NEW_SEED);
    EXPECT_EQ(run.status, 0) << run.err;
    ToolRun const check = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(check.status, 0) << check.err;
    // Clients of the old version take the version between, and then the new one.
    auto const explained = [this](char const* version)
    {
        return RunTool({QStringLiteral("explain"), m_folder.PathOf("appcast.xml"), QStringLiteral("--local-version"),
                        QLatin1String(version), QStringLiteral("--system-version"), QStringLiteral("unknown"),
                        QStringLiteral("--platform"), QStringLiteral("linux")})
            .out;
    };
    EXPECT_NE(explained("5.9").find("needs-another-version-first"), std::string::npos) << explained("5.9");
    EXPECT_EQ(explained("5.10").find("needs-another-version-first"), std::string::npos) << explained("5.10");
}

TEST_F(Accident, NewKeyThatSignsBesideTheOldOneIsAccepted)
{
    m_folder.PutVersion("5.9");
    Publish();
    std::string const second = m_besides.Path() + "/second";
    WriteFile(second, Base64(std::string(32, '\x9')) + '\n');
    EXPECT_EQ(::chmod(second.c_str(), 0600), 0);
    m_folder.PutBundle(WithNewKey("5.11"));
    ToolRun const run = m_folder.Generate({QStringLiteral("--second-key"), QString::fromStdString(second)});
    EXPECT_EQ(run.status, 0) << run.err;
    std::vector<Engine::FeedItem> const items = m_folder.Items();
    ASSERT_EQ(items.size(), 2u);
    ASSERT_EQ(items[0].signatures.size(), 2u);
    EXPECT_EQ(items[0].signatures[0].signature, items[0].edSignature);
    EXPECT_EQ(items[0].signatures[0].keyId, items[0].signerKey);
    EXPECT_EQ(items[0].signatures[1].keyId.toStdString(), Engine::KeyIdOf(MakeKeyPair(NEW_SEED).publicKey));
    EXPECT_EQ(items[0].signatures[1].signature.toStdString(),
              Base64(Sign(m_folder.ContentOf("Test-5.11.zip"), MakeKeyPair(NEW_SEED))));
    ToolRun const check = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(check.status, 0) << check.err;
}

TEST_F(Accident, FeedSaysTheWrongKey)
{
    m_folder.PutVersion("5.9");
    std::string feed = m_folder.GeneratedFeed();
    std::string const id = Engine::KeyIdOf(MakeKeyPair(7).publicKey);
    std::string const said = "signer=\"" + id;
    ASSERT_NE(feed.find(said), std::string::npos) << feed;
    feed.replace(feed.find(said), said.size(), "signer=\"0123456789abcdef");
    m_folder.Put("appcast.xml", feed);
    ToolRun const run = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("is signed by the key " + id + ", but the feed says 0123456789abcdef"), std::string::npos)
        << run.err;
}

TEST_F(Accident, NewKeyStrandsVersionsWhoseArchivesAreGone)
{
    m_folder.PutVersion("5.9");
    Publish();
    m_folder.Remove("Test-5.9.zip");
    m_folder.PutBundle(WithNewKey("5.11"));
    Remember();
    // The feed still says which keys 5.9 trusts.
    ExpectRefused(m_folder.GenerateWithKey(NEW_SEED),
                  {"Test-5.11.zip: ", "strands these installed versions", "5.9 (", "appcast.xml:"});
}

TEST_F(Accident, NewKeyThatEveryVersionTrustsIsAccepted)
{
    m_folder.PutBundle(WithBothKeys("5.10"));
    Publish();
    m_folder.PutBundle(WithNewKey("5.11"));
    ToolRun const run = m_folder.GenerateWithKey(NEW_SEED);
    EXPECT_EQ(run.status, 0) << run.err;
    // The bundle that trusts the first key shows which key has signed the old archives.
    ToolRun const again = m_folder.GenerateWithKey(NEW_SEED);
    EXPECT_EQ(again.status, 0) << again.err;
}

TEST_F(Accident, RootKeyWithoutAStatementOrWithOneThatClientsRefuse)
{
    BundleText text = Version("1.0");
    text.rootKey = MakeKeyPair(ROOT_SEED).publicKey;
    m_folder.PutBundle(text);
    std::string const refusal = "Test-1.0.zip: its clients require a key statement and would refuse the feed: ";
    ExpectRefused(Generate(), {refusal, "--key-statement of generate or sign-feed"});
    StatementText statement;
    statement.bundles = {text.identifier};
    auto const generateWith = [&](StatementText const& given, std::uint8_t rootSeed = ROOT_SEED) {
        return Generate({QStringLiteral("--key-statement"), PutStatement(given, rootSeed)});
    };
    ExpectRefused(generateWith(statement, 9), {refusal});
    StatementText other = statement;
    other.bundles = {"org.pelnar.other"};
    ExpectRefused(generateWith(other), {refusal});
    StatementText expired = statement;
    expired.expires = "2020-01-01T00:00:00Z";
    ExpectRefused(generateWith(expired), {refusal});
    StatementText ofAnotherKey = statement;
    ofAnotherKey.validSeeds = {9};
    EXPECT_EQ(generateWith(ofAnotherKey).status, 2) << "the key that signs is not valid by it";
    ToolRun const run = generateWith(statement);
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    ToolRun const check = RunTool({QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())});
    EXPECT_EQ(check.status, 0) << check.out << check.err;
}

TEST_F(Accident, FeedIsUnsignedAlthoughClientsOfAVersionRequireASignature)
{
    BundleText text = Version("1.0");
    // Any value except NO counts as YES for clients.
    for (char const* const value : {"YES", "JES"})
    {
        text.requiresSignedFeed = value;
        m_folder.PutBundle(text);
        ExpectRefused(Generate(),
                      {"Test-1.0.zip: its clients require a signed feed and would refuse this one; ", "--sign-feed"});
    }
    ToolRun run = m_folder.Generate({QStringLiteral("--sign-feed")});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    // A signed feed stays signed.
    text.version = "2.0";
    m_folder.PutBundle(text);
    run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    QStringList const check{QStringLiteral("check-release"), QString::fromStdString(m_folder.Path())};
    EXPECT_EQ(RunTool(check).status, 0);
    std::string const feed = m_folder.ContentOf("appcast.xml");
    m_folder.Put("appcast.xml", feed.substr(0, feed.rfind("<!--")));
    run = RunTool(check);
    EXPECT_EQ(run.status, 1) << run.out;
    EXPECT_NE(run.err.find("Test-2.0.zip: its clients require a signed feed and would refuse this one"),
              std::string::npos)
        << run.err;
    // Also the clients of a version that was published before.
    m_folder.PutVersion("3.0");
    ExpectRefused(Generate(), {"Test-2.0.zip: its clients require a signed feed"});
}

TEST_F(Accident, FeedIsSignedByAKeyThatClientsOfAnOlderVersionDoNotTrust)
{
    std::string const newKey = MakeKeyPair(9).publicKey;
    BundleText text = Version("1.0");
    text.requiresSignedFeed = "YES";
    m_folder.PutBundle(text);
    m_folder.GeneratedFeed({QStringLiteral("--sign-feed")});
    text.version = "1.1";
    text.nextKey = newKey;
    m_folder.PutBundle(text);
    Publish();
    text.version = "1.2";
    m_folder.PutBundle(text);
    ToolRun run = m_folder.GenerateWithKey(9);
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("was signed by another key; give the key that signed it (during a change of keys, the new "
                           "one is --second-key of generate)"),
              std::string::npos)
        << run.err;
    std::string const feed = m_folder.ContentOf("appcast.xml");
    m_folder.Put("appcast.xml", feed.substr(0, feed.rfind("<!--")));
    Remember();
    ExpectRefused(m_folder.GenerateWithKey(9, {QStringLiteral("--sign-feed")}),
                  {"Test-1.0.zip: its clients require a signed feed and would refuse this one; sign the feed with a "
                   "key that they trust",
                   "generate with the old key as --key and the new one as --second-key"});
    // Nobody runs the oldest version any more.
    m_folder.Remove("Test-1.0.zip");
    run = m_folder.GenerateWithKey(9, {QStringLiteral("--sign-feed")});
    EXPECT_EQ(run.status, 0) << run.err;
}

TEST_F(Accident, NoSignatureIsAskedForByNoOrByABundleForMacOS)
{
    BundleText text = Version("1.0");
    text.requiresSignedFeed = "No";
    m_folder.PutBundle(text);
    text.requiresSignedFeed = "YES";
    m_folder.Put("Mac.zip", MakeArchive(Container::Zip, MakeMacBundle(text)));
    ToolRun const run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.out << run.err;
}

TEST_F(Accident, BundleWhoseClientsNeverCheckAgainIsTold)
{
    BundleText text = Version("1.0");
    text.feedUrl = "http://updates.example.com/appcast.xml";
    m_folder.PutBundle(text);
    ToolRun run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-1.0.zip: has the feed address http://updates.example.com/appcast.xml, which its "
                           "clients refuse"),
              std::string::npos)
        << run.err;
    text = Version("2.0");
    text.feedUrl = "https://updates.example.com/appcast.xml";
    text.disablesUpdates = "YES";
    m_folder.PutBundle(text);
    run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-2.0.zip: has PelnarUpdatesDisabled, so its clients never get another update"),
              std::string::npos)
        << run.err;
    EXPECT_EQ(run.err.find("feed address"), std::string::npos) << run.err;
}

TEST_F(Accident, NewVersionForgetsTheFeedsAddressOrItsSignature)
{
    BundleText text = Version("1.0");
    text.feedUrl = "https://updates.example.com/appcast.xml";
    text.requiresSignedFeed = "YES";
    m_folder.PutBundle(text);
    EXPECT_EQ(m_folder.Generate({QStringLiteral("--sign-feed")}).err, "");
    m_folder.PutVersion("2.0");
    ToolRun const run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-2.0.zip: does not require a signed feed, although version 1.0 does"),
              std::string::npos)
        << run.err;
    EXPECT_NE(run.err.find("Test-2.0.zip: has no SUFeedURL, although version 1.0 has one"), std::string::npos)
        << run.err;
}

TEST_F(Accident, NewVersionForgetsTheRootKeyOrIsOlder)
{
    BundleText text = Version("1.0");
    text.rootKey = MakeKeyPair(ROOT_SEED).publicKey;
    m_folder.PutBundle(text);
    StatementText statement;
    statement.bundles = {text.identifier};
    EXPECT_EQ(m_folder.Generate({QStringLiteral("--key-statement"), PutStatement(statement)}).status, 0);
    m_folder.PutVersion("2.0");
    ToolRun run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-2.0.zip: has no root key, although version 1.0 has one"), std::string::npos)
        << run.err;
    m_folder.PutVersion("0.9");
    run = m_folder.Generate();
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Test-0.9.zip: has the version 0.9, but "), std::string::npos) << run.err;
    EXPECT_EQ(run.err.find("root key"), std::string::npos) << run.err;
}

TEST_F(Accident, RevokedKeySignsANewVersion)
{
    BundleText text = Version("1.0");
    text.rootKey = MakeKeyPair(ROOT_SEED).publicKey;
    m_folder.PutBundle(text);
    StatementText statement;
    statement.bundles = {text.identifier};
    QString const option = QStringLiteral("--key-statement");
    EXPECT_EQ(m_folder.Generate({option, PutStatement(statement)}).status, 0);
    statement.serial = "4";
    statement.validSeeds = {9};
    statement.revoked = {Engine::KeyIdOf(MakeKeyPair(7).publicKey)};
    text.version = "2.0";
    text.publicKey = MakeKeyPair(NEW_SEED).publicKey;
    m_folder.PutBundle(text);
    // The new key signs. Older versions learn of it from the statement, and the old key's signatures stay.
    ToolRun const run = m_folder.GenerateWithKey(9, {option, PutStatement(statement)});
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    Remember();
    text.version = "3.0";
    m_folder.PutBundle(text);
    ExpectRefused(Generate(), {"Test-3.0.zip: version 3.0 is signed by the key ",
                               "but with the feed's key statement its clients trust ", "sign it with a valid key"});
}

TEST_F(Accident, FeedKeepsWhomEachVersionTrusts)
{
    BundleText text = Version("2.0");
    text.nextKey = MakeKeyPair(NEW_SEED).publicKey;
    m_folder.PutBundle(text);
    m_folder.GeneratedFeed();
    std::vector<Engine::FeedItem> const items = m_folder.Items();
    ASSERT_EQ(items.size(), 1u);
    ASSERT_EQ(items[0].trustedKeys.size(), 2);
    EXPECT_EQ(items[0].trustedKeys[0], items[0].signerKey);
    EXPECT_EQ(items[0].signerKey.size(), 16);
    EXPECT_NE(items[0].trustedKeys[1], items[0].signerKey);
}

} // namespace Pelnar::Testing
