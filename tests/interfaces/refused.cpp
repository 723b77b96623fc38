// Code that does not compile with a GenICam SDK and so must not compile with our headers either. Each case is
// compiled alone by refused.cmake; with none defined, the like of it that does compile is.

#include <GenApi/GenApi.h>

#include <functional>

struct Listener
{
    void changed(GenApi::INode*) {}
    void constChanged(GenApi::INode*) const {}
    int countChanged(GenApi::INode*) { return 0; }
};

#ifdef CASE_REOPENED_ALIAS
namespace GenApi {
struct INode;
}
#else
namespace GENAPI_NAMESPACE {
struct INode;
}
#endif

#ifndef CASE_FOREIGN_MACRO_NONE
#undef None
#endif
GenApi::EStandardNameSpace none()
{
#ifdef CASE_FOREIGN_MACRO_NONE
#define None 0L
#endif
    return GenApi::None;
}

#ifndef _WIN32
#ifndef CASE_IDENTIFIER_INTERFACE
#undef interface
#endif
int twice(int interface)
{
    return 2 * interface;
}
#endif

void registerCallbacks(GenApi::INode* node, Listener& listener, const Listener& constListener)
{
#ifdef CASE_CAPTURING_LAMBDA
    GenApi::Register(node, [&](GenApi::INode* changed) { listener.changed(changed); });
#else
    GenApi::Register(node, std::function<void(GenApi::INode*)>(
                               [&](GenApi::INode* changed) { listener.changed(changed); }));
#endif
#if defined(CASE_CONST_MEMBER)
    GenApi::Register(node, listener, &Listener::constChanged);
#elif defined(CASE_MEMBER_WITH_RESULT)
    GenApi::Register(node, listener, &Listener::countChanged);
#elif defined(CASE_CONST_CLIENT)
    GenApi::Register(node, constListener, &Listener::changed);
#else
    GenApi::Register(node, listener, &Listener::changed);
#endif
    (void)constListener;
}
