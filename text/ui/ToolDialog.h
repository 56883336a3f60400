// SPDX-License-Identifier: MIT
// What the settings dialogs of the tools have in common. Each is made by its maker (tool_dialogs.h) and lives
// in a file of its own.
#pragma once

#include "platform/font.h"
#include "text/line_choice.h"
#include "text/tool_settings.h"
#include "text/ui/dialog_parts.h"

#include <QComboBox>
#include <QDialog>
#include <functional>
#include <memory>
#include <optional>

namespace tolvo {

class MessageBoxes;
class ToolPreview;
class cTextMethods;

/// What a dialog borrows; all of it outlives the dialog.
struct ToolDialogContext {
    const cTextMethods &engine;
    MessageBoxes &boxes;
    QWidget *parent = nullptr;
    std::optional<Font> sampleFont = std::nullopt; ///< nothing: the dialog's own
    ToolPreview *preview = nullptr;                ///< null where there is no text to show it in
    /// Looks for patterns in samples; without it they show as they are.
    std::function<ChosenLines(const QString &, const ToolSettings &)> choose = {};
};

class ToolDialog : public QDialog {
    Q_OBJECT

  public:
    /// Opens it modally; true on OK.
    [[nodiscard]] bool ShowMe() { return exec() == Accepted; }
    [[nodiscard]] bool Cancelled() const { return result() != Accepted; }
    /// The main window has another font: the sample shows it.
    void fontChanged(const Font &font);

  public slots:
    /// While the settings of an Action are collected, it refuses, with a message, a text that a settings
    /// string can't hold.
    void accept() override;

  protected:
    explicit ToolDialog(const ToolDialogContext &context);

    [[nodiscard]] const cTextMethods &engine() const { return m_engine; }
    [[nodiscard]] MessageBoxes &boxes() const { return m_boxes; }
    /// The sample of the dialog, of so many rows.
    [[nodiscard]] SampleBox *makeSample(int rows);
    /// The editable list for a text of the user's own. The TAB key goes through the controls in the order of
    /// their making.
    [[nodiscard]] QComboBox *makeTextList(const QString &name);
    /// Whether the tool uses that text as things stand.
    [[nodiscard]] virtual bool usesText() const { return true; }
    void collectForAction() { m_forAction = true; }

  private:
    const cTextMethods &m_engine;
    MessageBoxes &m_boxes;
    std::optional<Font> m_sampleFont;
    SampleBox *m_sample = nullptr;
    QComboBox *m_text = nullptr;
    bool m_forAction = false;
};

/// A dialog that shows one settings struct and gives one back. It runs no tool and knows no store.
template <class Settings>
class SettingsDialog : public ToolDialog {
  public:
    [[nodiscard]] virtual Settings settings() const = 0;
    virtual void setSettings(const Settings &settings) = 0;

    /// Edits the settings string of an Action. The dialog has been made from the values last used: they show
    /// where the string has no key. False on Cancel; the string then stays as it came.
    [[nodiscard]] bool getSettings(QString &details) {
        collectForAction();
        ToolSettings edited = settings();
        applySettings(edited, CParams(details));
        setSettings(std::get<Settings>(edited));
        if (!ShowMe())
            return false;
        details = settingsString(settings());
        return true;
    }

  protected:
    using ToolDialog::ToolDialog;
};

template <class Settings>
using SettingsDialogPtr = std::unique_ptr<SettingsDialog<Settings>>;

} // namespace tolvo
