// SPDX-License-Identifier: MIT
// The left column of the main window: the field that finds tools, below it the panel or what was found, and
// an explanation of the row under the pointer or with the focus.
#pragma once

#include "shell/cToolbox.h"
#include "shell/tool_finder.h"

#include <QWidget>
#include <memory>

class QLineEdit;

namespace tolvo {

class FoundToolsList;
class OtherWords;
class PanelView;
class ToolExplanation;
class frmMain;

class ToolFinderView : public QWidget {
    Q_OBJECT
  public:
    /// Takes the panel in.
    ToolFinderView(PanelView &panel, QWidget *parent);
    ~ToolFinderView() override;

    /// From here on the session runs what is found. `otherWords` is the path of OtherWords.txt, which is read
    /// at its first use.
    void attach(frmMain &session, const QString &otherWords);

    /// Gives the focus to the field; `typed` comes after what it holds.
    void begin(const QString &typed = {});
    /// Whether a key goes to the field from wherever the focus is: Ctrl-P.
    [[nodiscard]] static bool isKey(const QKeyEvent &key);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    [[nodiscard]] int fieldHeight() const;
    void arrange();
    [[nodiscard]] bool sessionTakesCommands() const;
    /// What there is to find, with the PowerButtons as they are.
    void gatherEntries();
    /// Shows what the field's text finds, or the last five used, or else the panel.
    void search();
    void showResults(const QList<FoundTool> &found);
    void showPanel();
    /// Back to the text and the panel.
    void leave();
    void run(int row, bool right);
    [[nodiscard]] bool handleKey(const QKeyEvent &key);
    void explainPanelRow(const cToolbox::Row *row);
    void explainFound();

    PanelView &m_panel;
    QLineEdit *m_field;
    FoundToolsList *m_list = nullptr; // made at its first use
    ToolExplanation *m_explanation;
    frmMain *m_session = nullptr;
    QString m_otherWordsFile;
    std::unique_ptr<OtherWords> m_otherWords;
    QList<FinderEntry> m_entries;
    QList<FoundTool> m_found;
};

} // namespace tolvo
