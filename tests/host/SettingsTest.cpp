// SettingsTest.cpp: the services that are read from a settings file.

#include "HostFramework/Reference/ReferenceCustomizationManager.h"
#include "HostFramework/Reference/ReferenceLinksManager.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <stdexcept>

namespace Pelnar::App
{
namespace
{

class Settings : public testing::Test
{
protected:
    /// A new file each time: QSettings does not read a file again if its size and time are the same.
    QString Write(QByteArray const& content)
    {
        QFile file(m_folder.filePath(QStringLiteral("host%1.ini").arg(++m_files)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }

    QTemporaryDir m_folder;
    int m_files = 0;
};

std::string CallDelegate(std::function<void()> const& call)
{
    try
    {
        call();
    }
    catch (std::runtime_error const& failure)
    {
        return failure.what();
    }
    return "nothing was thrown";
}

TEST_F(Settings, CustomizationAnswersWhatTheFileSays)
{
    QString const path = Write("[Application]\nDisplayName=\"P\xC3\xA9lnar, Demo\"\nVersion=5.10.1\n"
                               "BundleNameFirstPart=Pelnar\nBundleNameSecondPart=Studio\n");
    ReferenceCustomizationManager const manager(ReadCustomization(path));
    EXPECT_EQ(manager.GetDisplayName(), "P\xC3\xA9lnar, Demo");
    EXPECT_TRUE(manager.GetApplicationVersion() == Core::Version(5, 10, 1));
    EXPECT_EQ(manager.GetBundleNameFirstPart(), "Pelnar");
    EXPECT_EQ(manager.GetBundleNameSecondPart(), "Studio");
}

TEST_F(Settings, MissingKeysAreNamed)
{
    QByteArray const lines[] = {"DisplayName=Demo\n", "Version=1.0\n", "BundleNameFirstPart=A\n",
                                "BundleNameSecondPart=B\n"};
    for (QByteArray const& leftOut : lines)
    {
        QByteArray content = "[Application]\n";
        for (QByteArray const& line : lines)
        {
            content += &line == &leftOut ? QByteArray() : line;
        }
        QString const path = Write(content);
        EXPECT_EQ(CallDelegate([&] { ReadCustomization(path); }), path.toStdString() + ": [Application] " +
                                                                      leftOut.left(leftOut.indexOf('=')).toStdString() +
                                                                      " is missing");
    }
}

TEST_F(Settings, AnInvalidVersionIsQuoted)
{
    for (char const* const text : {"1.2b", "five", "1.2.3.4.5", "1,2"})
    {
        QString const path = Write(QByteArray("[Application]\nDisplayName=D\nVersion=") + text +
                                   "\nBundleNameFirstPart=A\nBundleNameSecondPart=B\n");
        EXPECT_EQ(CallDelegate([&] { ReadCustomization(path); }),
                  path.toStdString() + ": [Application] Version: \"" + text +
                      "\" is not a version: one to four numbers separated by \".\" are expected");
    }
}

TEST_F(Settings, AFileThatCannotBeReadIsNamed)
{
    QString const absent = m_folder.filePath(QStringLiteral("absent.ini"));
    EXPECT_EQ(CallDelegate([&] { ReadCustomization(absent); }),
              "cannot read the settings file " + absent.toStdString());
    EXPECT_EQ(CallDelegate([&] { ReadLinks(absent); }), "cannot read the settings file " + absent.toStdString());
    EXPECT_EQ(CallDelegate([&] { ReadLinks(m_folder.path()); }),
              "cannot read the settings file " + m_folder.path().toStdString());
}

TEST_F(Settings, AMalformedFileIsNamed)
{
    QString const path = Write("[Application\nDisplayName\n=\n");
    EXPECT_EQ(CallDelegate([&] { ReadLinks(path); }), "the settings file " + path.toStdString() + " is malformed");
}

TEST_F(Settings, LinksAnswerTheirKeysAndNothingElse)
{
    ReferenceLinksManager const manager(
        ReadLinks(Write("[Links]\nSPARKLE_APPCAST_URL=\"https://localhost/feed.xml?a=1;b=2\"\n"
                        "CHANGELOG_URL=https://localhost/a,b\nNO_SUCH_KEY=https://localhost/none\n")));
    EXPECT_EQ(manager.GetLink(URLKeys::SPARKLE_APPCAST_URL), QStringLiteral("https://localhost/feed.xml?a=1;b=2"));
    EXPECT_EQ(manager.GetLink(URLKeys::CHANGELOG_URL), QStringLiteral("https://localhost/a,b"));
    EXPECT_EQ(manager.GetLink(URLKeys::HOMEPAGE_URL), QString());
}

TEST_F(Settings, EveryLinkKeyIsReadByItsName)
{
    QByteArray content = "[Links]\n";
    for (auto const& [key, name] : LINK_KEY_NAMES)
    {
        content +=
            QByteArray::fromStdString(name) + "=http://localhost/" + QByteArray::number(static_cast<int>(key)) + "\n";
    }
    ReferenceLinksManager const manager(ReadLinks(Write(content)));
    for (auto const& [key, name] : LINK_KEY_NAMES)
    {
        EXPECT_EQ(manager.GetLink(key), QStringLiteral("http://localhost/%1").arg(static_cast<int>(key))) << name;
    }
}

} // namespace
} // namespace Pelnar::App
