// AutomaticDownloads.h: whether updates are downloaded without asking, for a check box in the preferences:
//
//     QCheckBox box(tr("Download updates automatically"));
//     box.setChecked(Pelnar::AutomaticDownloads() == Pelnar::AutomaticDownload::On);
//     QObject::connect(&box, &QCheckBox::toggled,
//                      [](bool isOn)
//                      {
//                          using Pelnar::AutomaticDownload;
//                          Pelnar::SetAutomaticDownloads(isOn ? AutomaticDownload::On : AutomaticDownload::Off);
//                      });
//
// Thread: the Qt main thread, at any time; it needs no check and waits for none. Ownership: none.
#pragma once

namespace Pelnar
{

enum class AutomaticDownload
{
    Off, ///< a check that the application starts asks before it downloads anything
    On,  ///< such a check downloads, and asks before it installs
};

/// What the person has chosen, in any process of the application; until then, what the bundle says
/// (SUAutomaticallyUpdate in its information file); without either, Off. Checks that a person starts always ask. Throws
/// nothing. It is read from the disk and may load the engine: ask when the box is shown, and not in a loop.
__attribute__((visibility("default"))) AutomaticDownload AutomaticDownloads();

/// The person's choice from now on, in this process and every other one of the application; it is on the disk when the
/// call returns. A check or a download that runs goes on as it began. When it cannot be saved, the log says so and it
/// holds until this process ends. Throws nothing.
__attribute__((visibility("default"))) void SetAutomaticDownloads(AutomaticDownload wish);

} // namespace Pelnar
