// SPDX-License-Identifier: MIT
#include "widgets/motion.h"

#include <QStyle>
#include <QWidget>

namespace tolvo {

bool wantsMotion(const QWidget &widget) {
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

} // namespace tolvo
