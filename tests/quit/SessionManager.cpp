// SessionManager.cpp: the session manager of a desktop, over XSMP, for the applications of one test.
// Prints its address for the environment variable SESSION_MANAGER in the first line, then what happens, a word a line:
// "saved" when an application has saved itself, "closed" when it has left. Takes the words "end" (the session ends:
// save yourselves), "cancel" (it does not end after all) and "die" (quit now) from its input, and ends with that.
// Usage: session_manager

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <poll.h>
#include <unistd.h>

// Exported by libICE for session managers, but in none of its headers.
extern "C" int _IceTransNoListen(char const* protocol);

namespace
{

std::vector<IceConn> connections;
std::vector<SmsConn> applications;

void Tell(char const* what)
{
    std::printf("%s\n", what);
    std::fflush(stdout);
}

/// Deliberate: everybody. The socket belongs to this user and exists during one test.
Bool Welcome(char*)
{
    return True;
}

Status Register(SmsConn application, SmPointer, char* previousId)
{
    std::free(previousId);
    char* const id = SmsGenerateClientID(application);
    SmsRegisterClientReply(application, id);
    std::free(id);
    // The protocol requires it: a new application saves itself once.
    SmsSaveYourself(application, SmSaveLocal, False, SmInteractStyleNone, False);
    return 1;
}

void Interact(SmsConn application, SmPointer, int)
{
    SmsInteract(application);
}

void InteractDone(SmsConn application, SmPointer, Bool cancels)
{
    if (cancels)
    {
        SmsShutdownCancelled(application);
    }
}

void SecondPhase(SmsConn application, SmPointer)
{
    SmsSaveYourselfPhase2(application);
}

void Saved(SmsConn application, SmPointer, Bool)
{
    SmsSaveComplete(application);
    Tell("saved");
}

void Leave(SmsConn application, SmPointer, int count, char** reasons)
{
    SmFreeReasons(count, reasons);
    applications.erase(std::remove(applications.begin(), applications.end(), application), applications.end());
    IceConn const connection = SmsGetIceConnection(application);
    SmsCleanUp(application);
    IceSetShutdownNegotiation(connection, False);
    IceCloseConnection(connection);
    Tell("closed");
}

Status Accept(SmsConn application, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**)
{
    applications.push_back(application);
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    callbacks->register_client.callback = &Register;
    callbacks->interact_request.callback = &Interact;
    callbacks->interact_done.callback = &InteractDone;
    callbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {};
    callbacks->save_yourself_phase2_request.callback = &SecondPhase;
    callbacks->save_yourself_done.callback = &Saved;
    callbacks->close_connection.callback = &Leave;
    callbacks->set_properties.callback = [](SmsConn, SmPointer, int count, SmProp** properties)
    {
        std::for_each(properties, properties + count, &SmFreeProperty);
        std::free(properties);
    };
    callbacks->delete_properties.callback = [](SmsConn, SmPointer, int count, char** names)
    {
        std::for_each(names, names + count, [](char* name) { std::free(name); });
        std::free(names);
    };
    callbacks->get_properties.callback = [](SmsConn asking, SmPointer) { SmsReturnProperties(asking, 0, nullptr); };
    return 1;
}

void Watch(IceConn connection, IcePointer, Bool isOpening, IcePointer*)
{
    if (isOpening)
    {
        connections.push_back(connection);
        return;
    }
    connections.erase(std::remove(connections.begin(), connections.end(), connection), connections.end());
}

void Obey(std::string const& word)
{
    for (SmsConn const application : std::vector<SmsConn>(applications))
    {
        if (word == "end")
        {
            SmsSaveYourself(application, SmSaveBoth, True, SmInteractStyleAny, False);
        }
        else if (word == "cancel")
        {
            SmsShutdownCancelled(application);
        }
        else if (word == "die")
        {
            SmsDie(application);
        }
    }
}

void TakeMessages(int descriptor)
{
    for (IceConn const connection : std::vector<IceConn>(connections))
    {
        if (IceConnectionNumber(connection) == descriptor &&
            IceProcessMessages(connection, nullptr, nullptr) == IceProcessMessagesIOError)
        {
            IceSetShutdownNegotiation(connection, False);
            IceCloseConnection(connection);
        }
    }
}

/// One turn; false at the end of the input.
bool Serve(std::vector<IceListenObj> const& listeners)
{
    std::vector<pollfd> waiting{{STDIN_FILENO, POLLIN, 0}};
    for (IceListenObj const listener : listeners)
    {
        waiting.push_back({IceGetListenConnectionNumber(listener), POLLIN, 0});
    }
    for (IceConn const connection : connections)
    {
        waiting.push_back({IceConnectionNumber(connection), POLLIN, 0});
    }
    if (::poll(waiting.data(), waiting.size(), -1) < 0)
    {
        return true;
    }
    if (waiting[0].revents != 0)
    {
        std::string word;
        if (!std::getline(std::cin, word))
        {
            return false;
        }
        Obey(word);
    }
    for (std::size_t i = 1; i < waiting.size(); ++i)
    {
        bool const isListener = i <= listeners.size();
        if (waiting[i].revents != 0 && isListener)
        {
            IceAcceptStatus status = IceAcceptSuccess;
            IceAcceptConnection(listeners[i - 1], &status);
        }
        else if (waiting[i].revents != 0)
        {
            TakeMessages(waiting[i].fd);
        }
    }
    return true;
}

} // namespace

int main()
{
    _IceTransNoListen("tcp");
    IceSetIOErrorHandler([](IceConn) {}); // the library's own handler would end this process
    IceAddConnectionWatch(&Watch, nullptr);
    char error[256] = {};
    int count = 0;
    IceListenObj* listeners = nullptr;
    if (!SmsInitialize("Pelnar", "1", &Accept, nullptr, &Welcome, sizeof error, error) ||
        !IceListenForConnections(&count, &listeners, sizeof error, error))
    {
        std::fprintf(stderr, "session_manager: %s\n", error);
        return EXIT_FAILURE;
    }
    for (int i = 0; i < count; ++i)
    {
        IceSetHostBasedAuthProc(listeners[i], &Welcome);
    }
    char* const address = IceComposeNetworkIdList(count, listeners);
    Tell(address);
    std::free(address);
    std::vector<IceListenObj> const all(listeners, listeners + count);
    while (Serve(all))
    {
    }
    IceFreeListenObjs(count, listeners); // removes their sockets from /tmp
    return EXIT_SUCCESS;
}
