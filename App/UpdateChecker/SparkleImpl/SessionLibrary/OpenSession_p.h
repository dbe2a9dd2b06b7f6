// OpenSession_p.h: how a back end gets the session.
// Thread: the Qt main thread. Ownership: none. Where the session is linked, OpenLinkedSession.cpp answers; where it
// stands in a library of its own, OpenLoadedSession.cpp.
#pragma once

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Pelnar::App
{

class ISession;

/// Calls \a use once with the session: inside this call when the session is there, otherwise later from the event loop,
/// and then only if \a context lives. A session that cannot be loaded is null, and the log says why.
void OpenSession(QObject& context, std::function<void(ISession*)> const& use);

} // namespace Pelnar::App
