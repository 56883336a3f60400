// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace tolvo {

/// An editable list of remembered texts that knows where its caret was when it lost the focus.
class SearchListEdit final : public QComboBox {
    Q_OBJECT

  public:
    explicit SearchListEdit(const QString &name, QWidget *parent);

    /// Shows a list and a text.
    void show(const QStringList &entries, const QString &text);
    /// Takes the focus with caret and selection as they last were.
    void resume();
    /// Takes the focus with all of its text selected, for a new one to be typed over it.
    void begin();
    /// Puts a text in place of the selection where the caret last was.
    void insertText(const QString &text);

  signals:
    /// This is the list that the user was last in.
    void used();

  protected:
    void focusOutEvent(QFocusEvent *event) override;

  private:
    void remember();

    int m_selStart = 0;
    int m_selLength = 0;
};

} // namespace tolvo
