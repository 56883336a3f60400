// SPDX-License-Identifier: MIT
#include "shell/text_facts.h"

#include "base/numbers.h"
#include "platform/text_box.h"
#include "text/cTextMethods.h"

namespace tolvo {

namespace {

constexpr QStringView lineEnd = u"\r\n";
constexpr int nearPercent = 90;
constexpr int fullPercent = 99;

} // namespace

TextFacts textFacts(const cTextMethods &engine, const TextBox &box) {
    TextFacts facts{.selected = box.SelLength(), .length = box.length(), .capacity = box.capacity()};
    engine.getColRow(box.Text(), box.SelStart(), facts.line, facts.column);
    return facts;
}

Fill fillOf(const TextFacts &facts) {
    const auto reaches = [&](int percent) {
        return qint64{facts.length} * 100 >= qint64{facts.capacity} * percent;
    };
    return reaches(fullPercent) ? Fill::Full : reaches(nearPercent) ? Fill::Near : Fill::Roomy;
}

QString selectionText(const TextFacts &facts) {
    return facts.selected == 0 ? QString() : groupedNumber(facts.selected) + QStringLiteral(" selected");
}

QString placeText(const TextFacts &facts) {
    return QStringLiteral("Ln %1, Col %2").arg(groupedNumber(facts.line), groupedNumber(facts.column));
}

QString lengthText(const TextFacts &facts) {
    return groupedNumber(facts.length) + QStringLiteral(" / ") + groupedNumber(facts.capacity);
}

QString lengthTip(const TextFacts &facts) {
    QString tip = QStringLiteral("%1 of %2 characters, a line end counts as two")
                      .arg(groupedNumber(facts.length), groupedNumber(facts.capacity));
    if (fillOf(facts) == Fill::Roomy)
        return tip;
    const int room = std::max(0, facts.capacity - facts.length);
    return tip + QStringLiteral("\nRoom for %1 more").arg(groupedNumber(room));
}

int lineCount(QStringView text) {
    return static_cast<int>(text.count(lineEnd)) + 1;
}

std::optional<int> placeOfLine(QStringView text, int line) {
    if (line < 1)
        return std::nullopt;
    qsizetype start = 0;
    for (int at = 1; at < line; ++at) {
        const qsizetype end = text.indexOf(lineEnd, start);
        if (end < 0)
            return std::nullopt;
        start = end + lineEnd.size();
    }
    return static_cast<int>(start);
}

} // namespace tolvo
