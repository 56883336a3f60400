// SPDX-License-Identifier: MIT
// Everything that has to be seen can be told apart in the pixels of every window, under palettes of many
// kinds.
#include "tests/shell/ui/all_windows.h"
#include "widgets/contrast.h"
#include "widgets/dress_application.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>

using namespace tolvo;

namespace {

struct Theme {
    const char *name;
    QPalette palette;
    std::string_view windows{}; ///< how the names of the windows begin that it is for
};

QPalette withFields(QPalette palette, const QColor &ground, const QColor &ink) {
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::Text, ink);
    return palette;
}

QPalette withButtons(QPalette palette, const QColor &ground, const QColor &ink) {
    palette.setColor(QPalette::Button, ground);
    palette.setColor(QPalette::ButtonText, ink);
    return palette;
}

QList<Theme> themes() {
    const QPalette light(QColor(239, 239, 239));
    const QPalette dark(QColor(45, 45, 48));
    return {
        {"light", light},
        {"dark", dark},
        {"black", QPalette(Qt::black)},
        {"dark fields in light windows", withFields(light, QColor(35, 35, 38), Qt::white)},
        {"light fields in dark windows", withFields(dark, Qt::white, Qt::black)},
        {"dark buttons in light windows", withButtons(light, QColor(30, 40, 60), Qt::white), "main window"}};
}

/// A part of a window as it is seen.
class Look {
  public:
    Look(const QImage &window, const QRect &area) : m_image(window.copy(area)) {}

    /// The colour of most pixels.
    [[nodiscard]] QColor ground() const {
        QHash<QRgb, int> counts;
        for (int y = 0; y < m_image.height(); ++y) {
            for (int x = 0; x < m_image.width(); ++x)
                ++counts[m_image.pixel(x, y)];
        }
        const auto most = std::max_element(counts.begin(), counts.end());
        return most == counts.end() ? QColor() : QColor(most.key());
    }
    [[nodiscard]] double strongest(const QColor &ground) const {
        double result = 1;
        for (int y = 0; y < m_image.height(); ++y) {
            for (int x = 0; x < m_image.width(); ++x)
                result = std::max(result, contrast(m_image.pixelColor(x, y), ground));
        }
        return result;
    }
    [[nodiscard]] double text() const { return strongest(ground()); }

  private:
    QImage m_image;
};

QString wordsOf(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text().trimmed();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text().trimmed();
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return field->text().isEmpty() ? field->placeholderText() : field->text();
    if (const auto *list = qobject_cast<const QComboBox *>(&widget))
        return list->isEditable() ? QString() : list->currentText();
    return {};
}

bool hasEdge(const QWidget &widget) {
    const auto *tool = qobject_cast<const QToolButton *>(&widget);
    const auto *frame = qobject_cast<const QFrame *>(&widget);
    const auto *field = qobject_cast<const QLineEdit *>(&widget);
    return (field != nullptr && field->hasFrame()) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QAbstractSpinBox *>(&widget) || widget.inherits("QPushButton") ||
           (tool != nullptr && !tool->autoRaise() && !tool->inherits("QLineEditIconButton")) ||
           (frame != nullptr && frame->frameShape() == QFrame::StyledPanel && frame->frameWidth() > 0);
}

/// The sign of a check box or an option, in the widget.
QRect indicatorOf(const QWidget &widget) {
    QStyleOptionButton option;
    option.initFrom(&widget);
    const QStyle &style = *widget.style();
    if (qobject_cast<const QCheckBox *>(&widget))
        return style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &widget);
    if (qobject_cast<const QRadioButton *>(&widget))
        return style.subElementRect(QStyle::SE_RadioButtonIndicator, &option, &widget);
    return {};
}

/// The icon before the text of a push button, in the button.
QRect iconOf(const QWidget &widget) {
    const auto *button = qobject_cast<const QPushButton *>(&widget);
    if (button == nullptr || button->icon().isNull() || button->text().isEmpty())
        return {};
    constexpr int gap = 4; // between icon and text, as the toolkit has it
    const int side = button->iconSize().width();
    const int both = side + gap + button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    return {(button->width() - both) / 2, (button->height() - side) / 2, side, side};
}

class ContrastStory : public AllWindows {
  protected:
    static void check(QWidget &window, const std::string &where) {
        const QImage image = window.grab().toImage();
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            if (!widget->isVisibleTo(&window) || widget->window() != &window || !widget->isEnabled())
                continue;
            const QRect area(widget->mapTo(&window, QPoint()), widget->size());
            const std::string control = where + ": " + widget->metaObject()->className() + ' ' +
                                        widget->objectName().toStdString() + " '" +
                                        wordsOf(*widget).toStdString() + "'";
            if (!wordsOf(*widget).isEmpty()) {
                EXPECT_GE(Look(image, area.adjusted(3, 3, -3, -3)).text(), textContrast) << control;
            }
            const QColor outside = window.palette().color(QPalette::Window);
            if (const QRect sign = indicatorOf(*widget); sign.isValid()) {
                const QRect row(sign.left(), sign.center().y(), 3, 1);
                EXPECT_GE(Look(image, row.translated(area.topLeft())).strongest(outside), lineContrast)
                    << control << " the sign";
            }
            if (const QRect icon = iconOf(*widget); icon.isValid()) {
                const QColor ground = Look(image, area.adjusted(3, 3, -3, -3)).ground();
                EXPECT_GE(Look(image, icon.translated(area.topLeft())).strongest(ground), lineContrast)
                    << control << " the icon";
            }
            if (hasEdge(*widget)) {
                const QRect row(area.left(), area.center().y(), 3, 1);
                EXPECT_GE(Look(image, row).strongest(outside), lineContrast) << control << " the edge";
            }
        }
    }
    /// The strongest change of a pixel when the focus comes.
    static void checkFocus(QWidget &window, const std::string &where) {
        for (QWidget *widget : window.findChildren<QWidget *>()) {
            const bool aimedAt = widget->isVisibleTo(&window) && widget->window() == &window &&
                                 widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                                 widget->focusProxy() == nullptr && !widget->inherits("QAbstractScrollArea");
            if (!aimedAt || widget->hasFocus())
                continue;
            const QRect area(widget->mapTo(&window, QPoint()), widget->size());
            const QImage before = window.grab(area).toImage();
            widget->setFocus(Qt::TabFocusReason);
            if (!widget->hasFocus())
                continue;
            window.setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key does
            const QImage after = window.grab(area).toImage();
            double most = 1;
            for (int y = 0; y < after.height(); ++y) {
                for (int x = 0; x < after.width(); ++x)
                    most = std::max(most, contrast(before.pixelColor(x, y), after.pixelColor(x, y)));
            }
            EXPECT_GE(most, lineContrast) << where << ": the focus on " << widget->metaObject()->className()
                                          << ' ' << widget->objectName().toStdString();
        }
    }
};

TEST_F(ContrastStory, holdsInEveryWindowAndFollowsThePalette) {
    const QPalette first = QGuiApplication::palette();
    dressApplication();
    inEachWindow([](QWidget &window, const std::string &name) {
        for (const Theme &theme : themes()) {
            if (!std::string_view(name).starts_with(theme.windows))
                continue;
            QApplication::setPalette(theme.palette); // while the window stands
            QCoreApplication::processEvents();
            const std::string where = std::string(theme.name) + ", " + name;
            check(window, where);
            checkFocus(window, where);
        }
    });
    QApplication::setPalette(first);
}

} // namespace
