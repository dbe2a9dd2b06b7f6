// NoSession.cpp: a library of the session's name that offers no session.

extern "C" __attribute__((visibility("default"))) int somethingElse();
int somethingElse()
{
    return 0;
}
