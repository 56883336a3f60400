// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "text/line_choice.h"
#include "text/ui/dialog_fields.h"
#include "widgets/NumberBox.h"

#include <QGridLayout>

namespace tolvo {

namespace {

class dlgEveryLine : public SettingsDialog<EveryLineSettings> {
  public:
    dlgEveryLine(const EveryLineSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] EveryLineSettings settings() const override;
    void setSettings(const EveryLineSettings &settings) override;

  private:
    void refresh();

    NumberBox *m_every;
    NumberBox *m_first;
    Options<bool> m_drop;
    SampleBox *m_sample;
};

dlgEveryLine::dlgEveryLine(const EveryLineSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context),
      m_every(new NumberBox(QStringLiteral("txtEvery"), QStringLiteral("One line of every so many"),
                            {.lowest = 1}, this)),
      m_first(new NumberBox(QStringLiteral("txtFirst"), QStringLiteral("Beginning with line"), {.lowest = 1},
                            this)),
      m_drop(QStringLiteral("optDrop"), {QStringLiteral("&Keep these lines"), QStringLiteral("&Drop them")},
             this),
      m_sample(makeSample(7)) {
    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_every, QStringLiteral("One line of &every:")), 0, 0);
    grid->addWidget(m_every, 0, 1, Qt::AlignLeft);
    grid->addWidget(labelFor(m_first, QStringLiteral("&Beginning with line:")), 1, 0);
    grid->addWidget(m_first, 1, 1, Qt::AlignLeft);
    grid->addWidget(m_drop.button(false), 2, 1);
    grid->addWidget(m_drop.button(true), 3, 1);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), 4, 0, 1, 2);
    grid->addWidget(m_sample, 5, 0, 1, 2);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(1, 1);
    finishDialog(*this, QStringLiteral("dlgEveryLine"), QStringLiteral("Every Other Line"), grid);
    setSettings(settings);
    whenAnythingChanges(*this, this, [this] { refresh(); });
}

EveryLineSettings dlgEveryLine::settings() const {
    return {m_drop.choice(), m_every->value(), m_first->value()};
}

void dlgEveryLine::setSettings(const EveryLineSettings &settings) {
    m_every->setValue(settings.every);
    m_first->setValue(settings.first);
    m_drop.choose(settings.drop);
    refresh();
    m_every->begin();
}

void dlgEveryLine::refresh() {
    QStringList lines;
    for (int i = 1; i <= 7; ++i)
        lines += QStringLiteral("Line %1").arg(i);
    m_sample->setSample(everyLine(lines.join(QStringLiteral("\r\n")), settings()));
}

} // namespace

SettingsDialogPtr<EveryLineSettings> makeToolDialog(const EveryLineSettings &settings,
                                                    const ToolDialogContext &context) {
    return std::make_unique<dlgEveryLine>(settings, context);
}

} // namespace tolvo
