// SPDX-License-Identifier: MIT
// Shows a marked text, read-only, and keeps up with its changes.
#pragma once

#include "spelling/marked_text.h"

#include <QByteArray>
#include <QPlainTextEdit>
#include <QString>

namespace tolvo {

class MarkedTextView : public QPlainTextEdit {
  public:
    explicit MarkedTextView(QWidget *parent = nullptr);

    /// Shows the text; only the stretch that differs from what is shown already is touched. The units from
    /// `errorStart` on are brought to the middle of the view.
    void showText(const MarkedText &text, qsizetype errorStart);

  protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    void write(const MarkedText &text, qsizetype start, qsizetype removed, qsizetype added);
    void paintMarks(const MarkedText &text, qsizetype start, qsizetype length);
    [[nodiscard]] QTextCharFormat format(Mark mark) const;
    void scrollToError();

    MarkedText m_shown;
    qsizetype m_errorStart = 0;
};

} // namespace tolvo
