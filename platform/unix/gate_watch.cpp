// SPDX-License-Identifier: MIT
#include "platform/gate_watch.h"

#include <QSocketNotifier>

#include <unistd.h>

namespace tolvo {

struct GateWatch::Listener {
    QSocketNotifier readable{STDIN_FILENO, QSocketNotifier::Read};
};

GateWatch::GateWatch(std::function<void()> onLetGo, std::function<void()> onEnd)
    : m_listener(std::make_shared<Listener>()) {
    QSocketNotifier *readable = &m_listener->readable;
    QObject::connect(readable, &QSocketNotifier::activated, readable,
                     [readable, onLetGo = std::move(onLetGo), onEnd = std::move(onEnd)] {
                         char unit = 0;
                         if (read(STDIN_FILENO, &unit, 1) > 0) {
                             onLetGo();
                         } else {
                             readable->setEnabled(false);
                             onEnd();
                         }
                     });
}

GateWatch::~GateWatch() = default;

} // namespace tolvo
