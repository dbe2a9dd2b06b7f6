// SettingsFixture.h: a home folder for a test, and the files in it.
// Thread: main. Ownership: the folder is removed with the fixture.
#pragma once

#include "Settings/UpdateDefaults.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <string>

namespace Pelnar::Testing
{

class SettingsTest : public ::testing::Test
{
protected:
    SettingsTest()
    {
        qputenv("HOME", QFile::encodeName(home.path()));
        for (char const* const variable : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
        {
            qunsetenv(variable);
        }
    }

    QString Path(char const* below) const { return home.filePath(QLatin1String(below)); }

    static void Write(QString const& path, QByteArray const& bytes)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// Empty without the file.
    static std::string Read(QString const& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    /// The same, with one blank for each run of blanks and line ends.
    static std::string ReadSimplified(QString const& path)
    {
        return QByteArray::fromStdString(Read(path)).simplified().toStdString();
    }

    QTemporaryDir const home;
};

} // namespace Pelnar::Testing
