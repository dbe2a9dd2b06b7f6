// ResumeFuzz.cpp: any bytes as the record of a partial archive, and as the answer to a request for its rest. Appended
// bytes have the requested validator and range. A head that two readers could read differently is refused. Input: the
// present and the total number of bytes and the known validators (a byte each), then the answer.

#include "Engine/core/download/PartialRecord.h"
#include "Engine/core/download/ResumeRules.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{

using namespace Pelnar::Engine;

void Require(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

void CheckRecord(std::string_view bytes)
{
    std::optional<PartialRecord> const record = DecodePartialRecord(bytes);
    if (!record)
    {
        return;
    }
    Require(EncodePartialRecord(*record) == bytes);
    for (QByteArray const& validator : {record->validators.entityTag, record->validators.lastModified})
    {
        Require(!validator.contains('\r') && !validator.contains('\n'));
    }
    FoundFile const file{record->declaredBytes, record->fileNumber, record->systemStart};
    Require(TrustedBytes(*record, file, record->url, record->declaredBytes) <= record->declaredBytes);
    // No request exceeds the budget.
    DownloadSpending const budget = BudgetOf(record->declaredBytes);
    if (JudgeSpending(record->spent, record->declaredBytes, record->declaredBytes))
    {
        Require(record->spent.receivedBytes <= budget.receivedBytes - record->declaredBytes);
        Require(record->spent.attempts < budget.attempts && record->spent.seconds < budget.seconds);
    }
}

bool HasOnly(HttpHead const& head, QByteArray const& name, QByteArray const& value)
{
    std::vector<QByteArray> const values = head.Values(name);
    return values.size() == 1 && values.front() == value;
}

void CheckDecision(PartialArchive const& partial, HttpHead const& head, ResumeRules const& decision)
{
    quint64 const missing = partial.declaredBytes - partial.bytes;
    std::vector<QByteArray> const lengths = head.Values("content-length");
    switch (decision.step)
    {
    case ResumeStep::Append:
    {
        QByteArray const range = "bytes " + QByteArray::number(partial.bytes) + '-' +
                                 QByteArray::number(partial.declaredBytes - 1) + '/' +
                                 QByteArray::number(partial.declaredBytes);
        bool const isSameVersion = partial.validators.entityTag.isEmpty()
                                       ? HasOnly(head, "last-modified", partial.validators.lastModified)
                                       : HasOnly(head, "etag", partial.validators.entityTag);
        Require(head.status == 206 && partial.bytes > 0 && missing > 0 && !partial.validators.IsEmpty());
        Require(isSameVersion);
        Require(head.Values("content-range").size() == 1 && head.Values("content-range").front().toLower() == range);
        Require(lengths.empty() || lengths.front().toULongLong() == missing);
        return;
    }
    case ResumeStep::Restart:
        Require(head.status == 200);
        Require(lengths.empty() || lengths.front().toULongLong() == partial.declaredBytes);
        return;
    case ResumeStep::HandOver:
        Require(missing == 0);
        return;
    case ResumeStep::AskWhole:
        Require(!RangeFields(partial).empty());
        return;
    case ResumeStep::Refuse:
        Require(decision.error.has_value());
        return;
    }
}

void CheckHead(PartialArchive const& partial, HttpHead const& head)
{
    Require(head.status >= 200 && head.status < 600);
    for (HeaderField const& field : head.fields)
    {
        Require(!field.name.isEmpty() && field.name == field.name.toLower());
        Require(!field.value.contains('\r') && !field.value.contains('\n') && !field.value.contains('\0'));
    }
    CheckDecision(partial, head, DecideResume(partial, head));
    Require(AreUsable(StrongValidators(head)));
    if (Result<BodyPlan> const plan = JudgeFraming(head))
    {
        Require(plan->length >= 0);
        Require(plan->kind != BodyPlan::Kind::Chunks || head.Values("content-length").empty());
    }
}

void CheckAnswer(PartialArchive const& partial, QByteArray const& answer)
{
    constexpr int MOST_BYTES = 1000;
    HttpHeadReader reader(MOST_BYTES);
    int position = 0;
    auto progress = HttpHeadReader::Progress::NeedsMore;
    while (progress == HttpHeadReader::Progress::NeedsMore && position < answer.size())
    {
        int const lineEnd = answer.indexOf('\n', position);
        QByteArray const line = answer.mid(position, lineEnd < 0 ? -1 : lineEnd + 1 - position);
        position += line.size();
        progress = reader.Take(line);
        Require(progress == HttpHeadReader::Progress::Failed || position <= MOST_BYTES);
    }
    Require(reader.HasHead() == (progress == HttpHeadReader::Progress::Complete));
    if (reader.HasHead())
    {
        CheckHead(partial, reader.Head());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    CheckRecord({reinterpret_cast<char const*>(data), size});
    if (size < 3)
    {
        return 0;
    }
    PartialArchive partial;
    partial.declaredBytes = data[1] + quint64{1};
    partial.bytes = std::min<quint64>(data[0], partial.declaredBytes);
    partial.validators.entityTag = (data[2] & 1) != 0 ? "\"v1\"" : "";
    partial.validators.lastModified = (data[2] & 2) != 0 ? "Fri, 20 Nov 2026 05:00:00 GMT" : "";
    CheckAnswer(partial, {reinterpret_cast<char const*>(data) + 3, static_cast<int>(size) - 3});
    return 0;
}
