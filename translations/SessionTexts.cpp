// SessionTexts.cpp: the texts of the update dialogs that the session translates through a function of its own, where
// lupdate does not see them. Read by lupdate only, never compiled.

QT_TRANSLATE_NOOP("SparkleUpdater", "A part of this application that updates need is missing or damaged. Reinstall the "
                                    "application.")
QT_TRANSLATE_NOOP("SparkleUpdater", "Update is already running. Please try later.")
QT_TRANSLATE_NOOP("SparkleUpdater", "A new version of %1 %2 is ready to install")
QT_TRANSLATE_NOOP("SparkleUpdater", "The %1 %2 update has been downloaded and is waiting for your approval. Would you "
                                    "like to install the update and relaunch %1 now?")
QT_TRANSLATE_NOOP("SparkleUpdater", "Skip This Version")
QT_TRANSLATE_NOOP("SparkleUpdater", "Remind Me Later")
QT_TRANSLATE_NOOP("SparkleUpdater", "Install and Relaunch")
