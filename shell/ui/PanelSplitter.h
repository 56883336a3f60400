// SPDX-License-Identifier: MIT
#pragma once

#include <QSplitter>

namespace tolvo {

/// Parts the panel of tools from the text. Its handle is a stop of the Tab key; Left and Right move it, Home
/// and End as far as it goes.
class PanelSplitter final : public QSplitter {
    Q_OBJECT

  public:
    explicit PanelSplitter(QWidget *parent = nullptr);

  protected:
    QSplitterHandle *createHandle() override;
};

} // namespace tolvo
