// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace tolvo {

/// One link in the accent of the palette, also of a palette that comes later, with a ring when it has the
/// focus. It is one stop of the Tab key; Enter and the space bar follow it.
class LinkLabel final : public QLabel {
    Q_OBJECT

  public:
    enum class Underline { Always, UnderPointer };

    /// `words` are its text and its accessible name; linkActivated() gives `address`.
    LinkLabel(const QString &words, const QString &address, Underline underline, QWidget *parent = nullptr);

  protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void write();

    QString m_words;
    QString m_address;
    Underline m_underline;
    bool m_hovered = false;
};

} // namespace tolvo
