// CheckEnduranceTest.cpp: an application that runs for months checks again and again. The default run makes some of the
// checks; with PELNAR_EVERY_PLACE=1 in the environment it makes a thousand.
#include "tests/engine/CheckFixture.h"
#include "tests/support/ProcessFootprint.h"
#include "tests/support/TaggedFeed.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <malloc.h>

namespace
{

using namespace Pelnar::Testing;

constexpr int ROUND = 20;

class CheckEndurance : public CheckContract
{
protected:
    CheckEndurance()
    {
        // Otherwise each of several heaps grows by itself, depending on which thread uses it.
        ::mallopt(M_ARENA_MAX, 1);
        for (char const* const variable : {"TMPDIR", "XDG_CACHE_HOME"})
        {
            ::setenv(variable, m_temporary.path().toLocal8Bit().constData(), 1);
        }
    }

    void Check(int rounds)
    {
        for (int round = 0; round < rounds; ++round)
        {
            CheckARound();
        }
    }

    /// The temporary files, a path in each line, while no check writes. A check keeps its feed under a lock and a
    /// temporary name, which stand behind the feed.
    std::string FilesAtRest() const
    {
        std::string files;
        auto const isAtRest = [this, &files]
        {
            files = Files();
            return QString::fromStdString(files).endsWith(QLatin1String("/kept.feed"));
        };
        EXPECT_TRUE(WaitFor(isAtRest)) << files;
        return files;
    }

private:
    std::string Files() const
    {
        QStringList names;
        QDirIterator entries(m_temporary.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
        {
            names.append(entries.next());
        }
        names.sort();
        return names.join(QLatin1Char('\n')).toStdString();
    }

    enum class Ending
    {
        Found,
        NotFound,
        Unreadable,
        NoServer,
    };

    /// Each way for a check to end is used in turn. A failed background check delays the next ones: these find nothing.
    /// Each round has its own driver and server, so that their memory is freed with it.
    void CheckARound()
    {
        Ending ending = Ending::Found;
        DelegateScript script;
        script.choose = [&ending](int number, std::vector<QString> const& versions)
        { return ending == Ending::Found ? ChooseFirst(number, versions) : ChooseNone(number, versions); };
        TaggedFeed feed{FeedWith(ItemOf("2.0") + ItemOf("3.0")), "ETag: \"one\"\r\nConnection: close\r\n"};
        LoopbackServer server(
            [&ending, &feed](QSslSocket& socket, QByteArray const& request, int)
            {
                if (ending == Ending::Unreadable)
                {
                    socket.write(OkAnswer("<rss"));
                }
                else
                {
                    feed.Answer(socket, request);
                }
                socket.disconnectFromHost();
            });
        UpdaterDriver driver(script);
        for (int check = 0; check < ROUND; check += 5)
        {
            for (Ending const probed : {Ending::Found, Ending::Unreadable, Ending::NoServer})
            {
                ending = probed;
                driver.SetFeed(probed == Ending::NoServer ? QUrl(QStringLiteral("http://127.0.0.1:1/feed.xml"))
                                                          : server.Url());
                driver.Probe();
                ASSERT_TRUE(driver.WaitForEnd());
            }
            ending = Ending::NotFound;
            driver.SetFeed(server.Url());
            for (int background = 0; background < 2; ++background)
            {
                driver.CheckInBackground();
                ASSERT_TRUE(driver.WaitForEnd());
            }
        }
        EXPECT_EQ(feed.wholes, 1 + ROUND / 5) << "the feed is kept until the answer to its condition is unreadable";
        EXPECT_EQ(Count(driver, "asked"), 3 * ROUND / 5);
        EXPECT_EQ(Count(driver, "found 2.0"), ROUND / 5);
        EXPECT_EQ(Count(driver, "aborted 1001"), 2 * ROUND / 5);
        EXPECT_EQ(driver.Errors().size(), static_cast<std::size_t>(4 * ROUND / 5));
    }

    static int Count(UpdaterDriver const& driver, char const* event)
    {
        return static_cast<int>(std::count(driver.Events().begin(), driver.Events().end(), event));
    }

    QTemporaryDir m_temporary;
};

TEST(ProcessFootprint, SeesWhatIsHeld)
{
    constexpr std::size_t HELD_BYTES = std::size_t{4} << 20;
    ProcessFootprint const before = MeasureFootprint();
    std::vector<char> const held(HELD_BYTES, 'x');
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    ProcessFootprint const after = MeasureFootprint();
    EXPECT_GE(after.residentKibibytes, before.residentKibibytes + static_cast<long>(held.size() / 1024) / 2);
    EXPECT_EQ(after.descriptors.size(), before.descriptors.size() + 1);
}

TEST_F(CheckEndurance, ThousandChecksLeaveNothingBehind)
{
    bool const isEvery = std::getenv("PELNAR_EVERY_PLACE") != nullptr;
    Check(isEvery ? 10 : 5);
    std::string const filesBefore = FilesAtRest();
    ProcessFootprint const before = MeasureFootprint();
    Check(isEvery ? 1000 / ROUND : 5);
    ProcessFootprint const after = ExpectNoGrowth(before);
    EXPECT_EQ(FilesAtRest(), filesBefore);
    RecordProperty("kibibytes_before", static_cast<int>(before.residentKibibytes));
    RecordProperty("kibibytes_after", static_cast<int>(after.residentKibibytes));
}

} // namespace
