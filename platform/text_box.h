// SPDX-License-Identifier: MIT
// The text area as all tools see it. Two implementations pass one contract: headless/MemoryTextBox
// (tolvo-pipe, tests) and desktop/PlainTextBox (over QPlainTextEdit).
#pragma once

#include <QString>
#include <algorithm>
#include <functional>

namespace tolvo {

/// What the user did to the text of a box: typed, deleted, pasted, dropped.
struct UserEdit {
    QString before;   ///< the whole text before it
    int selStart = 0; ///< the selection before it
    int selLength = 0;
    bool atOnce = false; ///< pasted or dropped: no part of what is typed next to it
};

/// A multi-line text with one selection. Lines end in CR LF; lone CR and LF are ordinary characters.
/// Positions count UTF-16 code units from 0.
///
/// No caret stands between the CR and the LF of a line end: a start that is put there moves before the CR, an
/// end behind the LF. Positions beyond the text are cut to its length, negative ones to 0.
class TextBox {
  public:
    virtual ~TextBox() = default;

    [[nodiscard]] virtual QString Text() const = 0;
    /// Keeps the first capacity() units, less one where that would keep half a line end or half a surrogate
    /// pair. Puts the caret at 0 and clears the selection. Writing the text that
    /// is there already fires no change.
    virtual void setText(const QString &text) = 0;

    /// The start of the selection, or the caret. Writing it clears the selection.
    [[nodiscard]] virtual int SelStart() const = 0;
    virtual void setSelStart(int start) = 0;
    /// 0 for a bare caret. Writing it keeps SelStart and scrolls the selection into view.
    [[nodiscard]] virtual int SelLength() const = 0;
    virtual void setSelLength(int length) = 0;

    [[nodiscard]] virtual QString SelText() const = 0;
    /// Replaces the selection. The caret then stands behind the new text, and nothing is selected. Text that
    /// would pass the capacity is cut from what is inserted, as setText cuts, never from what stands behind
    /// it. Replacing by the same text fires no change.
    virtual void setSelText(const QString &text) = 0;

    /// Length of Text() in UTF-16 units, without making a copy where that can be avoided.
    [[nodiscard]] virtual int length() const { return static_cast<int>(Text().size()); }

    [[nodiscard]] virtual int capacity() const = 0;
    virtual void setCapacity(int units) = 0;

    virtual void setFocus() {}

    /// Called after every change of the text, by typing or by code.
    std::function<void()> onChange;

    /// Called after every change that the user made, before onChange.
    std::function<void(const UserEdit &edit)> onUserEdit;
    /// Who wrote the text that did not find room.
    enum class Writer { Code, User };
    /// Called when text was cut to the capacity, with the length in UTF-16 units that the whole text would
    /// have had: for code at once, for what the user typed, pasted or dropped once that event is over.
    /// Keys that find the text full are told once, until the text changes.
    std::function<void(qint64 length, Writer writer)> onCut;

  protected:
    void reportCut(qint64 length, Writer writer) const {
        if (onCut)
            onCut(length, writer);
    }
};

/// Selects `length` units from `start`.
inline void select(TextBox &box, int start, int length) {
    box.setSelStart(start);
    box.setSelLength(length);
}

/// Replaces the selection and selects what has taken its place; less than `text` if there is no room for all.
inline void replaceAndSelect(TextBox &box, const QString &text) {
    const int start = box.SelStart();
    box.setSelText(text);
    select(box, start, std::min(static_cast<int>(text.size()), box.SelStart() - start));
}

} // namespace tolvo
