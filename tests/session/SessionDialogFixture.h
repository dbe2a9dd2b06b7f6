// SessionDialogFixture.h: opens the session's two dialogs and answers them.
#pragma once

#include "tests/session/SessionFixture.h"
#include "tests/support/DialogDriver.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QTranslator>

namespace Pelnar::Testing
{

using Calls = std::vector<std::pair<bool, bool>>;

inline QString const READY = QStringLiteral("SparkleUpdater_updateIsReadyToInstallDialog");
inline QString const FAILED = QStringLiteral("SparkleUpdater_updateErrorDialog");
inline QString const SKIPPED_KEY = QStringLiteral("SUSkippedVersion");

/// Saves a picture of \a box in the folder that PELNAR_PICTURES names, if it is set.
inline void Picture(QWidget* box, QString const& name)
{
    QString const folder = qEnvironmentVariable("PELNAR_PICTURES");
    if (!folder.isEmpty())
    {
        EXPECT_TRUE(box->grab().save(QDir(folder).filePath(name + QStringLiteral(".png"))));
    }
}

class SessionDialog : public SessionTest
{
protected:
    /// Offers version 6.1.2. \a act answers the dialog.
    void OfferAnd(std::function<void(QMessageBox*)> act)
    {
        LendWithRemote(State::SILENT_DOWNLOADING, Version(6, 1, 2));
        DialogDriver driver(READY,
                            [act](QWidget* widget)
                            {
                                auto* const box = qobject_cast<QMessageBox*>(widget);
                                ASSERT_TRUE(box);
                                act(box);
                            });
        Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1.2")), m_invocation);
        EXPECT_FALSE(IsDialogClosable()) << "the function for closing went with the dialog";
    }
    void OfferAndClick(char const* button)
    {
        OfferAnd([button](QMessageBox* box) { ClickButton(box, QString::fromLatin1(button)); });
    }
    void FailAnd(std::function<void(QMessageBox*)> act)
    {
        LendIn(State::SILENT_INSTALLING);
        DialogDriver driver(FAILED, [act](QWidget* widget) { act(qobject_cast<QMessageBox*>(widget)); });
        Callbacks::DidAbort({QStringLiteral("D"), 4005, QStringLiteral("The <b>disk</b> is full & \u00e9.")});
        EXPECT_FALSE(IsDialogClosable());
        EXPECT_EQ(GetFields().state, State::WAITING);
    }
    void ExpectRemindedLater()
    {
        EXPECT_EQ(GetFields().state, State::SILENT_ABORTING);
        EXPECT_EQ(m_invocation.Calls(), (Calls{{false, false}}));
        EXPECT_EQ(UserDefault(SKIPPED_KEY), std::nullopt);
    }

    ScriptedInvocation m_invocation{true, false};
};

} // namespace Pelnar::Testing
