#pragma once

#include <mutex>
#include <set>
#include <string>

namespace ZetoCameraLibrary {

/// A text that may change while pointers to its earlier forms stay valid. It keeps each form once. Thread:
/// any.
class StableText
{
public:
    StableText(const std::string& text = {}) { set(text); }

    void set(const std::string& text)
    {
        const std::lock_guard guard(m_mutex);
        m_current = m_forms.insert(text).first->c_str();
    }

    const char* get() const
    {
        const std::lock_guard guard(m_mutex);
        return m_current;
    }

private:
    mutable std::mutex m_mutex;
    std::set<std::string> m_forms;
    const char* m_current = "";
};

} // namespace ZetoCameraLibrary
