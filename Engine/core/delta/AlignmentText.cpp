#include "Engine/core/delta/AlignmentText.h"

#include "Engine/core/delta/AddressFields.h"

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t LABEL_SAMPLE_BYTES = 16;

/// A few bits that represent the bytes at \a offset.
std::uint64_t LabelAt(ByteBuffer const& bytes, std::uint64_t offset)
{
    std::uint64_t label = 0xCBF29CE484222325;
    std::uint64_t const end = std::min<std::uint64_t>(bytes.size(), offset + LABEL_SAMPLE_BYTES);
    for (std::uint64_t at = offset; at < end; ++at)
    {
        label = (label ^ bytes[static_cast<std::size_t>(at)]) * 0x100000001B3;
    }
    return label ^ label >> 29;
}

/// The field with only \a label, as far as it fits.
void StoreLabel(AddressField const& field, std::uint64_t label, std::uint8_t* bytes)
{
    std::uint64_t const few = label & 0xFFFFFF;
    AddressField place = field;
    bool const isRelative = field.form != FieldForm::Word64 && field.form != FieldForm::FromBase32;
    std::uint64_t const target = field.form == FieldForm::InPage12 ? few & 0xFFF : isRelative ? few << 2 : few;
    StoreField(place, 0, target, 0, bytes);
}

} // namespace

ByteBuffer AlignmentTextOf(Bytes program, ImageLayout const& layout)
{
    ByteBuffer text(program.begin(), program.end());
    ResidentPages pages;
    FieldScanner scanner(program, layout, pages);
    AddressField field;
    for (scanner.Start(0, program.size()); scanner.Next(field);)
    {
        StoreLabel(field, 0, text.data() + field.position);
    }
    // Targets are sampled with their own fields blanked, because fields depend on addresses.
    ByteBuffer const plain = text;
    for (scanner.Start(0, program.size()); scanner.Next(field);)
    {
        std::optional<std::uint64_t> const offset = OffsetOf(layout.spans, field.target);
        StoreLabel(field, offset ? LabelAt(plain, *offset) : 0, text.data() + field.position);
    }
    return text;
}

} // namespace Pelnar::Engine
