// ResumeFuzz.cpp: any bytes as the record of a partial archive, and as the answer to a request for the rest of one:
// what is appended has the validator and the range that were asked for, and no more bytes are taken than are missing.
// Input: how much there is, how much there is to be, which validators are known (a byte each), then the answer.

#include "Engine/core/download/PartialRecord.h"
#include "Engine/core/download/ResumeDecision.h"

#include <algorithm>
#include <array>
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
    // What may be asked for never leads beyond the budget.
    DownloadSpending const budget = BudgetOf(record->declaredBytes);
    if (!JudgeSpending(record->spent, record->declaredBytes, record->declaredBytes))
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

void CheckDecision(PartialArchive const& partial, HttpHead const& head, ResumeDecision const& decision)
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

/// Takes what the decision says, into very little room.
class Sink : public IBodySink
{
public:
    explicit Sink(PartialArchive const& partial) : m_partial(partial) {}

    std::optional<qint64> BeginBody(HttpHead const& head) override
    {
        ResumeDecision const decision = DecideResume(m_partial, head);
        CheckDecision(m_partial, head, decision);
        Require(AreUsable(StrongValidators(head)));
        if (decision.step == ResumeStep::Restart)
        {
            m_partial.bytes = 0;
        }
        else if (decision.step != ResumeStep::Append)
        {
            return std::nullopt;
        }
        return static_cast<qint64>(m_partial.declaredBytes - m_partial.bytes);
    }

    BodyRoom Room() override { return {m_room.data(), static_cast<qint64>(m_room.size())}; }

    void Took(qint64 bytes) override
    {
        Require(bytes > 0 && bytes <= static_cast<qint64>(m_room.size()));
        m_partial.bytes += static_cast<quint64>(bytes);
        Require(m_partial.bytes <= m_partial.declaredBytes);
    }

    void Rest() override {}

private:
    PartialArchive m_partial;
    std::array<char, 7> m_room{};
};

void CheckAnswer(PartialArchive const& partial, QByteArray const& answer)
{
    Sink sink(partial);
    HttpAnswerReader reader{FetchLimits(), &sink};
    int position = 0;
    HttpAnswerReader::Progress progress = HttpAnswerReader::Progress::NeedsMore;
    while (progress == HttpAnswerReader::Progress::NeedsMore && position < answer.size())
    {
        BodyRoom const room = sink.Room();
        int const count = static_cast<int>(std::min<qint64>(room.size, answer.size() - position));
        qint64 const direct = std::min<qint64>(reader.DirectBytes(), count);
        if (direct > 0)
        {
            std::copy_n(answer.constData() + position, direct, room.data);
            position += static_cast<int>(direct);
            progress = reader.TookDirectly(direct);
            continue;
        }
        progress = reader.Feed(answer.mid(position, count));
        position += count;
    }
    if (progress == HttpAnswerReader::Progress::NeedsMore)
    {
        progress = reader.End();
    }
    Require(progress != HttpAnswerReader::Progress::NeedsMore);
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
