#include "tests/delta/PackedFiles.h"

#include <zlib.h>

#include <algorithm>
#include <random>
#include <stdexcept>

namespace Pelnar::Testing
{

std::string WordsOf(unsigned seed, std::size_t size)
{
    std::mt19937 random(seed);
    std::string text;
    while (text.size() < size)
    {
        // Few words are frequent, as in a language.
        unsigned const word = (random() % 30) * (random() % 30);
        text += "word" + std::to_string(word) + (random() % 12 == 0 ? ".\n" : " ");
        text += random() % 9 == 0 ? std::to_string(random()) : std::string();
    }
    return text.substr(0, size);
}

std::string GzipOf(std::string const& text, int level, int memory)
{
    constexpr int GZIP_WINDOW_BITS = 15 + 16;
    z_stream stream{};
    if (deflateInit2(&stream, level, Z_DEFLATED, GZIP_WINDOW_BITS, memory, Z_DEFAULT_STRATEGY) != Z_OK)
    {
        throw std::runtime_error("zlib cannot begin");
    }
    std::string file(deflateBound(&stream, static_cast<uLong>(text.size())) + 64, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef*>(file.data());
    stream.avail_out = static_cast<uInt>(file.size());
    int const answer = deflate(&stream, Z_FINISH);
    file.resize(stream.total_out);
    deflateEnd(&stream);
    return answer == Z_STREAM_END ? file : throw std::runtime_error("zlib cannot end");
}

std::string Noise(unsigned seed, std::size_t size)
{
    std::mt19937 random(seed);
    std::string text(size, '\0');
    std::generate(text.begin(), text.end(), [&random] { return static_cast<char>(random()); });
    return text;
}

} // namespace Pelnar::Testing
