// SPDX-License-Identifier: MIT
#include "search/ui/element_button.h"

#include "search/ui/search_list_edit.h"

#include <QLineEdit>
#include <QMenu>

namespace tolvo {

namespace {

/// Menus take "&" for the mark of a letter.
QString captionOf(const PatternElement &element) {
    QString caption = element.written.toString() + QStringLiteral(" \u2014 ") + element.meaning.toString();
    return caption.replace(u'&', QStringLiteral("&&"));
}

} // namespace

ElementButton::ElementButton(SearchText text, SearchListEdit &list, const QString &name, QWidget *parent)
    : QToolButton(parent), m_text(text), m_list(list) {
    setObjectName(list.objectName() + QStringLiteral("Elements"));
    setText(QStringLiteral("+"));
    setAutoRaise(true);
    setPopupMode(QToolButton::InstantPopup);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Insert into \"%1\"").arg(name));
    setToolTip(QStringLiteral("What can be inserted here (Alt-Insert)"));
    auto *menu = new QMenu(this);
    menu->setAccessibleName(accessibleName());
    setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &ElementButton::fill);
}

void ElementButton::offer(SearchMode mode, bool specialChars) {
    m_mode = mode;
    m_specialChars = specialChars;
}

void ElementButton::fill() {
    menu()->clear();
    for (const PatternElement &element : patternElements(m_text, m_mode, m_specialChars)) {
        QAction *action = menu()->addAction(captionOf(element));
        connect(action, &QAction::triggered, this, [this, element] { insert(element); });
        if (element.endsGroup)
            menu()->addSeparator();
    }
    if (m_specialChars || m_mode == SearchMode::RegularExpression)
        return;
    QAction *allow = menu()->addAction(QStringLiteral("Allow special &characters"));
    connect(allow, &QAction::triggered, this, &ElementButton::specialCharsWanted);
}

void ElementButton::insert(const PatternElement &element) {
    m_list.insertText(element.written.toString());
    QLineEdit &edit = *m_list.lineEdit();
    edit.setCursorPosition(edit.cursorPosition() - static_cast<int>(element.caretBack));
}

} // namespace tolvo
