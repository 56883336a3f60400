// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "base/collation.h"
#include "text/line_order.h"
#include "text/ui/dialog_fields.h"
#include "widgets/NumberBox.h"

#include <QGridLayout>
#include <QLocale>

namespace tolvo {

namespace {

using Order = SortLinesSettings::Order;

const QString unsorted = QStringLiteral("Pear, 10, Malmö\r\nfig 10, 9, Lund\r\nfig 2, 100, Åre\r\n"
                                        "apple, 9, Ystad\r\nApple, 9, Öland");

QComboBox *makeLanguages(QWidget *parent) {
    auto *list = new QComboBox(parent);
    list->setObjectName(QStringLiteral("cmbLanguage"));
    for (const QString &code : collationLanguages()) {
        const QLocale::Language language = QLocale(code).language();
        if (language != QLocale::C)
            list->addItem(QLocale::languageToString(language), code);
    }
    list->model()->sort(0);
    list->insertItem(0, QStringLiteral("Any (Unicode)"), QString());
    return list;
}

class dlgSortLines : public SettingsDialog<SortLinesSettings> {
  public:
    dlgSortLines(const SortLinesSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] SortLinesSettings settings() const override;
    void setSettings(const SortLinesSettings &settings) override;

  private:
    void arrange();
    void refresh();

    QComboBox *m_order;
    QComboBox *m_language;
    NumberBox *m_column;
    NumberBox *m_head;
    QCheckBox *m_descending;
    QCheckBox *m_ignoreCase;
    QCheckBox *m_unique;
    SampleBox *m_sample;
};

dlgSortLines::dlgSortLines(const SortLinesSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context), m_order(new QComboBox(this)), m_language(makeLanguages(this)),
      m_column(new NumberBox(QStringLiteral("txtColumn"), QStringLiteral("Column"), {}, this)),
      m_head(new NumberBox(QStringLiteral("txtHead"), QStringLiteral("Leave lines on top"), {}, this)),
      m_descending(makeCheck(QStringLiteral("chkDescending"), QStringLiteral("&Descending"), this)),
      m_ignoreCase(makeCheck(QStringLiteral("chkIgnoreCase"), QStringLiteral("Ignore &case"), this)),
      m_unique(
          makeCheck(QStringLiteral("chkUnique"), QStringLiteral("Keep &one of lines that sort alike"), this)),
      m_sample(makeSample(6)) {
    m_order->setObjectName(QStringLiteral("cmbOrder"));
    m_order->addItems(orderNames());
    arrange();
    setSettings(settings);
    whenAnythingChanges(*this, this, [this] { refresh(); });
}

void dlgSortLines::arrange() {
    auto *column = new QHBoxLayout;
    column->addWidget(m_column);
    column->addWidget(new QLabel(QStringLiteral("(0: the whole line)"), this));
    column->addStretch();
    auto *head = new QHBoxLayout;
    head->addWidget(m_head);
    head->addWidget(new QLabel(QStringLiteral("lines on top"), this));
    head->addStretch();
    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_order, QStringLiteral("O&rder:")), 0, 0);
    grid->addWidget(m_order, 0, 1);
    grid->addWidget(labelFor(m_language, QStringLiteral("&Language:")), 1, 0);
    grid->addWidget(m_language, 1, 1);
    grid->addWidget(labelFor(m_column, QStringLiteral("Col&umn:")), 2, 0);
    grid->addLayout(column, 2, 1);
    grid->addWidget(labelFor(m_head, QStringLiteral("L&eave:")), 3, 0);
    grid->addLayout(head, 3, 1);
    grid->addWidget(m_descending, 4, 1);
    grid->addWidget(m_ignoreCase, 5, 1);
    grid->addWidget(m_unique, 6, 1);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), 7, 0, 1, 2);
    grid->addWidget(m_sample, 8, 0, 1, 2);
    grid->setRowStretch(8, 1);
    grid->setColumnStretch(1, 1);
    finishDialog(*this, QStringLiteral("dlgSortLines"), QStringLiteral("Sort Lines"), grid);
}

SortLinesSettings dlgSortLines::settings() const {
    return {static_cast<Order>(m_order->currentIndex()),
            m_language->currentData().toString(),
            m_column->value(),
            m_head->value(),
            m_descending->isChecked(),
            m_ignoreCase->isChecked(),
            m_unique->isChecked()};
}

void dlgSortLines::setSettings(const SortLinesSettings &settings) {
    m_order->setCurrentIndex(static_cast<int>(settings.order));
    if (m_language->findData(settings.language) < 0)
        m_language->addItem(settings.language, settings.language);
    m_language->setCurrentIndex(m_language->findData(settings.language));
    m_column->setValue(settings.column);
    m_head->setValue(settings.head);
    m_descending->setChecked(settings.descending);
    m_ignoreCase->setChecked(settings.ignoreCase);
    m_unique->setChecked(settings.unique);
    refresh();
    m_order->setFocus();
}

void dlgSortLines::refresh() {
    const SortLinesSettings now = settings();
    m_language->setEnabled(now.order == Order::Language || now.order == Order::Natural);
    m_ignoreCase->setEnabled(now.order != Order::Number);
    m_sample->setSample(sortedLines(unsorted, now));
}

} // namespace

SettingsDialogPtr<SortLinesSettings> makeToolDialog(const SortLinesSettings &settings,
                                                    const ToolDialogContext &context) {
    return std::make_unique<dlgSortLines>(settings, context);
}

} // namespace tolvo
