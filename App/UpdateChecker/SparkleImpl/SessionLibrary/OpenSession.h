// OpenSession.h: gives a back end the session.
// Thread: the Qt main thread. OpenLinkedSession.cpp implements it for a linked session, OpenLoadedSession.cpp for a
// session in its own library.
#pragma once

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Pelnar::App
{

class ISession;

/// Calls \a use once with the session: inside this call if the session is available, otherwise later from the event
/// loop, and then only if \a context lives. If the session cannot be loaded, it is null and the log says why.
void OpenSession(QObject& context, std::function<void(ISession*)> const& use);

} // namespace Pelnar::App
