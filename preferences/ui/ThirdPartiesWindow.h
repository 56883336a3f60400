// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace tolvo {

class Processes;

/// "Third-party software": the libraries that the program uses, with versions, licences and home pages.
class ThirdPartiesWindow final : public QDialog {
    Q_OBJECT
  public:
    /// Links are opened through `processes`.
    explicit ThirdPartiesWindow(Processes &processes, QWidget *parent = nullptr);
};

} // namespace tolvo
