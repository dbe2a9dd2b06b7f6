#include "tests/host/DemoFeeds.h"

#include <gtest/gtest.h>

#include <QFile>

namespace Pelnar::Testing
{

QByteArray FeedOf(std::initializer_list<DemoItem> items)
{
    QByteArray feed = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                      "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">\n"
                      "<channel><title>Demo</title>\n";
    for (DemoItem const& item : items)
    {
        feed += "<item><title>Demo " + item.version + "</title><pubDate>Mon, 02 Mar 2026 10:00:00 +0000</pubDate>";
        if (!item.minimumSystemVersion.isEmpty())
        {
            feed += "<sparkle:minimumSystemVersion>" + item.minimumSystemVersion + "</sparkle:minimumSystemVersion>";
        }
        feed += "<enclosure url=\"https://localhost/demo-" + item.version +
                ".zip\" length=\"1024\" sparkle:version=\"" + item.version + "\"" +
                (item.system.isEmpty() ? QByteArray() : " sparkle:os=\"" + item.system + "\"") +
                " type=\"application/octet-stream\"/></item>\n";
    }
    return feed + "</channel></rss>\n";
}

QString FeedFolder::Write(QByteArray const& content, QString const& name) const
{
    QFile file(m_folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

} // namespace Pelnar::Testing
