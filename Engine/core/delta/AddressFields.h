// AddressFields.h: finds the fields of a program that name other places of it: in code by the look of the instructions,
// in tables by their form.
// Thread: one at a time. Ownership: refers to the file's bytes and its layout, which outlive it. Any bytes are safe.
#pragma once

#include "Engine/core/delta/ImageLayout.h"

#include <cstddef>
#include <cstdint>

namespace Pelnar::Engine
{

enum class FieldForm : std::uint8_t
{
    Relative32,      ///< the distance of the target from the byte behind the field
    FromField32,     ///< and from the field itself
    BackFromField32, ///< the same, the other way
    FromBase32,      ///< and from the region's base
    Word64,          ///< the target
    Branch26,        ///< AArch64: B and BL
    Branch19,        ///< conditional branches, literals
    Page21,          ///< ADRP
    InPage12,        ///< what is added to an ADRP's page; by an addition, a load or a store
};

struct AddressField
{
    FieldForm form = FieldForm::Word64;
    std::size_t position = 0;
    std::uint64_t target = 0;
    std::uint64_t base = 0; ///< FromBase32
    std::size_t Width() const { return form == FieldForm::Word64 ? 8 : 4; }
};

class FieldScanner
{
public:
    FieldScanner(Bytes file, ImageLayout const& layout) : m_file(file), m_layout(layout) {}

    /// From here on Next() answers the fields that stand whole between \a begin and \a end, in ascending order, none
    /// in another.
    void Start(std::size_t begin, std::size_t end);
    [[nodiscard]] bool Next(AddressField& field);

private:
    bool EnterRegion();
    bool NextInRegion(AddressField& field);
    bool NextInX86Code(AddressField& field);
    bool NextInArm64Code(AddressField& field);
    bool NextWord(AddressField& field);
    bool NextOffset(AddressField& field);
    bool NextSymbol(AddressField& field);
    bool NextFrame(AddressField& field);
    bool IsArm64Field(AddressField& field) const;
    bool FindPagePartner(std::size_t position, std::uint32_t reg, std::uint64_t& target) const;
    bool FindPageBefore(std::size_t position, std::uint32_t reg, std::uint64_t& page) const;
    std::uint32_t Word32(std::size_t position) const;
    std::uint64_t Word64(std::size_t position) const;
    std::uint64_t Address(std::size_t position) const { return position + m_shift; }
    Bytes m_file;
    ImageLayout const& m_layout;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_region = 0;    ///< the one that is entered, or the next
    std::size_t m_position = 0;  ///< in the region that is entered
    std::size_t m_regionEnd = 0; ///< or the end of what is looked at
    std::uint64_t m_shift = 0;   ///< of the region's addresses from its positions
    bool m_isInRegion = false;
    std::size_t m_frame = 0; ///< where the code is named in the record whose shared part has been answered; 0 for none
};

/// Writes \a field as it is in a file where it stands at \a address and its target at \a target. \a bytes are the
/// field's own from the old file. \a base is where the region's base has gone.
void StoreField(AddressField const& field, std::uint64_t address, std::uint64_t target, std::uint64_t base,
                std::uint8_t* bytes);

} // namespace Pelnar::Engine
