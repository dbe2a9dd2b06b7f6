#include "Engine/core/download/PartialRecord.h"

#include "Engine/core/base/FieldCodec.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARD2";

} // namespace

std::string EncodePartialRecord(PartialRecord const& record)
{
    FieldWriter writer(MAGIC);
    writer.Text(record.url);
    writer.Number(record.declaredBytes);
    writer.Number(record.fileNumber);
    writer.Text(record.systemStart);
    writer.Number(record.durableBytes);
    writer.Text(record.validators.entityTag.toStdString());
    writer.Text(record.validators.lastModified.toStdString());
    writer.Number(record.spent.receivedBytes);
    writer.Number(record.spent.attempts);
    writer.Number(record.spent.seconds);
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
    record.url = reader.Text();
    record.declaredBytes = reader.Number();
    record.fileNumber = reader.Number();
    record.systemStart = reader.Text();
    record.durableBytes = reader.Number();
    record.validators.entityTag = QByteArray::fromStdString(reader.Text());
    record.validators.lastModified = QByteArray::fromStdString(reader.Text());
    record.spent.receivedBytes = reader.Number();
    record.spent.attempts = reader.Number();
    record.spent.seconds = reader.Number();
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
