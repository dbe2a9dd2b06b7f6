#include "Publisher/files/GzipCheck.h"

#include <memory>
#include <vector>

#include <fcntl.h>
#include <unistd.h>
#include <zlib.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr unsigned PIECE_BYTES = 256 << 10;

} // namespace

bool IsIntactGzip(int descriptor)
{
    int const copy = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    gzFile const file = copy >= 0 && ::lseek(copy, 0, SEEK_SET) == 0 ? ::gzdopen(copy, "rb") : nullptr;
    if (!file)
    {
        ::close(copy);
        return false;
    }
    std::vector<char> unpacked(PIECE_BYTES);
    int count = 0;
    do
    {
        count = ::gzread(file, unpacked.data(), PIECE_BYTES);
    } while (count > 0);
    bool const isGzip = count == 0 && ::gzdirect(file) == 0;
    bool const isWhole = ::gzclose_r(file) == Z_OK; // a member may end too early
    return isGzip && isWhole && ::lseek(descriptor, 0, SEEK_SET) == 0;
}

} // namespace Pelnar::Publisher
