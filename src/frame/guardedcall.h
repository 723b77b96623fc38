#pragma once

/// Does \a work and returns its result, or null when anything is thrown. GenICam's exceptions are no
/// std::exception, and a host that is not written in C++ cannot catch any.
template <typename Work>
auto guardedCall(const Work& work) noexcept
{
    using Result = decltype(work());
    try {
        return work();
    } catch (...) {
        return Result();
    }
}
