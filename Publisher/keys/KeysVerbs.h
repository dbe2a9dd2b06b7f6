// KeysVerbs.h: the verbs "keys", "sign" and "verify": the key with which archives are signed, and signatures.
// Thread: the main thread. Ownership: see Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddKeys(CLI::App& program, VerbContext& context);
/// "keys state" and "keys rotate".
void AddState(CLI::App& keys, VerbContext& context);
void AddRotate(CLI::App& keys, VerbContext& context);
void AddSign(CLI::App& program, VerbContext& context);
void AddVerify(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
