#pragma once

#include <GenApi/INode.h>

namespace GENAPI_NAMESPACE {

/// When a callback is called: while the node map's lock is held, or after all of those when it is free again.
typedef enum _ECallbackType
{
    cbPostInsideLock = 1,
    cbPostOutsideLock = 2
} ECallbackType;

/// What a node calls when it may have changed, on the thread that changed it. Owned by the node from its
/// registration on. It must not throw, and one for inside the lock must not wait for another thread.
class GENAPI_DECL_ABSTRACT CNodeCallback
{
public:
    CNodeCallback(INode* pNode, ECallbackType CallbackType)
        : m_pNode(pNode)
        , m_CallbackType(CallbackType)
    {
    }
    virtual ~CNodeCallback() = default;

    /// Called in both phases with the type of the phase: compare it with the own one.
    virtual void operator()(ECallbackType CallbackType) const = 0;

    /// Ends the object. To be called by its owner only.
    virtual void Destroy() = 0;

    INode* GetNode() { return m_pNode; }

protected:
    INode* m_pNode;
    ECallbackType m_CallbackType;
};

/// Calls something that converts to true and takes an <tt>INode*</tt>: a function, a std::function, a lambda
/// without captures. It keeps a copy of it.
template <class Function>
class Function_NodeCallback : public CNodeCallback
{
public:
    Function_NodeCallback(INode* pNode, const Function& function, ECallbackType CallbackType)
        : CNodeCallback(pNode, CallbackType)
        , m_function(function)
    {
    }

    void operator()(ECallbackType CallbackType) const override
    {
        if (m_function && CallbackType == m_CallbackType)
            m_function(m_pNode);
    }

    void Destroy() override { delete this; }

private:
    Function m_function;
};

/// Calls a member function of an object, which must stay alive until the callback is deregistered.
template <class Client, class Member>
class Member_NodeCallback : public CNodeCallback
{
public:
    typedef void (Client::*PMEMBERFUNC)(INode*);

    Member_NodeCallback(INode* pNode, Client& client, Member member, ECallbackType CallbackType)
        : CNodeCallback(pNode, CallbackType)
        , m_client(client)
        , m_member(member)
    {
    }

    void operator()(ECallbackType CallbackType) const override
    {
        if (m_member && CallbackType == m_CallbackType)
            (m_client.*m_member)(m_pNode);
    }

    void Destroy() override { delete this; }

private:
    Client& m_client;
    PMEMBERFUNC m_member;
};

/// A callback object that calls \a function. Owned by the caller until it is registered.
template <class Function>
inline CNodeCallback* make_NodeCallback(INode* pNode, Function function, ECallbackType CallbackType)
{
    return new Function_NodeCallback<Function>(pNode, function, CallbackType);
}

/// A callback object that calls \a member of \a client. Owned by the caller until it is registered.
template <class Client, class Member>
inline CNodeCallback* make_NodeCallback(INode* pNode, Client& client, Member member,
                                        ECallbackType CallbackType)
{
    return new Member_NodeCallback<Client, Member>(pNode, client, member, CallbackType);
}

/// Has \a function called when \a pNode may have changed. \return the handle to deregister it with.
template <class Function>
inline intptr_t Register(INode* pNode, Function function, ECallbackType CallbackType = cbPostInsideLock)
{
    return pNode->RegisterCallback(make_NodeCallback(pNode, function, CallbackType));
}

/// Has \a member of \a client called when \a pNode may have changed. \return the handle to deregister it
/// with.
template <class Client, class Member>
inline intptr_t Register(INode* pNode, Client& client, Member member,
                         ECallbackType CallbackType = cbPostInsideLock)
{
    return pNode->RegisterCallback(make_NodeCallback(pNode, client, member, CallbackType));
}

/// Removes and destroys a registered callback. The handle must be a valid one; where that is not certain use
/// INode::DeregisterCallback().
GENAPI_DECL void Deregister(CallbackHandleType pCallbackInfo);

} // namespace GENAPI_NAMESPACE
