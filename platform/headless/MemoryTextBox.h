// SPDX-License-Identifier: MIT
#pragma once

#include "base/application.h"
#include "platform/text_box.h"

#include <limits>

namespace tolvo {

/// A text box without a window, for tolvo-pipe and the tests. Reading shares the text instead of copying it;
/// an edit takes at most one pass over the text.
class MemoryTextBox final : public TextBox {
  public:
    /// The capacity of a box that takes any text.
    static constexpr int unlimited = std::numeric_limits<int>::max();

    explicit MemoryTextBox(int capacity = textLimit) : m_capacity(capacity) {}

    [[nodiscard]] QString Text() const override { return m_text; }
    void setText(const QString &text) override;
    [[nodiscard]] int SelStart() const override { return m_start; }
    void setSelStart(int start) override;
    [[nodiscard]] int SelLength() const override { return m_length; }
    void setSelLength(int length) override;
    [[nodiscard]] QString SelText() const override { return m_text.mid(m_start, m_length); }
    void setSelText(const QString &text) override;
    /// Replaces the selection as the user does: by typing or, `atOnce`, by pasting.
    void type(const QString &text, bool atOnce = false);
    /// Deletes a part of the text as the user does.
    void erase(int start, int length);
    [[nodiscard]] int length() const override { return static_cast<int>(m_text.size()); }
    [[nodiscard]] int capacity() const override { return m_capacity; }
    void setCapacity(int units) override { m_capacity = units; }

  private:
    void report(const UserEdit &edit);
    bool replaceSelection(const QString &text);
    [[nodiscard]] qint64 wantedLength(QStringView text) const;

    QString m_text;
    int m_start = 0;
    int m_length = 0;
    int m_capacity;
};

} // namespace tolvo
