// SeedRunner.cpp: the main function that makes an ordinary test of a fuzz target: it passes every seed of a folder to
// the target. Exit status 0 if all passed, 1 if the folder has no seed or one cannot be read. A failed check aborts.

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fprintf(stderr, "usage: %s FOLDER_OF_SEEDS\n", argv[0]);
        return 2;
    }
    QFileInfoList const seeds = QDir(QFile::decodeName(argv[1])).entryInfoList(QDir::Files, QDir::Name);
    for (QFileInfo const& seed : seeds)
    {
        QByteArray const path = QFile::encodeName(seed.filePath());
        QFile file(seed.filePath());
        if (!file.open(QIODevice::ReadOnly))
        {
            std::fprintf(stderr, "cannot read %s\n", path.constData());
            return 1;
        }
        // Printed before the target runs, so that the name of the seed precedes an abort.
        std::fprintf(stderr, "%s\n", path.constData());
        QByteArray const content = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(content.constData()),
                               static_cast<std::size_t>(content.size()));
    }
    if (seeds.isEmpty())
    {
        std::fprintf(stderr, "no seeds in %s\n", argv[1]);
        return 1;
    }
    return 0;
}
