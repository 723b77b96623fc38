#include <GenICam.h>

#ifndef MADE_FOR_THE_TEST
#error "These are not the headers of the SDK"
#endif

/// Succeeds if both libraries are there: texts and exceptions from one, locks from the other.
int main()
{
    GenApi::CLock lock;
    try {
        const GenApi::AutoLock held(lock);
        throw ACCESS_EXCEPTION("refused");
    } catch (const GenICam::GenericException& error) {
        return GenICam::gcstring("refused") == error.GetDescription() ? 0 : 1;
    }
}
