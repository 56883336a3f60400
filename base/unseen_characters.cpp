// SPDX-License-Identifier: MIT
#include "base/unseen_characters.h"

namespace tolvo {

bool isUnseen(QChar unit) {
    switch (unit.category()) {
    case QChar::Other_Control:
        return unit != u'\t';
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return (unit >= QChar(0xFDD0) && unit <= QChar(0xFDEF)) || unit >= QChar(0xFFFE);
    }
}

} // namespace tolvo
