// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/PlainTextBox.h"
#include "shell/ui/text_overlay.h"

#include <QObject>
#include <QTimer>
#include <array>

namespace tolvo {

struct ToolChange;

/// What a tool has changed, in the text box: for a moment its places are tinted, and while a key is held the
/// text before it lies over the box.
class ChangeView : public QObject {
    Q_OBJECT
  public:
    static constexpr int tintTime = 2000; ///< milliseconds

    /// The first box shows lines as they are, the second wraps them. They must outlive this.
    explicit ChangeView(std::array<PlainTextBox *, 2> boxes, QObject *parent);

    /// Tints the places that a change has left in the shown box. Gives how many there are.
    qsizetype showPlaces(const ToolChange &change);

    /// Shows the text before a change until the key is let go, another key or a button of the mouse is
    /// pressed, or the window is left. Null shows nothing. True where this begins, false while it lasts.
    bool beginTextBefore(const ToolChange *change);

    /// Shows another text in the place of the shown box's, with the places tinted where it differs.
    void showInstead(const TextState &state, const QString &title);
    /// The text shows as it is.
    void endInstead();

    /// The overlay of the shown box, made at its first use.
    [[nodiscard]] TextOverlay &overlay();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    [[nodiscard]] std::size_t shown() const { return m_boxes[1]->isHidden() ? 0 : 1; }
    void endPlaces();
    void fadePlaces();
    void endTextBefore();
    [[nodiscard]] bool endsTextBefore(const QEvent &event) const;

    std::array<PlainTextBox *, 2> m_boxes;
    std::array<TextOverlay *, 2> m_overlays{};
    QTimer m_tintEnds;
    int m_faded = 0;     ///< steps
    bool m_held = false; ///< the key that shows the text before
};

} // namespace tolvo
