// ForgedProgram.h: small programs in the form of real ones. Tests choose where their functions and strings are.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <cstdint>
#include <vector>

namespace Pelnar::Testing
{

enum class Processor
{
    X86,
    Arm64,
};

/// The layout: what comes before and between the functions. The code itself stays the same.
struct ProgramShape
{
    Processor processor = Processor::X86;
    std::size_t functions = 200;
    std::size_t insertedAt = 0;      ///< there are more bytes before this function
    std::size_t insertedBytes = 0;   ///< a multiple of 4
    std::size_t stringsMoved = 0;    ///< bytes before all strings, a multiple of 8
    std::uint64_t loadedAt = 0x1000; ///< the address of the program in memory
};

/// An ELF file with code whose functions call each other and refer to strings, with tables of relocations, symbols,
/// jumps and call frames, and with the strings.
Engine::ByteBuffer ForgeProgram(ProgramShape const& shape);

} // namespace Pelnar::Testing
