#include "Engine/core/check/RolloutSeed.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/feed/ReleaseRules.h"
#include "Engine/core/helper/NoteFile.h"

#include <QCryptographicHash>
#include <QLockFile>
#include <QRandomGenerator>

#include <glog/logging.h>

#include <array>

namespace Pelnar::Engine
{
namespace
{

constexpr int SEED_BYTES = 16;
constexpr int LONGEST_WAIT_MS = 500;
char const* const FILE_NAME = "rollout-seed";

QByteArray Draw()
{
    std::array<quint32, SEED_BYTES / sizeof(quint32)> numbers{};
    QRandomGenerator generator = QRandomGenerator::securelySeeded();
    generator.fillRange(numbers.data(), static_cast<qsizetype>(numbers.size()));
    return QByteArray(reinterpret_cast<char const*>(numbers.data()), SEED_BYTES);
}

/// Empty if the file is missing or has another form.
QByteArray Read(int folder)
{
    std::string const bytes = ReadNote(folder, FILE_NAME);
    return bytes.size() == SEED_BYTES ? QByteArray::fromStdString(bytes) : QByteArray();
}

QByteArray ReadOrDraw(int folder, QString const& path)
{
    QByteArray seed = Read(folder);
    if (!seed.isEmpty())
    {
        return seed;
    }
    // Otherwise two processes could draw different groups at the same time.
    QLockFile lock(PathForQt(folder, path) + QStringLiteral("/rollout-seed.lock"));
    (void)lock.tryLock(LONGEST_WAIT_MS);
    seed = Read(folder);
    if (seed.isEmpty())
    {
        WriteNote(folder, FILE_NAME, Draw().toStdString());
        seed = Read(folder);
    }
    return seed;
}

} // namespace

QByteArray RolloutSeed(QString const& folder)
{
    std::string const path = PathBytes(folder);
    QByteArray seed;
    try
    {
        if (!path.empty())
        {
            UniqueFd const opened = OpenPrivateFolder(path);
            seed = opened ? ReadOrDraw(opened.Get(), folder) : QByteArray();
        }
    }
    catch (UpdateRefusal const&)
    {
        seed.clear();
    }
    LOG_IF(WARNING, seed.isEmpty()) << "The group for staged updates cannot be stored in " << folder.toStdString()
                                    << "; this installation counts as the last group";
    return seed;
}

int RolloutGroup(QByteArray const& seed, QString const& version)
{
    if (seed.isEmpty())
    {
        return ROLLOUT_GROUPS - 1;
    }
    QByteArray const hash =
        QCryptographicHash::hash(seed + '\n' + VersionLine(version).toUtf8(), QCryptographicHash::Sha256);
    quint64 number = 0;
    for (int i = 0; i < static_cast<int>(sizeof(number)); ++i)
    {
        number = number << 8 | static_cast<quint8>(hash.at(i));
    }
    return static_cast<int>(number % ROLLOUT_GROUPS);
}

} // namespace Pelnar::Engine
