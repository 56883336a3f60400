// SPDX-License-Identifier: MIT
// A letter with Alt leads to one control: two that share it only pass the focus to and fro.
#include "tests/shell/ui/all_windows.h"

#include <QGroupBox>
#include <QLabel>
#include <QTabBar>

using namespace tolvo;

namespace {

/// The captions whose letters work while the widget is seen.
QStringList captionsOf(const QWidget &widget) {
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return {button->text()};
    if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
        return {group->title()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->buddy() != nullptr ? QStringList{label->text()} : QStringList();
    QStringList captions;
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            captions += tabs->tabText(tab);
    }
    return captions;
}

/// Wanted as they are, though they share a letter.
bool mayShare(const QString &one, const QString &other) {
    const QStringList pair{QStringLiteral("&Up"), QStringLiteral("&Unicode  \\u....")};
    return pair.contains(one) && pair.contains(other);
}

void checkLetters(const QWidget &window, const std::string &where) {
    QHash<QKeySequence, QString> taken;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window) || widget->window() != &window)
            continue;
        for (const QString &caption : captionsOf(*widget)) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            if (key.isEmpty())
                continue;
            EXPECT_TRUE(!taken.contains(key) || mayShare(taken[key], caption))
                << where << ": " << key.toString().toStdString() << " leads to '" << taken[key].toStdString()
                << "' and '" << caption.toStdString() << '\'';
            taken[key] = caption;
        }
    }
}

class MnemonicStory : public AllWindows {};

TEST_F(MnemonicStory, noTwoControlsOfAWindowShareALetter) {
    inEachWindow(checkLetters);
}

} // namespace
