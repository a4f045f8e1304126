#pragma once

#include "platform/handlers.h"

#include <functional>
#include <utility>

namespace qinghe {

/// The place on a control to which a handler is bound: `Command6->Click = [this] { save(); };`
template<class... Args>
class Event {
public:
    Event& operator=(std::function<void(Args...)> handler) {
        m_handler = std::move(handler);
        return *this;
    }
    explicit operator bool() const { return static_cast<bool>(m_handler); }

    /// From a handler: a plain call, whose run-time errors travel on to the caller.
    void raise(Args... args) const {
        if (m_handler)
            m_handler(args...);
    }
    /// From Qt: behind the guard that no exception passes.
    void fromQt(Args... args) const {
        if (m_handler)
            handlers::enter([&] { m_handler(args...); });
    }

private:
    std::function<void(Args...)> m_handler;
};

} // namespace qinghe
