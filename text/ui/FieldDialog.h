// SPDX-License-Identifier: MIT
// A settings dialog that is made of the fields of its settings: a list for an enumeration, a check box for a
// flag, a box for a number, and a sample below.
#pragma once

#include "text/ui/ToolDialog.h"
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
};

/// How it shows its sample: in so many rows, whose lines end where they end or go on below.
struct SampleLook {
    int rows;
    bool wraps = true;
};

/// `Settings` holds enumerations, flags and whole numbers.
template <class Settings>
class FieldDialog : public SettingsDialog<Settings> {
  public:
    using Sample = std::function<QString(const Settings &)>;

    /// `looks` are those of the fields, in their order; `sample` gives what the sample shows.
    FieldDialog(const QString &name, const QString &caption, const QList<FieldLook> &looks, SampleLook shown,
                Sample sample, const Settings &settings, const ToolDialogContext &context)
        : SettingsDialog<Settings>(context), m_sampleOf(std::move(sample)), m_grid(new QGridLayout) {
        forEachField([&](const auto &field, qsizetype index) {
            addControl(settings.*field.member, field.stringKey.toString(), looks.at(index));
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
        forEachField(
            [&](const auto &field, qsizetype index) { take(settings.*field.member, *m_controls.at(index)); });
        return settings;
    }

    void setSettings(const Settings &settings) override {
        forEachField(
            [&](const auto &field, qsizetype index) { show(settings.*field.member, *m_controls.at(index)); });
        refreshSample();
        m_controls.first()->setFocus();
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

    static void show(bool value, QWidget &control) { static_cast<QCheckBox &>(control).setChecked(value); }
    static void show(int value, QWidget &control) { static_cast<NumberBox &>(control).setValue(value); }
    template <class Choice>
    static void show(Choice value, QWidget &control) {
        static_cast<QComboBox &>(control).setCurrentIndex(static_cast<int>(value));
    }

    static void take(bool &value, const QWidget &control) {
        value = static_cast<const QCheckBox &>(control).isChecked();
    }
    static void take(int &value, const QWidget &control) {
        value = static_cast<const NumberBox &>(control).value();
    }
    template <class Choice>
    static void take(Choice &value, const QWidget &control) {
        value = static_cast<Choice>(static_cast<const QComboBox &>(control).currentIndex());
    }

    void refreshSample() {
        if (m_sample != nullptr)
            m_sample->setSample(m_sampleOf(settings()));
    }

    Sample m_sampleOf;
    QGridLayout *m_grid;
    QList<QWidget *> m_controls; ///< in the order of the fields
    SampleBox *m_sample = nullptr;
};

} // namespace tolvo
