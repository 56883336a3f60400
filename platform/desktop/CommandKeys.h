// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/keyboard_layout.h"

#include <QObject>
#include <functional>

class QKeyEvent;

namespace tolvo {

/// Watches the keys of a whole application. A key held with Ctrl, Alt or the system key is a command:
///
/// - With Alt or the system key it types nothing into any field, whether the field uses it or not.
/// - Where the layout gives no Latin letter, it arrives with the Latin character of the same key.
///
/// AltGr, dead keys and input methods still type.
///
///     const QApplication application(argc, argv);
///     const CommandKeys commandKeys;
class CommandKeys final : public QObject {
    Q_OBJECT

  public:
    using LatinOfKey = std::function<char16_t(quint32 scanCode, quint32 modifiers)>;

    /// Begins at once; needs the application object.
    explicit CommandKeys(LatinOfKey latinOfKey = latinCharacterOfKey);

    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    /// The key that a command key stands for.
    [[nodiscard]] int meaning(const QKeyEvent &key) const;

    LatinOfKey m_latinOfKey;
};

/// Whether AltGr is held; Windows has it as Ctrl and Alt together.
bool holdsAltGr(const QKeyEvent &key);

} // namespace tolvo
