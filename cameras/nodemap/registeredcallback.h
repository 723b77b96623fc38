#pragma once

#include "genapiversion.h"

#include <atomic>
#include <memory>
#include <vector>

namespace ZetoNodeMap {

/// A client's callback object, owned: it ends with CNodeCallback::Destroy().
///
/// A thread that is delivering callbacks shares the ownership, so a callback that is deregistered meanwhile
/// by another thread lives until the delivery has passed it. It is not called any more, except that a call
/// which has begun runs to its end: a client detaches what the callback refers to first.
class RegisteredCallback
{
public:
    explicit RegisteredCallback(GenApi::CNodeCallback& callback);
    ~RegisteredCallback();
    RegisteredCallback(const RegisteredCallback&) = delete;
    RegisteredCallback& operator=(const RegisteredCallback&) = delete;

    GenApi::CallbackHandleType handle() const;
    void deactivate();
    void operator()(GenApi::ECallbackType phase) const;

private:
    GenApi::CNodeCallback& m_callback;
    std::atomic<bool> m_active{true};
};

using CallbackList = std::vector<std::shared_ptr<RegisteredCallback>>;

} // namespace ZetoNodeMap
