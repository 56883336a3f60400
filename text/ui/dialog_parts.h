// SPDX-License-Identifier: MIT
// What the dialogs of the text tools share.
#pragma once

#include "platform/font.h"
#include "text/tool_settings.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <type_traits>

namespace tolvo {

class MessageBoxes;

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

/// A dialog with a text of the user's own, in an editable list.
class TextDialog : public QDialog {
    Q_OBJECT

  public:
    /// From now on it collects the settings of an Action: OK refuses, with a message, a text that a settings
    /// string can't hold.
    void collectFor(MessageBoxes &boxes) { m_boxes = &boxes; }

  public slots:
    void accept() override;

  protected:
    using QDialog::QDialog;
    /// Makes the list when its turn comes: the TAB key goes through the controls in the order of their
    /// making.
    QComboBox &makeText(const QString &listName);
    /// Whether the tool uses the text as things stand.
    [[nodiscard]] virtual bool usesText() const { return true; }

  private:
    QComboBox *m_text = nullptr;
    MessageBoxes *m_boxes = nullptr;
};

/// A label in front of a control, which it names for those who don't see it.
[[nodiscard]] QLabel *labelFor(QWidget *control, const QString &caption);

/// Gives a dialog its name, caption, contents, and the buttons OK (the default one) and Cancel below them.
void finishDialog(QDialog &dialog, const QString &name, const QString &caption, QLayout *contents);

/// Edits the settings string of an Action with the dialog of its tool, which has been made from the values
/// last used: they show where the string has no key. False on Cancel; the string then stays as it came.
template <class Dialog>
bool getSettings(Dialog &dialog, QString &details, MessageBoxes &boxes) {
    if constexpr (std::is_base_of_v<TextDialog, Dialog>)
        dialog.collectFor(boxes);
    auto settings = dialog.settings();
    applySettings(settings, CParams(details));
    dialog.setSettings(settings);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    details = settingsString(dialog.settings());
    return true;
}

} // namespace tolvo
