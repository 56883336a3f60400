// SPDX-License-Identifier: MIT
// Every text operation of the tool table as a function of one text, for what is asked of all of them alike:
// poor guests, figures, fuzzing.
#pragma once

#include "platform/headless/MemoryTextBox.h"
#include "shell/tool_table.h"
#include "tests/support/other_settings.h"
#include "tests/support/silent_host.h"

#include <string>
#include <vector>

namespace tolvo::test {

/// A tool with settings, on the whole text or on its second half.
struct Operation {
    const ToolRow *row;
    std::optional<ToolSettings> settings;
    bool secondHalf = false;
    std::string name; ///< "foWRP", "foWRP, other settings", "ccTIT, second half"

    /// The new text, null if the tool can't work on this one.
    [[nodiscard]] QString run(const cTextMethods &engine, const QString &text) const {
        static SilentHost host;
        MemoryTextBox box(MemoryTextBox::unlimited);
        const ToolContext context{engine, box, host};
        const auto *values = settings ? &*settings : nullptr;
        if (!secondHalf)
            return row->operation.run({context, text, 0, false, values}).value_or(QString());
        box.setText(text);
        const qsizetype start = qMax(text.indexOf(u' ', text.size() / 2), text.size() / 2);
        return row->operation.run({context, text.sliced(start), static_cast<int>(start), true, values})
            .value_or(QString());
    }
};

/// Each tool with its default settings and with all others, and on the second half of a text.
[[nodiscard]] inline std::vector<Operation> operations() {
    std::vector<Operation> all;
    for (const ToolRow &row : toolTable()) {
        if (!row.operation.run)
            continue;
        const std::string token = QStringView(row.token).toLatin1().toStdString();
        std::optional<ToolSettings> settings;
        if (row.operation.settings) {
            settings = row.operation.settings();
            const auto other = std::visit(
                [](const auto &values) -> ToolSettings {
                    return otherSettings<std::remove_cvref_t<decltype(values)>>();
                },
                *settings);
            all.push_back({&row, other, false, token + ", other settings"});
        }
        all.push_back({&row, settings, false, token});
        all.push_back({&row, settings, true, token + ", second half"});
    }
    return all;
}

} // namespace tolvo::test
