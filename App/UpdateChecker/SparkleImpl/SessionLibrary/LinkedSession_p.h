// LinkedSession_p.h: the session that is linked into this library or program.
// Thread: the Qt main thread. Ownership: lives as long as the process.
#pragma once

namespace Pelnar::App
{

class ISession;

/// Creates no session yet: the first operation does.
ISession& LinkedSession();

} // namespace Pelnar::App
