// DialogGallery.h: shows every dialog of the update checker and the nag screen, one after the other.
// Thread: the Qt main thread; each dialog runs a nested event loop until it is closed.
#pragma once

#include "HostFramework/Reference/ReferenceApplication.h"

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Pelnar::Demo
{

/// REQUIRES: \a application has its services, no check runs, and \a parent is shown. Returns with the nag screen open.
void ShowEveryDialog(App::ReferenceApplication const& application, QWidget* parent);

} // namespace Pelnar::Demo
