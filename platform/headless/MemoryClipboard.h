// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clipboard.h"

namespace tolvo {

/// A clipboard that no other program sees, for tolvo-pipe and the tests. Texts come and go unchanged.
class MemoryClipboard final : public Clipboard {
  public:
    explicit MemoryClipboard(QString content = {}) : text(std::move(content)) {}

    [[nodiscard]] std::optional<QString> takeText() override { return readText(); }
    [[nodiscard]] std::optional<QString> readText() override {
        return answers ? std::optional(text) : std::nullopt;
    }
    void writeText(const QString &written) override {
        text = written;
        ++writes;
    }

    QString text;        ///< the clipboard's text
    bool answers = true; ///< false: as if the owner didn't answer
    int writes = 0;      ///< how often it was written
};

} // namespace tolvo
