// GenerateFaultTest.cpp: every system call of "generate" about files fails once. The default run takes a sample of the
// places; with PELNAR_EVERY_PLACE=1 in the environment it takes all.

#include "tests/installer/CallPlaces.h"
#include "tests/publisher/gate/UnpublishedVersion.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <sys/syscall.h>
#include <sys/wait.h>

namespace Pelnar::Testing
{
namespace
{

constexpr std::size_t SAMPLE = IS_SANITIZED ? 6 : 24;

/// The tool's main function begins with it.
bool IsBeginOfTheTool(CallStop const& stop)
{
    return stop.call == SYS_rt_sigaction && stop.arguments[0] == SIGXFSZ;
}

/// One run of "generate" for the scene, traced, with a folder for temporary files of its own.
class TracedRun
{
public:
    explicit TracedRun(UnpublishedVersion const& scene) : m_scene(scene) {}

    /// Runs it. \a visitor gets the calls about files of the publisher.
    void Run(CallVisitor const& visitor)
    {
        std::vector<std::string> words{"/usr/bin/env", "TMPDIR=" + Temporary(), "ASAN_OPTIONS=detect_leaks=0",
                                       AppcastProgram().toStdString()};
        for (QString const& argument : m_scene.Arguments())
        {
            words.push_back(argument.toStdString());
        }
        words.insert(words.end(), {"--recompress", "--machine", "x86_64"});
        std::string const output = m_output.filePath(QStringLiteral("output")).toStdString();
        m_visited.clear();
        traced = TraceProgram(
            words, output,
            [&](CallStop stop)
            {
                if (!IsAboutFiles(stop))
                {
                    return CallVerdict::GoOn();
                }
                m_visited.push_back(stop.index);
                return visitor(stop);
            },
            &IsBeginOfTheTool);
        status = WIFEXITED(traced.waitStatus) ? WEXITSTATUS(traced.waitStatus) : -1;
        std::ifstream in(output);
        told.assign(std::istreambuf_iterator<char>(in), {});
    }

    std::string Temporary() const { return m_temporary.path().toStdString(); }
    bool IsTemporaryFolderEmpty() const { return QDir(m_temporary.path()).isEmpty(); }

    TracedEnd traced;
    int status = -1;  ///< -1 after a signal
    std::string told; ///< all output

private:
    bool IsAboutFiles(CallStop const& stop) const
    {
        std::string const file = FileOf(stop);
        std::string const key = m_scene.folder.KeyFile().toStdString();
        return file.rfind(m_scene.folder.Path(), 0) == 0 || file.rfind(Temporary(), 0) == 0 || file == key;
    }

    UnpublishedVersion const& m_scene;
    QTemporaryDir m_temporary;
    QTemporaryDir m_output;
    std::vector<int> m_visited;
};

class GenerateFault : public ::testing::Test
{
protected:
    GenerateFault()
    {
        UnpublishedVersion const scene;
        TracedRun run(scene);
        run.Run(RecordPlaces(places));
        EXPECT_EQ(run.status, 0) << run.told;
        released = FilesOf(scene.folder);
        EXPECT_EQ(released.count("Test-2.0-3.0.delta") + released.count("Test-3.0.tar.zst"), 2u);
    }

    /// The run has told what happened to which file and what to do.
    void ExpectTold(TracedRun const& run, UnpublishedVersion const& scene, std::string const& hit) const
    {
        EXPECT_TRUE(run.status == 1 || run.status == 2) << run.status;
        std::size_t const error = run.told.find("error: ");
        EXPECT_NE(error, std::string::npos);
        EXPECT_NE(run.told.find("; ", std::min(error, run.told.size())), std::string::npos) << "what to do";
        EXPECT_EQ(run.told.find(run.Temporary() + "/pelnar-appcast"), std::string::npos) << "a folder that is gone";
        std::string const folder = scene.folder.Path();
        std::string const key = scene.folder.KeyFile().toStdString();
        std::string const name = hit.rfind(folder + '/', 0) == 0 ? hit.substr(folder.size() + 1) : std::string();
        bool const isPublished = released.count(name) != 0;
        EXPECT_NE(run.told.find(hit == key    ? key
                                : isPublished ? folder + '/' + name
                                              : folder),
                  run.told.find(run.Temporary()))
            << "the file at which it failed: " << hit;
    }

    std::vector<CallPlace> places;
    Files released; ///< the folder after a run without faults
};

TEST_F(GenerateFault, EndsWithTheOldReleaseOrTheNewOneAndSaysWhy)
{
    constexpr int ERRORS[] = {EIO, ENOSPC, ENOMEM, EMFILE, EACCES, EROFS};
    int refused = 0;
    std::size_t runs = 0;
    // Each place with one error, in turn: a run takes half a second.
    SweepPlaces(
        places, 1, SAMPLE,
        [&](CallPlace const& place, std::size_t)
        {
            int const error = ERRORS[runs++ % std::size(ERRORS)];
            UnpublishedVersion const scene;
            Files const before = FilesOf(scene.folder);
            TracedRun run(scene);
            std::string hit;
            run.Run(VerdictAt(place, CallVerdict::Fail(error), [&hit](CallStop const& stop) { hit = FileOf(stop); }));
            SCOPED_TRACE(std::strerror(error) + (" at " + hit + "\n" + run.told));
            Files const after = FilesOf(scene.folder);
            EXPECT_TRUE(after == released || (run.status != 0 && after == before));
            if (run.status != 0)
            {
                ++refused;
                ExpectTold(run, scene, hit);
            }
            bool const wasMet = !run.traced.faulted.empty();
            run.Run([](CallStop const&) { return CallVerdict::GoOn(); });
            EXPECT_EQ(run.status, 0) << run.told;
            EXPECT_TRUE(FilesOf(scene.folder) == released);
            EXPECT_TRUE(run.IsTemporaryFolderEmpty());
            return wasMet;
        });
    RecordProperty("refused", refused);
    EXPECT_GT(refused, 0);
}

TEST(UnknownFeed, IsNotTakenForAMissingOne)
{
    UnpublishedVersion const scene;
    scene.folder.Remove("appcast.xml");
    std::filesystem::create_symlink("appcast.xml", scene.folder.Path() + "/appcast.xml");
    ToolRun const run = scene.folder.Generate();
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("/appcast.xml: cannot be read: Too many levels of symbolic links; check the name and the "
                           "file's permissions"),
              std::string::npos)
        << run.err;
    EXPECT_TRUE(std::filesystem::is_symlink(scene.folder.Path() + "/appcast.xml"));
}

} // namespace
} // namespace Pelnar::Testing
