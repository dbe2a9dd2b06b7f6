// OddNameFolder.h: a temporary folder in which names may have any bytes. Qt's own cannot remove names that are no text.
#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <filesystem>
#include <system_error>

namespace Pelnar::Testing
{

class OddNameFolder : public QTemporaryDir
{
public:
    OddNameFolder() { setAutoRemove(false); }
    ~OddNameFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(QFile::encodeName(path()).toStdString(), ignored);
    }
};

} // namespace Pelnar::Testing
