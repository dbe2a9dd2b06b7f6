#include "Engine/core/fetch/FeedFile.h"

#include <QFile>
#include <QFileInfo>

namespace Pelnar::Engine
{

Result<QByteArray> ReadFeedFile(QUrl const& url, qint64 maxBytes)
{
    QString const path = url.toLocalFile();
    QFileInfo const info(path);
    if (!info.exists())
    {
        return Failure(ErrorCause::FileNotFound);
    }
    // Opening a pipe would wait for a writer, and a device may have no end.
    if (!info.isFile())
    {
        return Failure(ErrorCause::FileNotRegular);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        return Failure(ErrorCause::FileUnreadable, file.errorString());
    }
    QByteArray const bytes = file.read(maxBytes + 1);
    if (file.error() != QFileDevice::NoError)
    {
        return Failure(ErrorCause::FileUnreadable, file.errorString());
    }
    return bytes.size() > maxBytes ? Failure(ErrorCause::FileTooLarge) : Result<QByteArray>(bytes);
}

} // namespace Pelnar::Engine
