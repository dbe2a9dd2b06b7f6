// ProgressWindow.h: shows that an update is downloaded, then verified and unpacked, with a button to cancel.
// Thread: the Qt main thread. Ownership: the maker's.
#pragma once

#include "Engine/ui/EngineWindow.h"

namespace Pelnar::Engine
{

class ProgressWindow : public EngineWindow
{
    Q_OBJECT

public:
    ProgressWindow(NamedVersion const& update, std::function<void()> const& onCancelled);

    void SetProgress(UpdateProgress const& progress);

private:
    QString m_downloadingText;
    QString m_preparingText;
    QLabel* m_heading;
    QProgressBar* m_bar;
    QLabel* m_amount;
    QLabel* m_speed;
};

} // namespace Pelnar::Engine
