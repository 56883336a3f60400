// SPDX-License-Identifier: MIT
// The least that a program with one text box and the clipboard's text can be: the measure of start-up and
// memory.
#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    QPlainTextEdit box;
    box.setPlainText(QApplication::clipboard()->text());
    box.resize(820, 560);
    box.show();
    return QApplication::exec();
}
