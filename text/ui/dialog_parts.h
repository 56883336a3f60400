// SPDX-License-Identifier: MIT
// What the dialogs of the text tools share.
#pragma once

#include "platform/font.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>

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

/// A group of option buttons, named NAME_0, NAME_1 and so on, which are their ids too. The first is chosen.
[[nodiscard]] QButtonGroup *makeOptions(const QString &name, const QStringList &captions, QWidget *parent);

/// The same, with a button for each value of `Choice`, in the order of the captions.
template <class Choice>
class Options {
  public:
    Options(const QString &name, const QStringList &captions, QWidget *parent)
        : m_group(makeOptions(name, captions, parent)) {}

    [[nodiscard]] QAbstractButton *button(Choice choice) const {
        return m_group->button(static_cast<int>(choice));
    }
    [[nodiscard]] Choice choice() const { return static_cast<Choice>(m_group->checkedId()); }
    void choose(Choice choice) { button(choice)->setChecked(true); }
    void setEnabled(bool enabled) {
        for (QAbstractButton *button : m_group->buttons())
            button->setEnabled(enabled);
    }
    [[nodiscard]] QButtonGroup *group() const { return m_group; }

  private:
    QButtonGroup *m_group;
};

/// What stands between a mark and its text.
enum class Filler { Tab, Blanks };

/// A label in front of a control, which it names for those who don't see it.
[[nodiscard]] QLabel *labelFor(QWidget *control, const QString &caption);

/// Gives a dialog its name, caption, contents, and the buttons OK (the default one) and Cancel below them.
void finishDialog(QDialog &dialog, const QString &name, const QString &caption, QLayout *contents);

} // namespace tolvo
