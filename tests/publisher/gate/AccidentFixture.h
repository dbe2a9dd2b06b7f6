// AccidentFixture.h: a publisher's folder, and the error of "generate" for an accident in it.
#pragma once

#include "tests/engine/KeyStatementText.h"
#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace Pelnar::Testing
{

inline BundleText Version(std::string const& version)
{
    BundleText text;
    text.version = version;
    return text;
}

/// Feeds are read in an event loop.
class Accident : public ::testing::Test
{
    int m_count = 1;
    char m_name[1] = {};
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication const m_application{m_count, m_arguments};

protected:
    /// \a said: parts of the error, in their order.
    void ExpectRefused(ToolRun const& run, std::vector<std::string> const& said)
    {
        EXPECT_EQ(run.status, 1) << run.err;
        EXPECT_EQ(run.out, "");
        std::size_t place = 0;
        for (std::string const& part : said)
        {
            place = run.err.find(part, place);
            ASSERT_NE(place, std::string::npos) << '"' << part << "\" is not in: " << run.err;
        }
        EXPECT_EQ(m_folder.Names(), m_before);
        EXPECT_EQ(m_folder.Names().size() > 1 ? FeedOrNothing() : "", m_feed);
    }

    /// Publishes the archives that are there.
    void Publish()
    {
        m_folder.GeneratedFeed();
        Remember();
    }

    ToolRun Generate(QStringList const& more = {})
    {
        Remember();
        return m_folder.Generate(more);
    }

    void Remember()
    {
        m_before = m_folder.Names();
        m_feed = m_before.size() > 1 ? FeedOrNothing() : "";
    }

    std::string FeedOrNothing() const
    {
        for (std::string const& name : m_folder.Names())
        {
            if (name == "appcast.xml")
            {
                return m_folder.ContentOf(name);
            }
        }
        return {};
    }

    QString PutStatement(StatementText const& statement, std::uint8_t rootSeed = ROOT_SEED) const
    {
        WriteFile(m_besides.Path() + "/statement", StatementLineOf(statement, rootSeed).toStdString());
        return QString::fromStdString(m_besides.Path() + "/statement");
    }

    PublisherFolder const m_folder;
    Workspace const m_besides;
    std::vector<std::string> m_before;
    std::string m_feed;
};

} // namespace Pelnar::Testing
