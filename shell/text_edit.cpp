// SPDX-License-Identifier: MIT
#include "shell/text_edit.h"

#include "platform/text_positions.h"

#include <QTextBoundaryFinder>

namespace tolvo {

namespace {

/// Inside a line end of either text the edge of a change moves one unit away from the change.
bool splitsEither(QStringView before, qsizetype inBefore, QStringView after, qsizetype inAfter) {
    return splitsLineEnd(before, inBefore) || splitsLineEnd(after, inAfter);
}

bool startsWord(QChar last, QChar next) {
    return last.isSpace() && !next.isSpace();
}

QString replaced(const QString &text, int position, const QString &old, const QString &fresh) {
    if (old.size() == text.size())
        return fresh; // shared, not copied
    return QString(text).replace(position, old.size(), fresh);
}

} // namespace

TextEdit changeBetween(const QString &before, const QString &after, qsizetype latestStart) {
    const qsizetype shorter = std::min(before.size(), after.size());
    const qsizetype mostBefore = std::min(shorter, latestStart);
    qsizetype start =
        std::mismatch(before.begin(), before.begin() + mostBefore, after.begin()).first - before.begin();
    if (splitsEither(before, start, after, start))
        --start;
    const auto end = std::make_reverse_iterator(before.begin() + before.size() - (shorter - start));
    qsizetype kept = std::mismatch(before.rbegin(), end, after.rbegin()).first - before.rbegin();
    if (kept > 0 && splitsEither(before, before.size() - kept, after, after.size() - kept))
        --kept;
    // A change of most of the text shares both texts with whoever holds them.
    if ((start + kept) * 2 < shorter)
        return {0, before, after};
    return {static_cast<int>(start), before.sliced(start, before.size() - kept - start),
            after.sliced(start, after.size() - kept - start)};
}

QString withEdit(const QString &text, const TextEdit &edit) {
    return replaced(text, edit.position, edit.removed, edit.inserted);
}

QString withoutEdit(const QString &text, const TextEdit &edit) {
    return replaced(text, edit.position, edit.inserted, edit.removed);
}

bool isSingleCharacter(const TextEdit &edit) {
    const QString &text = edit.inserted.isEmpty() ? edit.removed : edit.inserted;
    return QTextBoundaryFinder(QTextBoundaryFinder::Grapheme, text).toNextBoundary() == text.size();
}

bool joinWord(TextEdit &edit, const TextEdit &next) {
    if (!isSingleCharacter(next))
        return false;
    if (!next.inserted.isEmpty()) {
        const bool follows = next.removed.isEmpty() && !edit.inserted.isEmpty() &&
                             next.position == edit.position + edit.inserted.size();
        if (!follows || startsWord(edit.inserted.back(), next.inserted.front()))
            return false;
        edit.inserted += next.inserted;
        return true;
    }
    if (!edit.inserted.isEmpty())
        return false;
    if (next.position == edit.position) {
        if (startsWord(edit.removed.back(), next.removed.front()))
            return false;
        edit.removed += next.removed;
        return true;
    }
    if (next.position + next.removed.size() != edit.position ||
        startsWord(edit.removed.front(), next.removed.back()))
        return false;
    edit.removed.prepend(next.removed);
    edit.position = next.position;
    return true;
}

} // namespace tolvo
