// SPDX-License-Identifier: MIT
// Settings strings, as a hand may have put them into the store: into dialogs, into Actions, and from there
// into the tools.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "platform/headless/MemoryTextBox.h"
#include "shell/tool_table.h"
#include "tests/support/silent_host.h"

using namespace tolvo;
using fuzz::require;

namespace {

test::SilentHost host;
const cTextMethods engine(host, [](const QString &) { return false; });
const QString text = QStringLiteral(u"one two three four\r\n  five\tsix\r\n\r\n\t\tiv. seven eight");

void run(const ToolRow &row, const ToolSettings &settings) {
    static MemoryTextBox box;
    (void)row.operation.run({{engine, box, host}, text, 0, false, &settings});
}

void visit(const ToolRow &row, const CParams &params) {
    ToolSettings applied = row.operation.settings();
    applySettings(applied, params);
    run(row, applied);
    // What a dialog writes is read back as it was written, unless a text holds the separator of pairs.
    const QString written = settingsString(applied);
    ToolSettings again = row.operation.settings();
    applySettings(again, CParams(written));
    require(params.arg(QStringLiteral("Text")).endsWith(u',') ||
            params.arg(QStringLiteral("Bullet")).endsWith(u',') || settingsString(again) == written);
    try {
        run(row, settingsFromAction(applied, params));
    } catch (const Failure &) { // a value that can't be converted: reported, and the run goes on
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const CParams params(
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    for (const ToolRow &row : toolTable()) {
        if (row.operation.settings)
            visit(row, params);
    }
    return 0;
}
