#include "Engine/core/download/PartialRecord.h"

#include "Engine/core/base/FieldCodec.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARD2";

template <class Codec>
void Visit(Codec& codec, PartialRecord& record, std::string& entityTag, std::string& lastModified)
{
    codec.Fields(record.url, record.declaredBytes, record.fileNumber, record.systemStart, record.durableBytes,
                 entityTag, lastModified, record.spent.receivedBytes, record.spent.attempts, record.spent.seconds);
}

} // namespace

std::string EncodePartialRecord(PartialRecord record)
{
    FieldWriter writer(MAGIC);
    std::string entityTag = record.validators.entityTag.toStdString();
    std::string lastModified = record.validators.lastModified.toStdString();
    Visit(writer, record, entityTag, lastModified);
    return writer.Finish();
}

std::optional<PartialRecord> DecodePartialRecord(std::string_view bytes)
{
    if (bytes.size() > MAX_PARTIAL_RECORD_BYTES)
    {
        return std::nullopt;
    }
    FieldReader reader(bytes, MAGIC);
    PartialRecord record;
    std::string entityTag;
    std::string lastModified;
    Visit(reader, record, entityTag, lastModified);
    record.validators = {QByteArray::fromStdString(entityTag), QByteArray::fromStdString(lastModified)};
    if (!reader.IsWhole() || record.durableBytes > record.declaredBytes || !AreUsable(record.validators))
    {
        return std::nullopt;
    }
    return record;
}

std::uint64_t TrustedBytes(PartialRecord const& record, FoundFile const& file, std::string const& url,
                           std::uint64_t declaredBytes)
{
    if (record.url != url || record.declaredBytes != declaredBytes || record.fileNumber != file.fileNumber ||
        file.bytes > declaredBytes)
    {
        return 0;
    }
    bool const isSameRun = !file.systemStart.empty() && record.systemStart == file.systemStart;
    return isSameRun ? file.bytes : std::min(record.durableBytes, file.bytes);
}

} // namespace Pelnar::Engine
