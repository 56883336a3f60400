// SPDX-License-Identifier: MIT
#pragma once

#include "text/ui/dialog_parts.h"

class QCheckBox;
class QComboBox;

namespace tolvo {

class NumberBox;
class cTextMethods;

/// "Number List Style": how lines are numbered, with a sample of it.
class dlgNumberStyle : public QDialog {
    Q_OBJECT

  public:
    dlgNumberStyle(const cTextMethods &engine, const NumberListSettings &settings, QWidget *parent = nullptr);

    [[nodiscard]] NumberListSettings settings() const;
    void setSettings(const NumberListSettings &settings);
    /// fontChanged: the sample shows the main window's font.
    void setSampleFont(const Font &font) { m_sample->setSampleFont(font); }

  private:
    void arrange();
    void styleChosen();
    void refreshSample();
    [[nodiscard]] QString sampleText() const;

    const cTextMethods &m_engine;
    QComboBox *m_style;
    NumberBox *m_start;
    QCheckBox *m_renumber;
    QComboBox *m_followChar;
    QLabel *m_followCharLabel;
    Options m_tab;
    NumberBox *m_spaces;
    SampleBox *m_sample;
};

} // namespace tolvo
