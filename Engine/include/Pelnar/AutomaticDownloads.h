// AutomaticDownloads.h: the setting "download updates automatically", for a check box in the preferences.
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
// Thread: the Qt main thread, at any time. Neither function needs a check or waits for one.
#pragma once

namespace Pelnar
{

enum class AutomaticDownload
{
    Off, ///< a check that the application starts asks before it downloads
    On,  ///< such a check downloads without a question, and asks before it installs
};

/// Returns the person's choice, made in any process of the application. Without a choice it returns the bundle's value
/// (SUAutomaticallyUpdate in the information file), and without that Off. Checks that a person starts always ask. It
/// reads the disk and may load the engine: call it when the box is shown, not in a loop. Throws nothing.
__attribute__((visibility("default"))) AutomaticDownload AutomaticDownloads();

/// Stores the person's choice for this process and every other process of the application. The choice is on the disk
/// when the call returns. A running check or download continues unchanged. If the choice cannot be saved, the log says
/// so, and the choice holds until this process ends. Throws nothing.
__attribute__((visibility("default"))) void SetAutomaticDownloads(AutomaticDownload wish);

} // namespace Pelnar
