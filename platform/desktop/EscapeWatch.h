// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

namespace tolvo {

/// For work that blocks but keeps the windows painted: while a guard of it lives, the user's input reaches no
/// window of the program, the pointer shows that we wait, and Esc is noted.
///
///     client.guardInput = [&] { return watch.guard(); };
///     client.cancelled = [&] { return watch.escapePressed(); };
class EscapeWatch final : public QObject {
    Q_OBJECT

  public:
    /// The watch outlives the guard.
    [[nodiscard]] std::shared_ptr<void> guard();

    /// Whether Esc was pressed since the last guard was made.
    [[nodiscard]] bool escapePressed() const { return m_escape; }

    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool m_escape = false;
};

} // namespace tolvo
