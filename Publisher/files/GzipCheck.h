// GzipCheck.h: whether what gzip packed is what it unpacks to. The library that reads archives does not compare gzip's
// checksums, so most of the bits of a packed file can change unseen.
#pragma once

namespace Pelnar::Publisher
{

/// True if every gzip member of the file has the checksum and the length that it states. Bytes after the last member
/// are ignored, as in gunzip. Leaves the descriptor at the file's start.
[[nodiscard]] bool IsIntactGzip(int descriptor);

} // namespace Pelnar::Publisher
