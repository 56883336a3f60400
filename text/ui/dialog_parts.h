// SPDX-License-Identifier: MIT
// What the dialogs of the text tools share.
#pragma once

#include "platform/font.h"

#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace tolvo {

/// The text that shows what a tool will do with the settings as they stand. It can be read and copied, and is
/// skipped by the TAB key.
class SampleBox : public QPlainTextEdit {
  public:
    /// `rows` is how many lines it shows.
    SampleBox(int rows, QWidget *parent);
    void setSample(const QString &text) { setPlainText(text); }
    void setSampleFont(const Font &font);

  private:
    void fitRows();

    int m_rows;
};

/// Option buttons of one group, named optName_0, optName_1 and so on.
class Options {
  public:
    Options(const QString &name, const QStringList &captions, QWidget *parent);

    [[nodiscard]] QRadioButton *button(int index) const;
    [[nodiscard]] int choice() const { return m_group->checkedId(); }
    void choose(int index) { button(index)->setChecked(true); }
    void setEnabled(bool enabled);
    [[nodiscard]] QButtonGroup *group() const { return m_group; }

  private:
    QButtonGroup *m_group;
};

/// A label in front of a control, which it names for those who don't see it.
[[nodiscard]] QLabel *labelFor(QWidget *control, const QString &caption);

/// Gives a dialog its name, caption, contents, and the buttons OK (the default one) and Cancel below them.
void finishDialog(QDialog &dialog, const QString &name, const QString &caption, QLayout *contents);

} // namespace tolvo
