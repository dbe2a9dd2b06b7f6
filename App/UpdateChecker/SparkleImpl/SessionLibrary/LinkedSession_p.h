// LinkedSession_p.h: the session that this library or program is linked with.
// Thread: the Qt main thread. Ownership: lives as long as the process.
#pragma once

namespace Pelnar::App
{

class ISession;

/// Makes no session yet: the first operation does.
ISession& LinkedSession();

} // namespace Pelnar::App
