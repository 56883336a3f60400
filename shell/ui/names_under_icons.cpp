// SPDX-License-Identifier: MIT
#include "shell/ui/names_under_icons.h"

#include "shell/ui/ImageButton.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QLayout>
#include <QMenu>
#include <array>

namespace tolvo {

namespace {

struct Offer {
    NamesUnderIcons::Choice choice;
    const char16_t *text;
};

constexpr std::array offers{
    Offer{NamesUnderIcons::Choice::WithRoom, u"Names under the icons where there is room"},
    Offer{NamesUnderIcons::Choice::Always, u"Always names under the icons"},
    Offer{NamesUnderIcons::Choice::Never, u"Icons only"}};

} // namespace

NamesUnderIcons::NamesUnderIcons(QWidget &bar) : QObject(&bar), m_bar(bar) {
    bar.installEventFilter(this);
}

void NamesUnderIcons::setChoice(Choice choice) {
    m_choice = choice;
    arrange();
}

void NamesUnderIcons::extendMenu(QMenu &menu) {
    auto *group = new QActionGroup(&menu);
    for (const Offer &offer : offers) {
        QAction *action = menu.addAction(QString::fromUtf16(offer.text), this, [this, choice = offer.choice] {
            setChoice(choice);
            if (onChosen)
                onChosen(choice);
        });
        action->setCheckable(true);
        action->setChecked(offer.choice == m_choice);
        group->addAction(action);
    }
}

bool NamesUnderIcons::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) {
        arrange();
    } else if (event->type() == QEvent::ContextMenu) {
        QMenu menu(&m_bar);
        extendMenu(menu);
        menu.exec(static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void NamesUnderIcons::arrange() {
    const bool named = m_choice == Choice::Always || (m_choice == Choice::WithRoom && hasRoom());
    for (ImageButton *button : buttons())
        button->showName(named);
}

bool NamesUnderIcons::hasRoom() const {
    int needed = 0;
    const QLayout &row = *m_bar.layout();
    for (int i = 0; i < row.count(); ++i) {
        QWidget *widget = row.itemAt(i)->widget();
        const auto *button = qobject_cast<const ImageButton *>(widget);
        if (widget)
            needed += row.spacing() + (button ? button->namedSize() : widget->sizeHint()).width();
    }
    return needed <= m_bar.width();
}

QList<ImageButton *> NamesUnderIcons::buttons() const {
    return m_bar.findChildren<ImageButton *>(Qt::FindDirectChildrenOnly);
}

} // namespace tolvo
