#include "Engine/core/delta/PackingThread.h"

#include <utility>

namespace Pelnar::Engine
{

void PackedFile::Pack()
{
    packed = PackByRecipe(View(recipe), View(text), static_cast<std::size_t>(entry.size), base);
    if (packed && packed->size() != entry.size)
    {
        packed.reset();
    }
}

PackedFile& PackingThread::Append(std::unique_ptr<PackedFile> file)
{
    m_bytes += file->Bytes();
    return *m_files.emplace_back(std::move(file));
}

void PackingThread::PostLast(std::unique_ptr<PackedFile> file)
{
    if (m_tasks.Waiting() > 0)
    {
        Post(std::move(file));
        return;
    }
    PackedFile& last = Append(std::move(file));
    last.Pack();
    last.isDone = true;
}

void PackingThread::Post(std::unique_ptr<PackedFile> file)
{
    PackedFile& posted = Append(std::move(file));
    m_tasks.Post(
        [&posted]
        {
            posted.Pack();
            posted.isDone = true;
        });
}

std::unique_ptr<PackedFile> PackingThread::TakeDone()
{
    if (m_files.empty() || !m_files.front()->isDone)
    {
        return nullptr;
    }
    std::unique_ptr<PackedFile> file = std::move(m_files.front());
    m_files.pop_front();
    m_bytes -= file->Bytes();
    return file;
}

} // namespace Pelnar::Engine
