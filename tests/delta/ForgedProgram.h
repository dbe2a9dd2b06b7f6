// ForgedProgram.h: small programs in the form of real ones, whose functions and strings can be put where one likes.
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

/// What stands before and between the functions; the code itself stays the same.
struct ProgramShape
{
    Processor processor = Processor::X86;
    std::size_t functions = 200;
    std::size_t insertedAt = 0;      ///< the function before which there are more bytes
    std::size_t insertedBytes = 0;   ///< a multiple of 4
    std::size_t stringsMoved = 0;    ///< bytes before all strings, a multiple of 8
    std::uint64_t loadedAt = 0x1000; ///< where the program stands in memory
};

/// An ELF file: code whose functions call one another and name strings, tables of relocations, symbols, jumps and call
/// frames, and the strings.
Engine::ByteBuffer ForgeProgram(ProgramShape const& shape);

} // namespace Pelnar::Testing
