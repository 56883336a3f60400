// SPDX-License-Identifier: MIT
// Texts are pictures: "|" is a line end, the guillemets stand around the selection or, with nothing between
// them, at the caret: "one|t«w»o", "tw«»o".
#pragma once

#include "platform/text_box.h"

namespace tolvo::test {

/// A text and its selection, in UTF-16 code units from 0.
struct Picture {
    QString text;
    int start = 0;
    int length = 0;
};

/// What a picture shows; without guillemets the caret stands at the start.
[[nodiscard]] inline Picture readPicture(QString picture) {
    picture.replace(u'|', QStringLiteral("\r\n"));
    const auto start = static_cast<int>(picture.indexOf(u'«'));
    const auto end = static_cast<int>(picture.indexOf(u'»'));
    picture.remove(u'«').remove(u'»');
    return start < 0 ? Picture{picture} : Picture{picture, start, end - start - 1};
}

[[nodiscard]] inline QString pictureOf(const Picture &seen) {
    QString picture = seen.text;
    picture.insert(seen.start + seen.length, u'»').insert(seen.start, u'«');
    return picture.replace(QStringLiteral("\r\n"), QStringLiteral("|"));
}

[[nodiscard]] inline QString pictureOf(const TextBox &box) {
    return pictureOf(Picture{box.Text(), box.SelStart(), box.SelLength()});
}

inline void show(TextBox &box, const QString &picture) {
    const Picture seen = readPicture(picture);
    box.setText(seen.text);
    select(box, seen.start, seen.length);
}

} // namespace tolvo::test
