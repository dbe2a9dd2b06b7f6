#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <algorithm>

#include <elf.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

constexpr std::int64_t FIRST_NOON = 1767268800; ///< of 2026-01-01, UTC
constexpr std::int64_t SECONDS_A_DAY = 86400;

std::string PropertyListOf(BundleText const& text)
{
    std::string list = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>\n";
    auto const add = [&list](char const* key, std::string const& value)
    {
        if (!value.empty())
        {
            list += std::string("<key>") + key + "</key><string>" +
                    QString::fromStdString(value).toHtmlEscaped().toStdString() + "</string>\n";
        }
    };
    add("CFBundleIdentifier", text.identifier);
    add("CFBundleVersion", text.version);
    add("CFBundleShortVersionString", text.displayVersion);
    add("LSMinimumSystemVersion", text.minimumSystem);
    add("SUPublicEDKey", text.publicKey);
    add("PelnarPayloadKind", text.payloadKind);
    add("PelnarNextPublicEDKey", text.nextKey);
    add("PelnarRootPublicEDKey", text.rootKey);
    add("NSExecutable", text.executable);
    add("PelnarAllowsInstallerPrograms", text.allowsInstallers);
    add("PelnarRequiresSignedFeed", text.requiresSignedFeed);
    add("SUFeedURL", text.feedUrl);
    add("PelnarUpdatesDisabled", text.disablesUpdates);
    add("PelnarMaximumFeedBytes", text.maximumFeedBytes);
    add("PelnarFeedPlatform", text.feedPlatform);
    return list + "</dict></plist>\n";
}

/// Of a bundle that names no minimum system.
std::string ProgramOf(std::string const& bundleName)
{
    return bundleName.substr(0, bundleName.rfind('.'));
}

std::vector<ForgedEntry> MakeBundleWith(BundleText const& text, std::string const& name,
                                        std::string const& informationPath, std::string const& programPath)
{
    std::string data(30000, '\0');
    unsigned state = 1;
    for (char& byte : data)
    {
        state = state * 1103515245u + 12345u;
        byte = static_cast<char>(state >> 16);
    }
    return {{name, 'd', {}, 0755},
            {name + '/' + programPath, 'f', text.program.empty() ? "#!/bin/true\n" + text.version : text.program,
             text.programMode},
            {name + '/' + informationPath.substr(0, informationPath.find('/')), 'd', {}, 0755},
            {name + '/' + informationPath, 'f', PropertyListOf(text)},
            {name + "/data", 'f', data.substr(0, 15000) + text.version + data.substr(15000)}};
}

} // namespace

std::string ElfProgram(std::uint16_t machine)
{
    Elf64_Ehdr header{};
    std::copy_n(ELFMAG, SELFMAG, header.e_ident);
    header.e_ident[EI_CLASS] = ELFCLASS64;
    header.e_ident[EI_DATA] = ELFDATA2LSB;
    header.e_type = ET_DYN;
    header.e_machine = machine;
    return std::string(reinterpret_cast<char const*>(&header), sizeof header);
}

std::vector<ForgedEntry> MakePublishedBundle(BundleText const& text, std::string const& name)
{
    return MakeBundleWith(text, name, "Resources/Info-gnustep.plist", ProgramOf(name));
}

std::vector<ForgedEntry> MakeMacBundle(BundleText const& text, std::string const& name)
{
    return MakeBundleWith(text, name, "Contents/Info.plist", "Contents/MacOS/" + ProgramOf(name));
}

PublisherFolder::PublisherFolder() : m_pair(MakeKeyPair(7))
{
    WriteFile(m_private.Path() + "/key", Base64(std::string(32, '\7')));
    EXPECT_EQ(::chmod((m_private.Path() + "/key").c_str(), 0600), 0);
    qputenv("SOURCE_DATE_EPOCH", QByteArray::number(qint64(FIRST_NOON + SECONDS_A_DAY)));
}

QString PublisherFolder::PathOf(std::string const& name) const
{
    return QString::fromStdString(m_folder.Path() + '/' + name);
}

void PublisherFolder::Put(std::string const& name, std::string const& bytes, int day) const
{
    std::string const path = m_folder.Path() + '/' + name;
    WriteFile(path, bytes);
    timespec const times[] = {{0, UTIME_OMIT}, {FIRST_NOON + (day - 1) * SECONDS_A_DAY, 0}};
    EXPECT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0) << path;
}

void PublisherFolder::PutVersion(std::string const& version, int day) const
{
    BundleText text;
    text.version = version;
    Put("Test-" + version + ".zip", MakeArchive(Container::Zip, MakePublishedBundle(text)), day);
}

void PublisherFolder::PutBundle(BundleText const& text) const
{
    Put("Test-" + text.version + ".zip", MakeArchive(Container::Zip, MakePublishedBundle(text)));
}

void PublisherFolder::Remove(std::string const& name) const
{
    EXPECT_TRUE(QFile::remove(PathOf(name))) << name;
}

void PublisherFolder::GiveTo(unsigned user) const
{
    for (Workspace const* const workspace : {&m_folder, &m_private})
    {
        EXPECT_EQ(::chown(workspace->Path().c_str(), user, user), 0);
        for (std::string const& name : workspace->Names())
        {
            EXPECT_EQ(::lchown((workspace->Path() + '/' + name).c_str(), user, user), 0) << name;
        }
    }
}

std::string PublisherFolder::ContentOf(std::string const& name) const
{
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll().toStdString();
}

ToolRun PublisherFolder::Generate(QStringList const& more) const
{
    return RunTool(QStringList{QStringLiteral("generate"), QString::fromStdString(m_folder.Path()),
                               QStringLiteral("--key"), QString::fromStdString(m_private.Path() + "/key"),
                               QStringLiteral("--url-prefix"), QStringLiteral("https://updates.example.com/test")} +
                   more);
}

ToolRun PublisherFolder::GenerateAsOrdinaryUser() const
{
    constexpr unsigned NOBODY = 65534;
    if (::geteuid() != 0)
    {
        return Generate();
    }
    GiveTo(NOBODY);
    EXPECT_EQ(::seteuid(NOBODY), 0);
    ToolRun const run = Generate();
    EXPECT_EQ(::seteuid(0), 0);
    GiveTo(0);
    return run;
}

ToolRun PublisherFolder::GenerateWithKey(char seed, QStringList const& more) const
{
    std::string const path = m_private.Path() + "/other-key";
    WriteFile(path, Base64(std::string(32, seed)));
    EXPECT_EQ(::chmod(path.c_str(), 0600), 0);
    return RunTool(QStringList{QStringLiteral("generate"), QString::fromStdString(m_folder.Path()),
                               QStringLiteral("--key"), QString::fromStdString(path), QStringLiteral("--url-prefix"),
                               QStringLiteral("https://updates.example.com/test")} +
                   more);
}

std::string PublisherFolder::GeneratedFeed(QStringList const& more) const
{
    ToolRun const run = Generate(more);
    EXPECT_EQ(run.status, 0) << run.err;
    return ContentOf("appcast.xml");
}

std::vector<Engine::FeedItem> PublisherFolder::Items(Engine::FeedPlatform platform) const
{
    Engine::FeedParseResult feed =
        Engine::ParseFeed(QByteArray::fromStdString(ContentOf("appcast.xml")),
                          QUrl(QStringLiteral("https://updates.example.com/test/appcast.xml")), platform);
    EXPECT_TRUE(feed.has_value()) << feed.error().sentence.English().toStdString();
    return std::move(feed.value().items);
}

ToolRun MakeGivenDelta(PublisherFolder const& folder, char const* from, char const* to)
{
    return RunTool({QStringLiteral("delta"), QStringLiteral("create"), folder.PathOf(from), folder.PathOf(to),
                    QStringLiteral("-o"), folder.PathOf("given.delta")});
}

} // namespace Pelnar::Testing
