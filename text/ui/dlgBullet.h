// SPDX-License-Identifier: MIT
#pragma once

#include "text/ui/dialog_parts.h"

namespace tolvo {

class NumberBox;
class cTextMethods;

/// "Bullet List Style": which bullet is put before lines, with a sample of it.
class dlgBullet : public TextDialog {
    Q_OBJECT

  public:
    dlgBullet(const cTextMethods &engine, const BulletSettings &settings, QWidget *parent = nullptr);

    [[nodiscard]] BulletSettings settings() const;
    void setSettings(const BulletSettings &settings);
    /// fontChanged: the sample shows the main window's font.
    void setSampleFont(const Font &font) { m_sample->setSampleFont(font); }

  private:
    void refreshSample();

    const cTextMethods &m_engine;
    QComboBox &m_bullet;
    Options m_tab;
    NumberBox *m_spaces;
    SampleBox *m_sample;
};

} // namespace tolvo
