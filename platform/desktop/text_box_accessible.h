// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class QPlainTextEdit;
class QTextCursor;

namespace tolvo {

/// The text box as assistive technology sees it. Positions are those of the document: UTF-16 code units from
/// 0, a line end is one. Places are those of the screen.
///
/// The toolkit's own interface gives the first line's height for the characters of every line, which puts
/// magnifiers and reading rulers in the wrong place.
class TextBoxAccessible final : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public QAccessibleEditableTextInterface {
  public:
    explicit TextBoxAccessible(QPlainTextEdit &box);

    // QAccessibleInterface
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    // QAccessibleTextInterface; there is one selection, with index 0
    void selection(int index, int *start, int *end) const override;
    [[nodiscard]] int selectionCount() const override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    [[nodiscard]] int cursorPosition() const override;
    void setCursorPosition(int position) override;
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int *start,
                                           int *end) const override;
    [[nodiscard]] QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int *start,
                                          int *end) const override;
    [[nodiscard]] QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int *start,
                                       int *end) const override;
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    [[nodiscard]] QString attributes(int offset, int *start, int *end) const override;

    // QAccessibleEditableTextInterface
    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString &text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString &text) override;

  private:
    /// A cursor that selects from `start` to `end`, both brought into the document.
    [[nodiscard]] QTextCursor cursorOver(int start, int end) const;
    /// The line on the screen that the cursor stands in, with its line end.
    QString lineOf(const QTextCursor &cursor, int *start, int *end) const;

    QPlainTextEdit &m_box;
};

/// Has assistive technology use TextBoxAccessible for all plain text boxes of the program.
void installTextBoxAccessible();

} // namespace tolvo
