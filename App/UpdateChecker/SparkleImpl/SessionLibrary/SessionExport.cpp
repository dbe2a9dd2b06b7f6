#include "App/UpdateChecker/SparkleImpl/SessionLibrary/SessionExport_p.h"

#include "App/UpdateChecker/SparkleImpl/SessionLibrary/LinkedSession_p.h"

#include <Pelnar/HostRequests_p.h>

Pelnar::App::SessionExport const pelnarUpdateSession{PELNAR_SESSION_STAMP,
                                                     &Pelnar::App::LinkedSession,
                                                     &Pelnar::Engine::ConfirmStart,
                                                     &Pelnar::Engine::DaysOfUnchangedFeed,
                                                     &Pelnar::Engine::KeepRelaunchArguments,
                                                     &Pelnar::Engine::WishedDownloads,
                                                     &Pelnar::Engine::WishDownloads,
                                                     &Pelnar::Engine::ListedChannels,
                                                     &Pelnar::Engine::ListChannels};
