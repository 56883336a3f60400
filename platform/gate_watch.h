// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace tolvo {

/// The standard input of a companion that is held back (see processes.h). Calls come from the event loop;
/// needs the QCoreApplication.
class GateWatch {
  public:
    /// `onLetGo` is called when whoever started this program lets it go, `onEnd` when it should leave.
    GateWatch(std::function<void()> onLetGo, std::function<void()> onEnd);
    ~GateWatch();
    GateWatch(const GateWatch &) = delete;
    GateWatch &operator=(const GateWatch &) = delete;

  private:
    struct Listener;
    std::shared_ptr<Listener> m_listener;
};

} // namespace tolvo
