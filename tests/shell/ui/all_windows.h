// SPDX-License-Identifier: MIT
// Every window of the program and of its companions, for what has to hold in all of them.
#pragma once

#include "tests/shell/ui/MainWindowStory.h"

namespace tolvo {

class AllWindows : public MainWindowStory {
  public:
    using Act = std::function<void(QWidget &window, const std::string &name)>;

  protected:
    /// Shows one window after the other, each in all its pages and states of note, inside one run of the
    /// program, and calls `act` for each; its name is for messages.
    void inEachWindow(const Act &act);

  private:
    void mainWindow(const Act &act);
    void ownDialogs(const Act &act);
    void searchWindow(const Act &act);
    void toolDialogs(const Act &act);
    void editors(const Act &act);
    void spellingWindows(const Act &act);
    void companions(const Act &act);
};

} // namespace tolvo
