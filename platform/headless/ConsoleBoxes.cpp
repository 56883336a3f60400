// SPDX-License-Identifier: MIT
#include "platform/headless/ConsoleBoxes.h"

#include "base/strings.h"

namespace tolvo {

BoxAnswer RecordingBoxes::show(const Box &box) {
    shown.push_back(box);
    if (box.buttons == BoxButtons::Ok)
        return BoxAnswer::Ok;
    if (answers.empty())
        return BoxAnswer::No;
    const BoxAnswer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
}

BoxAnswer ConsoleBoxes::show(const Box &box) {
    say(box.text);
    return RecordingBoxes::show(box);
}

void ConsoleBoxes::say(const QString &text) const {
    QByteArray out;
    forEachLine(text, [&](QStringView line, bool) {
        out += m_prefix.toUtf8() + line.toUtf8();
        out += '\n';
    });
    std::fwrite(out.constData(), 1, static_cast<size_t>(out.size()), m_stream);
    std::fflush(m_stream);
}

} // namespace tolvo
