// SPDX-License-Identifier: MIT
#include "text/ui/preview_tick.h"

#include "text/ui/dialog_fields.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTimer>
#include <utility>

namespace tolvo {

namespace {

class PreviewTick : public QCheckBox {
  public:
    PreviewTick(QDialog &dialog, ToolPreview &preview, std::function<ToolSettings()> settings)
        : QCheckBox(QStringLiteral("Previe&w in the text"), &dialog), m_preview(preview),
          m_settings(std::move(settings)) {
        setObjectName(QStringLiteral("chkPreview"));
        setToolTip(QStringLiteral("Show in the main window what OK would make of the text"));
        setChecked(m_preview.isWanted());
        m_update.setSingleShot(true);
        connect(&m_update, &QTimer::timeout, this, &PreviewTick::update);
        connect(this, &QCheckBox::toggled, this, [this](bool wanted) { m_preview.setWanted(wanted); });
        connect(&dialog, &QDialog::finished, this, &PreviewTick::end);
        // One update for all that one event changes.
        whenAnythingChanges(dialog, this, [this] { m_update.start(); });
        m_update.start();
    }
    ~PreviewTick() override { m_preview.end(); }
    PreviewTick(const PreviewTick &) = delete;
    PreviewTick &operator=(const PreviewTick &) = delete;

  private:
    void update() {
        if (isChecked())
            m_preview.show(m_settings());
        else
            m_preview.end();
    }
    void end() {
        m_update.stop();
        m_preview.end();
    }

    ToolPreview &m_preview;
    std::function<ToolSettings()> m_settings;
    QTimer m_update;
};

} // namespace

void addPreviewTick(QDialog &dialog, ToolPreview &preview, std::function<ToolSettings()> settings) {
    auto *tick = new PreviewTick(dialog, preview, std::move(settings));
    auto *layout = qobject_cast<QBoxLayout *>(dialog.layout());
    layout->insertWidget(layout->count() - 1, tick);
    if (auto *ok = dialog.findChild<QPushButton *>(QStringLiteral("OKButton")))
        QWidget::setTabOrder(ok->previousInFocusChain(), tick);
}

} // namespace tolvo
