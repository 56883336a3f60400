// SPDX-License-Identifier: MIT
// Settings strings, as a hand may have put them into the store: into dialogs, into Actions, and from there
// into the tools.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "tests/support/silent_host.h"
#include "text/tool_settings.h"

using namespace tolvo;
using fuzz::require;

namespace {

test::SilentHost host;
const cTextMethods engine(host, [](const QString &) { return false; });
constexpr QStringView text = u"one two three four\r\n  five\tsix\r\n\r\n\t\tiv. seven eight";

void run(const IndentSettings &s) {
    (void)engine.Unindent(engine.Indent(text, s.prefix()), s.prefix());
}
void run(const WordWrapSettings &s) {
    (void)engine.WordWrap(text, s.width, s.hanging, s.tab, s.justify);
}
void run(const RemoveLinesSettings &s) {
    (void)engine.removeExtraLines(text, s.single, s.multiple);
}
void run(const BulletSettings &s) {
    (void)engine.Indent(text, s.prefix());
}
void run(const NumberListSettings &s) {
    (void)engine.number(text, s.start, s.style, s.followChar, s.tab, s.spaces);
}
void run(const LineNumberSettings &s) {
    (void)engine.LineNumber(text, s.start, s.step, s.every, !s.ignoreBlanks, s.pad, s.rangeRight);
}

template <class Settings>
void visit(const CParams &params) {
    Settings applied;
    applySettings(applied, params);
    run(applied);
    // What a dialog writes is read back as it was written, unless a text holds the separator of pairs.
    const QString written = settingsString(applied);
    Settings again;
    applySettings(again, CParams(written));
    require(params.arg(QStringLiteral("Text")).endsWith(u',') ||
            params.arg(QStringLiteral("Bullet")).endsWith(u',') || settingsString(again) == written);
    try {
        run(settingsFromAction<Settings>(params));
    } catch (const Failure &) { // a value that can't be converted: reported, and the run goes on
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const CParams params(
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    visit<IndentSettings>(params);
    visit<WordWrapSettings>(params);
    visit<RemoveLinesSettings>(params);
    visit<BulletSettings>(params);
    visit<NumberListSettings>(params);
    visit<LineNumberSettings>(params);
    return 0;
}
