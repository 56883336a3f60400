// SPDX-License-Identifier: MIT
// Typing, selecting and toggling word wrap in a text of 65,535 units: what one frame has to hold.
#include "bench/bench.h"
#include "platform/desktop/PlainTextBox.h"

#include <QApplication>
#include <QTest>

namespace {

using namespace tolvo;

constexpr double frame = 16; // milliseconds
constexpr double toggle = 100;

void show(PlainTextBox &box, const QString &text) {
    box.resize(600, 400);
    box.show();
    box.setText(text);
    box.setSelStart(box.length() / 2);
}

/// The user sees it: events are handled and the window is painted.
void paint(PlainTextBox &box) {
    QApplication::processEvents();
    (void)box.grab();
}

void measure(bench::Table &table, const std::string &name, const QString &text) {
    for (const bool wrapped : {false, true}) {
        PlainTextBox box(wrapped ? PlainTextBox::Lines::Wrapped : PlainTextBox::Lines::AsTheyAre);
        show(box, text);
        paint(box);
        const std::string kind = name + (wrapped ? ", wrapped: " : ": ");
        const auto key = [&](Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
            return bench::milliseconds([&] {
                QTest::keyClick(&box, pressed, modifiers);
                paint(box);
            });
        };
        table.add(kind + "type a key", key(Qt::Key_X), frame, "ms");
        table.add(kind + "move the caret", key(Qt::Key_Down), frame, "ms");
        table.add(kind + "extend the selection", key(Qt::Key_Down, Qt::ShiftModifier), frame, "ms");
    }
    PlainTextBox plain(PlainTextBox::Lines::AsTheyAre);
    PlainTextBox wrapping(PlainTextBox::Lines::Wrapped);
    show(plain, text);
    table.add(name + ": toggle word wrap", bench::milliseconds([&] {
                                               show(wrapping, plain.Text());
                                               plain.setText({});
                                               paint(wrapping);
                                               show(plain, wrapping.Text());
                                               wrapping.setText({});
                                               paint(plain);
                                           }) / 2,
              toggle, "ms");
}

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    bench::Table table("Text box, 65,535 characters");
    const qsizetype room = bench::fullText - 200;
    measure(table, "lines", bench::ordinaryText(room));
    measure(table, "one line",
            bench::ordinaryText(room).replace(QStringLiteral("\r\n"), QStringLiteral("  ")));
    measure(table, "one word", bench::repeated(QStringLiteral("a"), room));
    return table.exitCode();
}
