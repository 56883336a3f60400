// SPDX-License-Identifier: MIT
#include "spelling/error_order.h"

#include <QList>
#include <QSet>
#include <algorithm>

namespace tolvo {

namespace {

using Errors = QList<CSpellingErrors::Pointer>;

bool startsBefore(const CSpellingErrors::Pointer &one, const CSpellingErrors::Pointer &other) {
    return one->TextStart() < other->TextStart();
}

bool isShorter(const CSpellingErrors::Pointer &one, const CSpellingErrors::Pointer &other) {
    return one->length() < other->length();
}

bool overlap(const Errors &byStart) {
    return std::adjacent_find(byStart.begin(), byStart.end(), [](const auto &one, const auto &next) {
               return next->TextStart() < one->TextEnd();
           }) != byStart.end();
}

/// The errors inside `outer`, the shortest first.
Errors inside(const CSpellingErrors::Pointer &outer, const Errors &byStart) {
    Errors found;
    const auto first = std::lower_bound(byStart.begin(), byStart.end(), outer, startsBefore);
    for (auto it = first; it != byStart.end() && (*it)->TextStart() < outer->TextEnd(); ++it) {
        if ((*it)->TextEnd() <= outer->TextEnd() && isShorter(*it, outer))
            found += *it;
    }
    std::stable_sort(found.begin(), found.end(), isShorter);
    return found;
}

} // namespace

CSpellingErrors innerFirst(const CSpellingErrors &errors) {
    Errors byStart(errors.begin(), errors.end());
    std::stable_sort(byStart.begin(), byStart.end(), startsBefore);
    if (!overlap(byStart))
        return errors;
    Errors ordered;
    QSet<const CSpellingError *> taken;
    const auto take = [&](const CSpellingErrors::Pointer &error) {
        if (taken.contains(error.get()))
            return;
        taken.insert(error.get());
        ordered += error;
    };
    for (const auto &error : errors) {
        for (const auto &inner : inside(error, byStart))
            take(inner);
        take(error);
    }
    return CSpellingErrors(ordered);
}

} // namespace tolvo
