// SPDX-License-Identifier: MIT
// The text area as all tools see it. Two implementations pass one contract: headless/MemoryTextBox
// (tolvo-pipe, tests) and desktop/PlainTextBox (over QPlainTextEdit).
#pragma once

#include <QString>
#include <algorithm>
#include <functional>

namespace tolvo {

/// A change of the text by the user, who has typed, deleted, pasted or dropped.
struct UserEdit {
    QString before;   ///< the whole text before the change
    int selStart = 0; ///< the selection before the change
    int selLength = 0;
    bool atOnce = false; ///< pasted or dropped: a change of its own, apart from typing
};

/// A multi-line text with one selection. Lines end in CR LF; lone CR and LF are ordinary characters.
/// Positions count UTF-16 code units from 0.
///
/// No caret stands between the CR and the LF of a line end: a start set there moves before the CR, an end
/// after the LF. Positions after the text are cut to its length, negative ones to 0.
class TextBox {
  public:
    virtual ~TextBox() = default;

    /// With CR LF at each line end.
    [[nodiscard]] virtual QString Text() const = 0;
    /// Replaces the text by the first capacity() units of another, less one where that would split a line end
    /// or a surrogate pair. Puts the caret at 0 and clears the selection. Setting the same text fires no
    /// change.
    virtual void setText(const QString &text) = 0;

    /// The start of the selection, or the caret. Setting it clears the selection.
    [[nodiscard]] virtual int SelStart() const = 0;
    virtual void setSelStart(int start) = 0;
    /// 0 if nothing is selected. Setting it keeps SelStart and scrolls the selection into view.
    [[nodiscard]] virtual int SelLength() const = 0;
    virtual void setSelLength(int length) = 0;

    /// Empty if nothing is selected.
    [[nodiscard]] virtual QString SelText() const = 0;
    /// Replaces the selection. The caret is then after the new text, and nothing is selected. What is
    /// inserted is cut to the capacity, as setText cuts; the text after it stays whole. Replacing by the same
    /// text fires no change.
    virtual void setSelText(const QString &text) = 0;

    /// The length of Text() in UTF-16 units, without a copy where possible.
    [[nodiscard]] virtual int length() const { return static_cast<int>(Text().size()); }

    /// The most units that the box takes. Setting it leaves the current text as it is.
    [[nodiscard]] virtual int capacity() const = 0;
    virtual void setCapacity(int units) = 0;

    /// Gives the box the focus, where there is a window.
    virtual void setFocus() {}

    /// Called after every change of the text, by the user or by code.
    std::function<void()> onChange;

    /// Called after every change that the user made, before onChange.
    std::function<void(const UserEdit &edit)> onUserEdit;
    /// Who wrote the text that was cut.
    enum class Writer { Code, User };
    /// Called when text was cut to the capacity, with the length in UTF-16 units that the whole text would
    /// have had: for code at once, for what the user typed, pasted or dropped once that event is over.
    /// Further keys into a full text are not reported again until the text changes.
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

/// Replaces the selection and selects the new text, as far as there is room for it.
inline void replaceAndSelect(TextBox &box, const QString &text) {
    const int start = box.SelStart();
    box.setSelText(text);
    select(box, start, std::min(static_cast<int>(text.size()), box.SelStart() - start));
}

} // namespace tolvo
