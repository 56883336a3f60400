// SPDX-License-Identifier: MIT
#include "spelling/spelling_provider.h"

#include "platform/report_error.h"
#include "spelling/word_list.h"

namespace tolvo {

QString providerName(int type) {
    switch (type) {
    case providerType::word:
        return QStringLiteral("Microsoft Word");
    case providerType::hunspell:
        return QStringLiteral("Hunspell");
    case providerType::afterTheDeadline:
        return QStringLiteral("After the Deadline");
    case providerType::ginger:
        return QStringLiteral("Ginger");
    default:
        return {};
    }
}

void AddWordToDict(MessageBoxes &boxes, const QString &path, const QString &word) {
    reportFailures(boxes, QStringLiteral("CSpelling"), QStringLiteral("AddWordToDict"),
                   [&] { appendWords(path, {word}); });
}

} // namespace tolvo
