// RotateVerb.cpp: "keys rotate": the progress of a feed from one signing key to another, and the next step.

#include "Publisher/Refusal.h"
#include "Publisher/SharedOptions.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/keys/Signer.h"
#include "Publisher/signfeed/FeedSigner.h"

namespace Pelnar::Publisher
{
namespace
{

struct Options : FeedQuestion
{
    std::string oldKey;
    std::string newKey;
};

/// The versions of a feed by their relation to the two keys, in the order of the feed.
struct RotationState
{
    QStringList bridges;    ///< signed by the old key, trust both
    QStringList byNewKey;   ///< signed by the new key
    QStringList onlyOld;    ///< trust the old key and not the new one
    QStringList withoutOld; ///< trust the new key and not the old one
    QStringList unknown;    ///< the feed does not say what they trust
    bool isFeedSigned = false;
    bool isFeedByNewKey = false;
};

RotationState StateOf(ParsedFeed const& feed, Options const& options)
{
    QString const oldId = KeyIdOf(options.oldKey);
    QString const newId = KeyIdOf(options.newKey);
    RotationState state;
    for (Engine::FeedItem const& item : feed.items)
    {
        QStringList const signers = Engine::SignersOf(item);
        bool const trustsOld = item.trustedKeys.contains(oldId);
        bool const trustsNew = item.trustedKeys.contains(newId);
        auto const note = [&item](QStringList& list, bool isSo)
        {
            if (isSo)
            {
                list.append(item.versionString);
            }
        };
        note(state.bridges, signers.contains(oldId) && trustsNew);
        note(state.byNewKey, signers.contains(newId));
        note(state.onlyOld, trustsOld && !trustsNew);
        note(state.withoutOld, trustsNew && !trustsOld);
        note(state.unknown, item.trustedKeys.isEmpty() && !item.policy.isInformational);
    }
    QByteArray const& bytes = feed.source.bytes;
    std::string const signer = Engine::FeedSigner(bytes, {options.oldKey, options.newKey});
    state.isFeedSigned = !signer.empty();
    state.isFeedByNewKey = signer == newId.toStdString();
    return state;
}

QString NamesOf(QStringList const& versions)
{
    return versions.join(u", "_s);
}

class Guide
{
public:
    explicit Guide(Console const& console) : m_console(console) {}

    void Step(QString const& what, QStringList const& doneBy, QStringList const& waitsFor,
              QStringList const& hints = {})
    {
        bool const isDone = !doneBy.isEmpty();
        bool const isNext = !isDone && !m_hasNext;
        m_hasNext = m_hasNext || isNext;
        QString const state = isDone ? u"done"_s : !isNext ? u"later"_s : waitsFor.isEmpty() ? u"now"_s : u"wait"_s;
        m_console.Print(
            u"%1. %2: %3%4"_s.arg(++m_count).arg(state, what, isDone ? u" (%1)"_s.arg(NamesOf(doneBy)) : QString()));
        if (!isDone && !waitsFor.isEmpty())
        {
            m_console.Print(u"   these versions must be gone first, because they trust only the old key: "_s +
                            NamesOf(waitsFor));
        }
        for (QString const& hint : isDone ? QStringList() : hints)
        {
            m_console.Print(u"   "_s + hint);
        }
    }

private:
    Console const& m_console;
    int m_count = 0;
    bool m_hasNext = false;
};

void Print(RotationState const& state, Console const& console)
{
    Guide guide(console);
    guide.Step(u"publish a version that is signed with the old key and whose bundle trusts both keys"_s, state.bridges,
               {}, {u"the old key is its SUPublicEDKey, the new one its PelnarNextPublicEDKey"_s});
    QStringList hints;
    if (!state.onlyOld.isEmpty() && !state.bridges.isEmpty())
    {
        hints.append(
            u"%1 take %2 first, which stays in the feed"_s.arg(NamesOf(state.onlyOld), NamesOf(state.bridges)));
    }
    if (state.isFeedSigned && !state.isFeedByNewKey)
    {
        hints.append(u"the old key still signs the feed: generate --key OLD --second-key NEW"_s);
    }
    guide.Step(u"sign the next version with the new key; its bundle still trusts both keys"_s, state.byNewKey, {},
               hints);
    if (state.isFeedSigned)
    {
        guide.Step(u"sign the feed with the new key"_s,
                   state.isFeedByNewKey ? QStringList(u"the feed"_s) : QStringList(), state.onlyOld);
    }
    guide.Step(u"publish a version whose bundle trusts the new key only"_s, state.withoutOld,
               state.isFeedSigned && !state.isFeedByNewKey ? state.onlyOld : QStringList());
    guide.Step(u"destroy the old private key"_s, {}, state.onlyOld);
    if (!state.unknown.isEmpty())
    {
        console.Print(
            u"The feed does not say which keys these versions trust. Assume that they trust only the old key: "_s +
            NamesOf(state.unknown));
    }
}

ExitStatus Rotate(Options const& options, Console const& console)
{
    if (options.oldKey == options.newKey)
    {
        throw Refusal({u"--to"_s, u"is the same key as --from"_s, u"make a new key with \"keys generate\""_s});
    }
    Print(StateOf(ReadItems(options, options.feed, {}, console), options), console);
    return ExitStatus::Clean;
}

} // namespace

void AddRotate(CLI::App& keys, VerbContext& context)
{
    auto const [verb, options] = AddVerb<Options>(
        keys, context, "rotate",
        "Show the progress of a feed from one signing key to another: the next step, and the installed versions that "
        "must be gone before it",
        Rotate);
    AddFeedOption(verb, options.feed);
    verb.add_option("--from", options.oldKey,
                    "The old public key, which signs until now, as \"keys show --format bare\" prints it")
        ->required()
        ->type_name("KEY")
        ->check(FaultOfKey);
    verb.add_option("--to", options.newKey, "The new public key")->required()->type_name("KEY")->check(FaultOfKey);
    AddPlatformOption(verb, options.platform);
}

} // namespace Pelnar::Publisher
