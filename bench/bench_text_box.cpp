// SPDX-License-Identifier: MIT
// Typing, selecting and toggling word wrap in a text of 65,535 units: what one frame has to hold.
#include "bench/bench.h"
#include "platform/desktop/PlainTextBox.h"

#include <QApplication>
#include <QTest>

namespace {

using namespace tolvo;

void measure(Table &table, const QString &name, const QString &text) {
    for (const bool wrapped : {false, true}) {
        PlainTextBox box(wrapped ? PlainTextBox::Lines::Wrapped : PlainTextBox::Lines::AsTheyAre);
        box.resize(600, 400);
        box.show();
        box.setText(text.left(textLimit - 200));
        box.setSelStart(box.length() / 2);
        const QString kind = name + (wrapped ? QStringLiteral(", wrapped") : QString());
        const auto frame = [&box] {
            QApplication::processEvents();
            box.grab();
        };
        table.add(kind + QStringLiteral(": type a key"), medianMilliseconds([&] {
                      QTest::keyClick(&box, Qt::Key_X);
                      frame();
                  }),
                  16);
        table.add(kind + QStringLiteral(": extend the selection"), medianMilliseconds([&] {
                      QTest::keyClick(&box, Qt::Key_Down, Qt::ShiftModifier);
                      frame();
                  }),
                  16);
        if (wrapped) {
            table.add(kind + QStringLiteral(": toggle word wrap"), medianMilliseconds([&] {
                          PlainTextBox other(PlainTextBox::Lines::AsTheyAre);
                          other.resize(600, 400);
                          other.setText(box.Text());
                          other.show();
                          other.grab();
                      }),
                      100);
        }
    }
}

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    Table table(QStringLiteral("Text box, 65,535 characters"));
    measure(table, QStringLiteral("lines"), ordinaryText());
    measure(table, QStringLiteral("one line"),
            ordinaryText().replace(QStringLiteral("\r\n"), QStringLiteral(" ")));
    measure(table, QStringLiteral("one word"), QString(textLimit, u'a'));
    table.print();
    return 0;
}
