// SPDX-License-Identifier: MIT
#pragma once

#include "text/ui/dialog_parts.h"

class QCheckBox;

namespace tolvo {

class MessageBoxes;
class NumberBox;

/// "Word Wrap": the page width, and how lines fill it.
class dlgWordWrap : public QDialog {
    Q_OBJECT

  public:
    dlgWordWrap(MessageBoxes &boxes, const WordWrapSettings &settings, QWidget *parent = nullptr);

    [[nodiscard]] WordWrapSettings settings() const;
    void setSettings(const WordWrapSettings &settings);

  public slots:
    /// Stays open, with a message, for a page width out of its limits.
    void accept() override;

  private:
    MessageBoxes &m_boxes;
    NumberBox *m_width;
    QCheckBox *m_justify;
    QCheckBox *m_hanging;
    Options m_tab;
};

} // namespace tolvo
