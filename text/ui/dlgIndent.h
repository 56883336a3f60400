// SPDX-License-Identifier: MIT
#pragma once

#include "text/ui/dialog_parts.h"

namespace tolvo {

class NumberBox;

/// "Indent": what is put before lines or taken off again.
class dlgIndent : public TextDialog {
    Q_OBJECT

  public:
    explicit dlgIndent(const IndentSettings &settings, QWidget *parent = nullptr);

    [[nodiscard]] IndentSettings settings() const;
    void setSettings(const IndentSettings &settings);

  public slots:
    /// Puts the text, unless it is blank, on top of the list of recent ones.
    void accept() override;

  protected:
    [[nodiscard]] bool usesText() const override { return m_option.choice() == IndentSettings::WithText; }

  private:
    [[nodiscard]] QStringList recentTexts() const;

    Options m_option;
    NumberBox *m_spaces;
    QComboBox &m_text;
};

} // namespace tolvo
