// SPDX-License-Identifier: MIT
// Fetches the text of a selection from an X server. Source of the protocol: Inter-Client Communication
// Conventions Manual, version 2.0, section 2 (selections, INCR transfers).
#pragma once

#include "platform/desktop/TextTransfer.h"

#include <QByteArray>

#include <array>
#include <cstdint>

struct xcb_connection_t;

namespace tolvo {

/// One transfer, over a connection of its own: asks the owner of a selection for its formats, then for its
/// text, which may come in pieces. Only for selections that other programs own.
class X11TextTransfer final : public TextTransfer {
  public:
    explicit X11TextTransfer(Selection selection);
    ~X11TextTransfer() override;
    X11TextTransfer(const X11TextTransfer &) = delete;
    X11TextTransfer &operator=(const X11TextTransfer &) = delete;

    bool advance(int milliseconds) override;
    [[nodiscard]] bool ownerHasMoved() override;
    [[nodiscard]] QString text() const override;

  private:
    enum class Step { Targets, Text, Pieces, Over };
    struct Target {
        const char *name;
        uint32_t atom;
    };

    void ask(uint32_t target);
    void answered(bool refused);
    void pieceCame();
    void chooseTarget(const QByteArray &targets);
    /// The contents of the property that the owner has written, which is deleted; `incremental` is set if it
    /// only announces pieces.
    QByteArray takeProperty(bool *incremental = nullptr);

    xcb_connection_t *m_connection = nullptr;
    uint32_t m_window = 0;
    uint32_t m_selection = 0;
    uint32_t m_property = 0;
    uint32_t m_incremental = 0;
    std::array<Target, 7> m_targets; ///< in the order of choice
    Target m_chosen{"", 0};
    Step m_step = Step::Over;
    bool m_moved = false;
    QByteArray m_data;
};

} // namespace tolvo
