// SPDX-License-Identifier: MIT
// A settings dialog that is made of the fields of its settings: a list for an enumeration, a check box for a
// flag, a box for a number, a line for a text, and a sample below.
#pragma once

#include "platform/message_box.h"
#include "text/ui/ToolDialog.h"
#include "text/ui/dialog_fields.h"
#include "widgets/NumberBox.h"
#include "widgets/grid.h"
#include "widgets/screen_fit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <functional>

namespace tolvo {

/// How a dialog shows one field. Its control is named after the field's key: cmbKEY, chkKEY or txtKEY.
struct FieldLook {
    QString caption;               ///< with its mnemonic; a label ends in a colon
    QStringList choices = {};      ///< of an enumeration, in its order
    NumberBox::Limits limits = {}; ///< of a number
    int firstChoice = 0;           ///< the number of the first of the choices
};

/// How it shows its sample: in so many rows, whose lines end where they end or go on below.
struct SampleLook {
    int rows;
    bool wraps = true;
};

/// `Settings` holds enumerations, flags, whole numbers and texts. While the sample can't be made, it says
/// why, and OK refuses with the same words.
template <class Settings>
class FieldDialog : public SettingsDialog<Settings> {
  public:
    using Sample = std::function<ChosenLines(const Settings &)>;
    using Idle = std::function<QStringList(const Settings &)>;

    /// `looks` are those of the fields, in their order; `sample` gives what the sample shows, `idle` the
    /// controls that don't count as things stand, by their names.
    FieldDialog(const QString &name, const QString &caption, const QList<FieldLook> &looks, SampleLook shown,
                Sample sample, const Settings &settings, const ToolDialogContext &context, Idle idle = {})
        : SettingsDialog<Settings>(context), m_sampleOf(std::move(sample)), m_idle(std::move(idle)),
          m_grid(new QGridLayout) {
        forEachField([&](const auto &field, qsizetype index) {
            addControl(settings.*field.member, field.stringKey.toString(), looks.at(index));
            m_firstChoices += looks.at(index).firstChoice;
        });
        m_sample = this->makeSample(shown.rows);
        if (!shown.wraps) {
            constexpr int charactersShown = 66;
            m_sample->setLineWrapMode(QPlainTextEdit::NoWrap);
            const int wanted = m_sample->fontMetrics().averageCharWidth() * charactersShown;
            m_sample->setMinimumWidth(
                std::min(wanted, roomOnScreen(*this).width() - 4 * Grid(*this).margin()));
        }
        const int row = m_grid->rowCount();
        m_grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), row, 0, 1, 2);
        m_grid->addWidget(m_sample, row + 1, 0, 1, 2);
        m_grid->setRowStretch(row + 1, 1);
        m_grid->setColumnStretch(1, 1);
        finishDialog(*this, name, caption, m_grid);
        setSettings(settings);
    }

    [[nodiscard]] Settings settings() const override {
        Settings settings;
        forEachField([&](const auto &field, qsizetype index) { take(settings.*field.member, index); });
        return settings;
    }

    void setSettings(const Settings &settings) override {
        forEachField([&](const auto &field, qsizetype index) { show(settings.*field.member, index); });
        refreshSample();
        m_controls.first()->setFocus();
    }

    void accept() override {
        const QString trouble = m_sampleOf(settings()).trouble;
        if (trouble.isEmpty())
            return SettingsDialog<Settings>::accept();
        this->boxes().show({.text = trouble, .icon = BoxIcon::Information});
        for (QWidget *control : m_controls) {
            if (auto *line = qobject_cast<QLineEdit *>(control)) {
                line->setFocus();
                line->selectAll();
                return;
            }
        }
    }

  private:
    template <class Visit>
    static void forEachField(Visit visit) {
        qsizetype index = 0;
        std::apply([&](const auto &...field) { (visit(field, index++), ...); }, Settings::fields);
    }

    template <class Value>
    void addControl(Value, const QString &key, const FieldLook &look) {
        const int row = m_grid->rowCount();
        if constexpr (std::is_same_v<Value, bool>) {
            auto *box = new QCheckBox(look.caption, this);
            box->setObjectName(QStringLiteral("chk") + key);
            m_grid->addWidget(box, row, 0, 1, 2);
            m_controls += box;
            QObject::connect(box, &QCheckBox::toggled, this, [this] { refreshSample(); });
            return;
        } else if constexpr (std::is_same_v<Value, int>) {
            auto *box = new NumberBox(QStringLiteral("txt") + key,
                                      QString(look.caption).remove(u'&').remove(u':'), look.limits, this);
            m_controls += box;
            QObject::connect(box, &NumberBox::changed, this, [this] { refreshSample(); });
        } else if constexpr (std::is_same_v<Value, QString>) {
            auto *line = makeLine(QStringLiteral("txt") + key, this);
            m_controls += line;
            QObject::connect(line, &QLineEdit::textChanged, this, [this] { refreshSample(); });
        } else {
            auto *list = new QComboBox(this);
            list->setObjectName(QStringLiteral("cmb") + key);
            list->addItems(look.choices);
            m_controls += list;
            QObject::connect(list, &QComboBox::currentIndexChanged, this, [this] { refreshSample(); });
        }
        m_grid->addWidget(labelFor(m_controls.last(), look.caption), row, 0);
        m_grid->addWidget(m_controls.last(), row, 1,
                          std::is_same_v<Value, int> ? Qt::AlignLeft : Qt::Alignment());
    }

    template <class Control>
    [[nodiscard]] Control &control(qsizetype index) const {
        return static_cast<Control &>(*m_controls.at(index));
    }

    template <class Value>
    void show(const Value &value, qsizetype index) {
        if constexpr (std::is_same_v<Value, bool>)
            control<QCheckBox>(index).setChecked(value);
        else if constexpr (std::is_same_v<Value, int>)
            control<NumberBox>(index).setValue(value);
        else if constexpr (std::is_same_v<Value, QString>) {
            control<QLineEdit>(index).setText(value);
            control<QLineEdit>(index).selectAll();
        } else
            control<QComboBox>(index).setCurrentIndex(static_cast<int>(value) - m_firstChoices.at(index));
    }

    template <class Value>
    void take(Value &value, qsizetype index) const {
        if constexpr (std::is_same_v<Value, bool>)
            value = control<QCheckBox>(index).isChecked();
        else if constexpr (std::is_same_v<Value, int>)
            value = control<NumberBox>(index).value();
        else if constexpr (std::is_same_v<Value, QString>)
            value = control<QLineEdit>(index).text();
        else
            value = static_cast<Value>(control<QComboBox>(index).currentIndex() + m_firstChoices.at(index));
    }

    void refreshSample() {
        if (m_sample == nullptr)
            return;
        const ChosenLines shown = m_sampleOf(settings());
        m_sample->setSample(shown.trouble.isEmpty() ? shown.text : shown.trouble);
        const QStringList idle = m_idle ? m_idle(settings()) : QStringList();
        for (QWidget *control : m_controls) {
            if (qobject_cast<QLineEdit *>(control) != nullptr)
                control->setAccessibleDescription(shown.trouble);
            control->setEnabled(!idle.contains(control->objectName()));
        }
    }

    Sample m_sampleOf;
    Idle m_idle;
    QGridLayout *m_grid;
    QList<QWidget *> m_controls; ///< in the order of the fields
    QList<int> m_firstChoices;   ///< the same
    SampleBox *m_sample = nullptr;
};

} // namespace tolvo
