// SPDX-License-Identifier: MIT
#include "shell/text_operations.h"

#include "base/code_page.h"
#include "base/numbers.h"
#include "platform/text_box.h"
#include "shell/selection_tools.h"
#include "text/cTextMethods.h"
#include "text/line_sets.h"

#include <QRandomGenerator>

namespace tolvo {

QString indent(const ToolInput &in, const IndentSettings &settings) {
    return in.context.engine.Indent(in.text, settings.prefix());
}

QString unindent(const ToolInput &in, const IndentSettings &settings) {
    return in.context.engine.Unindent(in.text, settings.prefix());
}

QString wrapWords(const ToolInput &in, const WordWrapSettings &settings) {
    return in.context.engine.WordWrap(in.text, settings.width, settings.hanging, settings.tab,
                                      settings.justify);
}

QString removeLines(const ToolInput &in, const RemoveLinesSettings &settings) {
    return in.context.engine.removeExtraLines(in.text, settings.single, settings.multiple);
}

QString bullets(const ToolInput &in, const BulletSettings &settings) {
    return in.context.engine.Indent(in.text, settings.prefix());
}

QString numberedList(const ToolInput &in, const NumberListSettings &settings) {
    const cTextMethods &engine = in.context.engine;
    const QString text = settings.renumber ? engine.removeNumbers(in.text) : in.text;
    return engine.number(text, settings.start, settings.style, settings.followChar, settings.tab,
                         settings.spaces);
}

QString lineNumbers(const ToolInput &in, const LineNumberSettings &settings) {
    const cTextMethods &engine = in.context.engine;
    const QString text = settings.renumber ? engine.RemoveLineNumbers(in.text) : in.text;
    return engine.LineNumber(text, settings.start, settings.step, settings.every, !settings.ignoreBlanks,
                             settings.pad, settings.rangeRight);
}

QString upperCase(const ToolInput &in) {
    return toUpper(in.text);
}

QString lowerCase(const ToolInput &in) {
    return toLower(in.text);
}

QString initialCaps(const ToolInput &in) {
    return in.context.engine.InitialCaps(in.wholeText(), in.start + 1, in.text.size());
}

QString titleCase(const ToolInput &in) {
    return in.context.engine.TitleCase(in.wholeText(), in.start, in.text.size());
}

QString capitalise(const ToolInput &in) {
    return in.context.engine.Capitalise(in.text, false);
}

QString tabsToSpaces(const ToolInput &in) {
    const int column = in.selected ? in.start - startOfLine(in.wholeText(), in.start) : 0;
    return in.context.engine.Tab2space(in.text, column, 8);
}

QString checkPunctuation(const ToolInput &in) {
    return in.context.engine.checkPunctuation(in.text, false);
}

QString shuffledLines(const ToolInput &in) {
    return shuffled(in.text, [](quint32 n) { return QRandomGenerator::global()->bounded(n); });
}

QString decoded(const ToolInput &in, const DecodedText &decoded) {
    QString status = QStringLiteral("Decoded");
    if (decoded.bad > 0)
        status = (decoded.text == in.text ? QStringLiteral("Can't be decoded: see character %1")
                                          : QStringLiteral("Decoded, but not at character %1"))
                     .arg(groupedNumber(in.start + decoded.badAt + 1));
    if (decoded.bad > 1)
        status += QStringLiteral(" (%1 places)").arg(groupedNumber(decoded.bad));
    in.context.host.setStatus(status);
    return decoded.text;
}

} // namespace tolvo
