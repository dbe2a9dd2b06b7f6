// DemoFeeds.h: feeds that the tests of the demo programs write themselves.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace Pelnar::Testing
{

/// One item: the properties in which the feeds differ.
struct DemoItem
{
    QByteArray version;
    QByteArray system;               ///< sparkle:os; empty: for every platform
    QByteArray minimumSystemVersion; ///< empty for none
};

QByteArray FeedOf(std::initializer_list<DemoItem> items);

/// Feeds in files of one folder, which is removed with the object.
class FeedFolder
{
public:
    /// The path of the new file.
    QString Write(QByteArray const& content, QString const& name = QStringLiteral("feed.xml")) const;
    QString Path(QString const& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace Pelnar::Testing
