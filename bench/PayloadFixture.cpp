#include "bench/PayloadFixture.h"

#include "Engine/core/base/Descriptor.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Bench
{
namespace
{

namespace fs = std::filesystem;

class Folder
{
public:
    Folder()
    {
        char const* const chosen = std::getenv("PELNAR_BENCH_FOLDER");
        path = std::string(chosen ? chosen : "/tmp") + "/pelnar-bench-XXXXXX";
        if (!::mkdtemp(path.data()))
        {
            std::abort();
        }
    }
    ~Folder()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    std::string path;
};

constexpr std::size_t CALL_BYTES = 5;
constexpr std::size_t BLOCK_BYTES = 4096;

} // namespace

std::string const& PayloadFolder()
{
    static Folder const folder;
    return folder.path;
}

std::string FreshPath(std::string const& name)
{
    static int count = 0;
    return PayloadFolder() + '/' + name + std::to_string(++count);
}

void WriteFile(std::string const& path, std::string const& bytes)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string ReadFile(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string ContentLikeCode(std::uint32_t seed, std::size_t size)
{
    std::mt19937 random(seed);
    std::vector<std::string> phrases;
    for (int i = 0; i < 2000; ++i)
    {
        std::string phrase(3 + random() % 12, '\0');
        for (char& character : phrase)
        {
            character = static_cast<char>(random() % 4 == 0 ? random() : "\0\1\x48\x8b\xe8\x0f\xff\x24"[random() % 8]);
        }
        phrases.push_back(phrase);
    }
    std::string content;
    while (content.size() < size)
    {
        std::uint32_t const choice = random();
        content += phrases[(choice >> 8) % (choice % 2 == 0 ? 100 : phrases.size())];
        if (choice % 8 == 0)
        {
            std::uint32_t const number = random();
            content.append(reinterpret_cast<char const*>(&number), sizeof number - choice % 3);
        }
    }
    content.resize(size);
    return content;
}

std::string NextVersionOf(std::string const& program, std::uint32_t seed)
{
    std::mt19937 random(seed);
    std::string next;
    std::uint32_t moved = 0; // bytes by which new code has moved the following code
    for (std::size_t at = 0; at < program.size(); at += BLOCK_BYTES)
    {
        std::string block = program.substr(at, BLOCK_BYTES);
        if (random() % 6 == 0)
        {
            std::size_t const from = random() % (program.size() - BLOCK_BYTES);
            std::string const added = program.substr(from, 16 * (1 + random() % 20)); // typical code
            moved += static_cast<std::uint32_t>(added.size());
            next += added;
        }
        for (std::size_t i = 0; i + CALL_BYTES <= block.size(); ++i)
        {
            bool const isNearCall = block[i] == '\xe8' && (block[i + 4] == '\0' || block[i + 4] == '\xff');
            if (isNearCall && random() % 4 != 0) // a call across some of the new code
            {
                std::uint32_t distance = 0;
                std::memcpy(&distance, &block[i + 1], sizeof distance);
                distance += moved + 16 * (random() % 64);
                std::memcpy(&block[i + 1], &distance, sizeof distance);
            }
        }
        next += block;
    }
    return next;
}

bool Run(std::vector<std::string> const& words)
{
    std::vector<std::string> copies = words;
    std::vector<char*> arguments;
    for (std::string& word : copies)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    pid_t process = 0;
    int status = 0;
    return ::posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) == 0 &&
           ::waitpid(process, &status, 0) == process && status == 0;
}

void Settle()
{
    Engine::UniqueFd const folder(::open(PayloadFolder().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (::syncfs(folder.Get()) != 0)
    {
        std::abort();
    }
}

double SecondsOf(std::function<void()> const& act)
{
    auto const begin = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace Pelnar::Bench
