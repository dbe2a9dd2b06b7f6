// HostOperations.cpp: is linked into every host framework and refers to each operation that a framework must define.
// The update checker calls some of them only at the first check. With this file the linker already names a missing one.
// Thread: never run.

#include "HostFramework/AlertBox.h"
#include "HostFramework/Application.h"
#include "HostFramework/NagScreenManager.h"
#include "HostFramework/OSVersion.h"
#include "HostFramework/SpontaneousDialog.h"
#include "HostFramework/VersionText.h"

namespace Pelnar
{

/// Deliberate: kept although no function calls it.
__attribute__((used)) void AskForEveryHostOperation()
{
    QString const text = Util::OSVersion();
    Core::Version const version = Util::VersionFromString(text, text);
    Util::AlertBox box(Util::AlertBox::Information, text,
                       Util::VersionToString(version, Util::VersionToStringDetail::PresentComponents, text),
                       QMessageBox::Ok, Util::SpontaneousDialog::findParent(), Qt::Dialog);
    box.Exec();
}

} // namespace Pelnar
