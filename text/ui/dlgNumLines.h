// SPDX-License-Identifier: MIT
#pragma once

#include "text/ui/dialog_parts.h"

class QCheckBox;

namespace tolvo {

class NumberBox;
class cTextMethods;

/// "Line Numbering": how the lines of a listing are numbered, with a sample of it.
class dlgNumLines : public QDialog {
    Q_OBJECT

  public:
    dlgNumLines(const cTextMethods &engine, const LineNumberSettings &settings, QWidget *parent = nullptr);

    [[nodiscard]] LineNumberSettings settings() const;
    void setSettings(const LineNumberSettings &settings);
    /// Opens it modally; true on OK.
    bool ShowMe() { return exec() == QDialog::Accepted; }
    /// fontChanged: the sample shows the main window's font.
    void setSampleFont(const Font &font) { m_sample->setSampleFont(font); }

  private:
    void arrange();
    void refresh();

    const cTextMethods &m_engine;
    NumberBox *m_start;
    NumberBox *m_step;
    NumberBox *m_every;
    QCheckBox *m_ignoreBlanks;
    QCheckBox *m_renumber;
    QCheckBox *m_pad;
    Options m_range;
    SampleBox *m_sample;
};

} // namespace tolvo
