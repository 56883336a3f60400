// SPDX-License-Identifier: MIT
#include "platform/gate_watch.h"

#include <QMetaObject>
#include <QObject>

#include <thread>
#include <windows.h>

namespace tolvo {

/// Shared with the thread that reads, which may outlive the watch: nothing ends its wait for a line.
struct GateWatch::Listener {
    QObject here; ///< in the thread of the event loop
    std::function<void()> onLetGo;
    std::function<void()> onEnd;
};

GateWatch::GateWatch(std::function<void()> onLetGo, std::function<void()> onEnd)
    : m_listener(std::make_shared<Listener>()) {
    m_listener->onLetGo = std::move(onLetGo);
    m_listener->onEnd = std::move(onEnd);
    std::thread([listener = m_listener] {
        const auto call = [&](std::function<void()> Listener::*what) {
            QMetaObject::invokeMethod(&listener->here, [listener, what] {
                if (const auto called = (*listener).*what)
                    called();
            });
        };
        char unit = 0;
        DWORD got = 0;
        while (ReadFile(GetStdHandle(STD_INPUT_HANDLE), &unit, 1, &got, nullptr) != 0 && got == 1)
            call(&Listener::onLetGo);
        call(&Listener::onEnd);
    }).detach();
}

GateWatch::~GateWatch() {
    m_listener->onLetGo = nullptr;
    m_listener->onEnd = nullptr;
}

} // namespace tolvo
