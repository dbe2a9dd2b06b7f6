// LongFeedTest.cpp: no verb writes a feed that is too long for its clients.

#include "tests/publisher/gate/AccidentFixture.h"

namespace Pelnar::Testing
{
namespace
{

constexpr std::size_t USUAL_BYTES = 4 << 20;

QString Text(char const* text)
{
    return QString::fromLatin1(text);
}

class LongFeed : public Accident
{
protected:
    ToolRun Run(QStringList const& verb, QStringList const& more = {}) const
    {
        return RunTool(QStringList{verb.first(), m_folder.PathOf("appcast.xml")} + verb.mid(1) + more);
    }

    QStringList Key() const { return {Text("--key"), m_folder.KeyFile()}; }

    /// Makes the feed that many bytes long.
    void Lengthen(std::size_t bytes) const
    {
        std::string feed = m_folder.ContentOf("appcast.xml");
        std::string const mark = "  </channel>";
        std::size_t const place = feed.find(mark);
        ASSERT_NE(place, std::string::npos);
        feed.insert(place, "<!--" + std::string(bytes - feed.size() - 7, ' ') + "-->");
        m_folder.Put("appcast.xml", feed);
    }

    /// All that make the feed longer.
    std::vector<QStringList> GrowingVerbs() const
    {
        WriteFile(m_besides.Path() + "/notes.txt", std::string(100, 'n'));
        QString const notes = QString::fromStdString(m_besides.Path() + "/notes.txt");
        std::vector<QStringList> verbs{QStringList{Text("sign-feed")} + Key(),
                                       {Text("promote"), Text("1.0"), Text("--to"), Text("beta")},
                                       {Text("withdraw"), Text("1.0")},
                                       {Text("edit-notes"), Text("1.0"), notes}};
        for (std::size_t i = 1; i < 4; ++i)
        {
            verbs.push_back(verbs[i] + Key());
            verbs.push_back(verbs[i] + QStringList(Text("--dry-run")));
        }
        return verbs;
    }
};

} // namespace

TEST_F(LongFeed, ForTheBundlesBesideItIsNotWritten)
{
    BundleText text = Version("1.0");
    m_folder.PutBundle(text);
    std::size_t const length = m_folder.GeneratedFeed().size();
    m_folder.Remove("appcast.xml");
    text.maximumFeedBytes = std::to_string(length + 20);
    for (Container const kind : {Container::Zip, Container::TarXz})
    {
        SCOPED_TRACE(int(kind));
        std::string const name = kind == Container::Zip ? "Test-1.0.zip" : "Test-1.0.tar.xz";
        m_folder.Remove("Test-1.0.zip");
        m_folder.Put(name, MakeArchive(kind, MakePublishedBundle(text)));
        std::string const feed = m_folder.GeneratedFeed();
        for (QStringList const& verb : GrowingVerbs())
        {
            ToolRun const run = Run(verb);
            EXPECT_EQ(run.status, 2) << verb.join(u' ').toStdString() << run.out;
            EXPECT_NE(run.err.find(name + ": its clients refuse the feed, because it has "), std::string::npos)
                << run.err;
            EXPECT_EQ(m_folder.ContentOf("appcast.xml"), feed);
        }
        ToolRun const run = m_folder.Generate({Text("--sign-feed")});
        EXPECT_EQ(run.status, 1) << run.out;
        EXPECT_NE(run.err.find(name + ": its clients refuse the feed"), std::string::npos) << run.err;
        EXPECT_EQ(m_folder.ContentOf("appcast.xml"), feed);
        m_folder.Remove("appcast.xml");
    }
}

TEST_F(LongFeed, ForClientsThatNobodyCanAskIsNotWritten)
{
    m_folder.PutVersion("1.0");
    m_folder.GeneratedFeed();
    m_folder.Remove("Test-1.0.zip");
    Lengthen(USUAL_BYTES);
    std::string const feed = m_folder.ContentOf("appcast.xml");
    for (QStringList const& verb : GrowingVerbs())
    {
        ToolRun const run = Run(verb);
        EXPECT_EQ(run.status, 2) << verb.join(u' ').toStdString() << run.out;
        EXPECT_NE(run.err.find("appcast.xml: would have "), std::string::npos) << run.err;
        EXPECT_NE(run.err.find(" bytes, but clients accept at most 4194304, unless their bundles say otherwise; "),
                  std::string::npos)
            << run.err;
        EXPECT_TRUE(m_folder.ContentOf("appcast.xml") == feed);
    }
}

TEST_F(LongFeed, IsWrittenIfItsClientsAcceptIt)
{
    BundleText text = Version("1.0");
    text.maximumFeedBytes = std::to_string(2 * USUAL_BYTES);
    m_folder.PutBundle(text);
    m_folder.GeneratedFeed();
    Lengthen(USUAL_BYTES);
    ToolRun const run = Run(QStringList{Text("sign-feed")} + Key());
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err.find(" bytes"), std::string::npos) << run.err;
}

TEST_F(LongFeed, ThatWasTooLongBeforeIsToldAndCanBeShortened)
{
    m_folder.PutVersion("1.0");
    m_folder.PutVersion("2.0");
    m_folder.GeneratedFeed();
    m_folder.Remove("Test-1.0.zip");
    m_folder.Remove("Test-2.0.zip");
    Lengthen(USUAL_BYTES + 10000);
    for (QStringList const& verb : {QStringList{Text("promote"), Text("1.0"), Text("--to"), Text("beta")},
                                    {Text("promote"), Text("1.0")},
                                    {Text("prune"), Text("--keep"), Text("1")}})
    {
        std::string const feed = m_folder.ContentOf("appcast.xml");
        ToolRun const run = Run(verb);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_NE(run.err.find("warning: "), std::string::npos) << run.err;
        EXPECT_NE(run.err.find(" bytes, and clients refuse more than 4194304"), std::string::npos) << run.err;
        EXPECT_FALSE(m_folder.ContentOf("appcast.xml") == feed);
    }
}

} // namespace Pelnar::Testing
