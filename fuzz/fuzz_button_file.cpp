// SPDX-License-Identifier: MIT
// PowerButtons that somebody has passed on: each text is read or refused in words, and what was read survives
// being written and read again.
#include "fuzz/fuzz.h"
#include "powerbuttons/button_file.h"
#include "powerbuttons/shared_steps.h"

#include <QBuffer>

using namespace tolvo;

namespace {

Catalogue someTools() {
    QByteArray lines(
        "ccUPP;UPPER CASE;0;\nfoREM;Remove lines...;1;\nedREP;Replace...;1;\npbPBT;PowerButton...;3;\n");
    QBuffer file(&lines);
    file.open(QIODevice::ReadOnly);
    return Catalogue::read(file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const Catalogue tools = someTools();
    const SharedButtons read =
        readButtonFile(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)), tools);
    fuzz::require(read.buttons.isEmpty() != read.trouble.isEmpty());
    if (!read.trouble.isEmpty())
        return 0;
    (void)sharedStepLines(read);
    const SharedButtons again = readButtonFile(buttonFileText(read).toUtf8(), tools);
    fuzz::require(again.buttons.size() == read.buttons.size());
    for (qsizetype i = 0; i < read.buttons.size(); ++i)
        fuzz::require(*again.buttons.at(i) == *read.buttons.at(i));
    return 0;
}
