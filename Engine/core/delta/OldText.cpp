#include "Engine/core/delta/OldText.h"

#include <algorithm>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint64_t LEAST_PLAIN_BYTES = 1024;

/// True if no two \a spans share bytes of the file.
bool AreSeparate(std::vector<ImageSpan> const& spans)
{
    std::vector<ImageSpan> sorted = spans;
    std::sort(sorted.begin(), sorted.end(), [](ImageSpan a, ImageSpan b) { return a.offset < b.offset; });
    return std::adjacent_find(sorted.begin(), sorted.end(),
                              [](ImageSpan a, ImageSpan b)
                              { return std::uint64_t(a.offset) + a.size > b.offset; }) == sorted.end();
}

} // namespace

PlainText::PlainText(std::vector<Bytes> files, ResidentPages pages)
    : m_files(std::move(files)), m_pages(std::move(pages))
{
    std::uint64_t end = 0;
    for (Bytes const file : m_files)
    {
        end += file.size();
        m_ends.push_back(end);
    }
}

void PlainText::Start(std::uint64_t position, std::uint64_t, std::uint64_t size)
{
    m_position = position;
    m_left = size;
}

Bytes PlainText::Next(std::uint8_t*, std::size_t)
{
    if (m_left == 0)
    {
        return {};
    }
    auto const end = std::upper_bound(m_ends.begin(), m_ends.end(), m_position);
    Bytes const file = m_files[static_cast<std::size_t>(end - m_ends.begin())];
    std::uint64_t const offset = m_position - (*end - file.size());
    auto const size = static_cast<std::size_t>(std::min<std::uint64_t>(m_left, RESIDENT_PART_BYTES));
    Bytes const piece = file.substr(static_cast<std::size_t>(offset), size);
    m_pages.Touch(static_cast<std::size_t>(end - m_ends.begin()), static_cast<std::size_t>(offset), piece.size());
    m_position += piece.size();
    m_left -= piece.size();
    return piece;
}

ProgramText::ProgramText(Bytes program, ImageLayout layout, std::vector<ImageSpan> newSpans,
                         std::vector<PatchStep> const& steps, ResidentPages pages)
    : m_program(program)
    , m_pages(std::move(pages))
    , m_newSpans(std::move(newSpans))
    , m_layout(std::move(layout))
    , m_map(m_layout, m_newSpans, steps)
    , m_isUnmoved(m_map.IsUnchanged() && m_newSpans == m_layout.spans)
    , m_areSpansSeparate(AreSeparate(m_newSpans))
{
}

void ProgramText::Start(std::uint64_t position, std::uint64_t newPosition, std::uint64_t size)
{
    m_position = position;
    m_left = size;
    m_shift = newPosition - position;
    m_hasField = false;
    if (m_isUnmoved && m_shift == 0)
    {
        // No address of the run changes: nothing in the program has moved, and the run keeps its place.
        return;
    }
    if (!m_scanner)
    {
        ReadImageRegions(m_program, m_layout, m_pages);
        m_scanner.emplace(m_program, m_layout, m_pages);
    }
    auto const begin = static_cast<std::size_t>(position);
    auto const end = static_cast<std::size_t>(position + size);
    m_areSpansSeparate ? m_scanner->StartMoving(begin, end, {&m_map, &m_newSpans, m_shift})
                       : m_scanner->Start(begin, end);
    m_hasField = m_scanner->Next(m_field);
}

Bytes ProgramText::Next(std::uint8_t* target, std::size_t room)
{
    // Bytes far before the next field need no copy.
    std::uint64_t const plain = m_hasField ? m_field.position - m_position : m_left;
    if (plain == m_left || plain >= LEAST_PLAIN_BYTES)
    {
        return Take(std::min<std::uint64_t>(plain, RESIDENT_PART_BYTES));
    }
    if (plain == 0 && m_field.Width() > room)
    {
        room = m_field.Width();
        target = m_alone.data();
    }
    Bytes const old = Take(std::min<std::uint64_t>(m_left, room));
    std::copy_n(old.data(), old.size(), target);
    std::uint64_t const begin = m_position - old.size();
    while (m_hasField && m_field.position < m_position)
    {
        if (m_field.position + m_field.Width() > m_position)
        {
            // The field is the next piece's.
            m_left += m_position - m_field.position;
            m_position = m_field.position;
            break;
        }
        Change(m_field, target + (m_field.position - begin));
        m_hasField = m_scanner->Next(m_field);
    }
    return {target, static_cast<std::size_t>(m_position - begin)};
}

/// Moves to behind the next \a size bytes, and returns them.
Bytes ProgramText::Take(std::uint64_t size)
{
    Bytes const bytes = m_program.substr(static_cast<std::size_t>(m_position), static_cast<std::size_t>(size));
    m_pages.Touch(0, static_cast<std::size_t>(m_position), bytes.size());
    m_position += size;
    m_left -= size;
    return bytes;
}

void ProgramText::Change(AddressField const& field, std::uint8_t* bytes)
{
    std::uint64_t const position = field.position + m_shift;
    if (position < m_newSpan.offset || position - m_newSpan.offset >= m_newSpan.size)
    {
        auto const holdsField = [position](ImageSpan const& span)
        { return position >= span.offset && position - span.offset < span.size; };
        auto const found = std::find_if(m_newSpans.begin(), m_newSpans.end(), holdsField);
        // A place that is not loaded has no address: its position in the file counts instead.
        m_newSpan = found == m_newSpans.end() ? ImageSpan{static_cast<std::uint32_t>(position), 1, position} : *found;
    }
    std::uint64_t const address = m_newSpan.address + (position - m_newSpan.offset);
    std::uint64_t const base = field.form == FieldForm::FromBase32 ? m_map.Find(field.base) : 0;
    StoreField(field, address, m_map.Find(field.target), base, bytes);
}

} // namespace Pelnar::Engine
