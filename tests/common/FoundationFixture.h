// FoundationFixture.h: Objective-C actions for C++ tests of the bridge. Plain C++.
#pragma once

#include <QString>
#include <QUrl>

namespace Pelnar::Testing
{

QString ThroughFoundation(QString const& text);
QUrl ThroughFoundation(QUrl const& url);
/// Raises an NSException; a null \a reason is a nil one.
void Raise(QString const& reason);

} // namespace Pelnar::Testing
