// SPDX-License-Identifier: MIT
// What assistive technology and a user without a mouse meet in every window.
#include "tests/shell/ui/all_windows.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>

using namespace tolvo;

namespace {

/// "Keep &tabs:" is said as "Keep tabs".
QString spoken(QString caption) {
    caption.replace(QStringLiteral("&&"), QStringLiteral("\x01")).remove(u'&');
    caption.replace(QStringLiteral("\x01"), QStringLiteral("&"));
    if (caption.endsWith(u':'))
        caption.chop(1);
    return caption.trimmed();
}

/// Parts of the toolkit's controls, which speak for their parts, are no controls.
bool isControl(const QWidget &widget) {
    const QWidget *parent = widget.parentWidget();
    const bool part =
        parent != nullptr && (parent->inherits("QLineEdit") || parent->inherits("QComboBox") ||
                              parent->inherits("QAbstractSpinBox") || parent->inherits("QAbstractItemView") ||
                              parent->inherits("QTabBar") || parent->inherits("QAbstractScrollArea") ||
                              parent->inherits("QComboBoxPrivateContainer"));
    const auto *bar = qobject_cast<const QScrollBar *>(&widget);
    return !part && (widget.inherits("QAbstractButton") || widget.inherits("QLineEdit") ||
                     widget.inherits("QComboBox") || widget.inherits("QAbstractSpinBox") ||
                     widget.inherits("QAbstractItemView") || widget.inherits("QPlainTextEdit") ||
                     widget.inherits("QTabBar") || (bar != nullptr && bar->focusPolicy() != Qt::NoFocus) ||
                     widget.inherits("tolvo::LinkLabel"));
}

QList<QWidget *> controlsOf(const QWidget &window) {
    QList<QWidget *> controls;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisibleTo(&window) && widget->window() == &window && widget->isEnabled() &&
            isControl(*widget))
            controls += widget;
    }
    return controls;
}

std::string named(const QWidget &widget) {
    return std::string(widget.metaObject()->className()) + ' ' + widget.objectName().toStdString();
}

/// The toolkit says the text of a list that drops down in place of its name; there the label counts.
bool isLabelled(const QAccessibleInterface &face) {
    return face.role() != QAccessible::ComboBox || !face.relations(QAccessible::Label).isEmpty();
}

void checkNames(const QWidget &window, const std::string &where) {
    for (QWidget *control : controlsOf(window)) {
        const auto *face = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(face, nullptr) << where;
        const QString name = face->text(QAccessible::Name);
        EXPECT_FALSE(name.trimmed().isEmpty() && !control->inherits("QTabBar"))
            << where << ": nameless " << named(*control);
        EXPECT_TRUE(isLabelled(*face)) << where << ": no label has " << named(*control);
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        if (button != nullptr && button->text().size() > 3 && !button->inherits("tolvo::PanelRowButton")) {
            EXPECT_TRUE(name.contains(spoken(button->text()), Qt::CaseInsensitive))
                << where << ": " << name.toStdString();
        }
    }
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        QWidget *buddy = label->buddy();
        if (buddy == nullptr || !label->isVisibleTo(&window) || buddy->inherits("QComboBox"))
            continue;
        const QString name = QAccessible::queryAccessibleInterface(buddy)->text(QAccessible::Name);
        EXPECT_TRUE(name.contains(spoken(label->text()), Qt::CaseInsensitive))
            << where << ": '" << spoken(label->text()).toStdString() << "' is named '" << name.toStdString()
            << '\'';
    }
}

/// Where the Tab key leads, with Ctrl where Tab is a character, and the arrows from a button.
QSet<QWidget *> reached(QWidget &window) {
    QSet<QWidget *> seen;
    QSet<QWidget *> stops;
    while (window.focusWidget() != nullptr && !stops.contains(window.focusWidget())) {
        QWidget *stop = window.focusWidget();
        stops += stop;
        seen += stop;
        if (stop->inherits("QAbstractButton")) {
            for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Left, Qt::Key_Right}) {
                const int steps = key == Qt::Key_Home ? 1 : 12;
                for (int step = 0; step < steps && window.focusWidget()->inherits("QAbstractButton");
                     ++step) {
                    QTest::keyClick(window.focusWidget(), key);
                    seen += window.focusWidget();
                }
            }
            stop->setFocus(Qt::TabFocusReason);
        }
        const auto *text = qobject_cast<const QPlainTextEdit *>(stop);
        const bool typesTab = text != nullptr && !text->tabChangesFocus();
        QTest::keyClick(stop, Qt::Key_Tab, typesTab ? Qt::ControlModifier : Qt::NoModifier);
    }
    return seen;
}

void checkReach(QWidget &window, const std::string &where) {
    if (window.focusWidget() == nullptr)
        window.setFocus(Qt::TabFocusReason);
    const QList<QWidget *> controls = controlsOf(window);
    const QSet<QWidget *> seen = reached(window);
    for (QWidget *control : controls) {
        const bool byArrows = control->inherits("QRadioButton") || control->inherits("tolvo::PanelRowButton");
        // Shows what another control says, or acts as the button beside it.
        static const QStringList twins{QStringLiteral("txtSample"), QStringLiteral("txtName"),
                                       QStringLiteral("picMoreArrowDown"), QStringLiteral("picMoreArrowUp")};
        const QWidget *within = control->focusProxy() ? control->focusProxy() : control;
        EXPECT_TRUE(byArrows || twins.contains(control->objectName()) ||
                    seen.contains(const_cast<QWidget *>(within)) ||
                    std::any_of(seen.begin(), seen.end(),
                                [&](const QWidget *one) { return control->isAncestorOf(one); }))
            << where << ": no key leads to " << named(*control);
    }
}

void checkPlaces(const QWidget &window, const std::string &where) {
    for (QPlainTextEdit *box : window.findChildren<QPlainTextEdit *>()) {
        const qsizetype second = box->toPlainText().indexOf(u'\n') + 1;
        if (!box->isVisibleTo(&window) || second == 0)
            continue;
        auto *text = QAccessible::queryAccessibleInterface(box)->textInterface();
        EXPECT_GT(text->characterRect(static_cast<int>(second)).top(), text->characterRect(0).top())
            << where << ": the second line of " << named(*box);
    }
}

class AccessibilityStory : public AllWindows {};

TEST_F(AccessibilityStory, everyControlHasTheNameThatIsSeenAndIsReachedByKeys) {
    inEachWindow([](QWidget &window, const std::string &name) {
        EXPECT_FALSE(window.windowTitle().isEmpty()) << name;
        checkNames(window, name);
        if (name != "main window, finding") // its field keeps the focus until Escape
            checkReach(window, name);
        checkPlaces(window, name);
        if (name == "spelling") {
            auto &correction = child<QLineEdit>(window, "txtCorrection");
            EXPECT_EQ(correction.accessibleDescription(),
                      QStringLiteral("Not in dictionary: mistke, 1 of 1, line 1"))
                << "said with the correction, which has the focus";
        }
    });
}

} // namespace
