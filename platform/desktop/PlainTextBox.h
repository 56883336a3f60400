// SPDX-License-Identifier: MIT
#pragma once

#include "base/application.h"
#include "platform/desktop/stand_ins.h"
#include "platform/desktop/text_tint.h"
#include "platform/headless/clipboard_line_ends.h"
#include "platform/text_box.h"

#include <QList>
#include <QPlainTextEdit>
#include <memory>
#include <optional>

class QAction;
class QMenu;

namespace tolvo {

/// The text box of the window. It keeps every unit of a text unchanged, in one block per CR LF line, and
/// enforces its capacity for typing, input methods, paste, drop and code.
///
/// The widget's own undo is off: the box reports the user's changes, and the context menu offers the
/// program's Undo and Redo.
class PlainTextBox final : public QPlainTextEdit, public TextBox {
    Q_OBJECT

  public:
    enum class Lines {
        AsTheyAre, ///< with both scroll bars
        Wrapped,   ///< at the width of the box, with the vertical scroll bar only
    };

    explicit PlainTextBox(Lines lines, QWidget *parent = nullptr);

    [[nodiscard]] QString Text() const override { return m_text; }
    void setText(const QString &text) override;
    [[nodiscard]] int SelStart() const override;
    void setSelStart(int start) override;
    [[nodiscard]] int SelLength() const override;
    void setSelLength(int length) override;
    [[nodiscard]] QString SelText() const override;
    void setSelText(const QString &text) override;
    [[nodiscard]] int length() const override { return static_cast<int>(m_text.size()); }
    [[nodiscard]] int capacity() const override { return m_capacity; }
    void setCapacity(int units) override { m_capacity = units; }
    using QPlainTextEdit::setFocus;
    void setFocus() override { QPlainTextEdit::setFocus(Qt::OtherFocusReason); }

    /// The actions at the top of the context menu. Both must outlive the box.
    void setUndoActions(QAction &undo, QAction &redo) { m_undoActions = {&undo, &redo}; }
    /// The actions at its end. They must outlive the box.
    void setViewActions(const QList<QAction *> &actions) { m_viewActions = actions; }
    [[nodiscard]] std::unique_ptr<QMenu> contextMenu();
    /// Adds to the end of each context menu.
    std::function<void(QMenu &)> extendMenu;

    /// The line ends of text that is copied or dragged to other programs. The rule must outlive the box;
    /// without one, line ends go out as LF.
    void setLineEnds(const ClipboardLineEnds &rule) { m_lineEnds = &rule; }

    // How the text is looked at (PlainTextBox_view.cpp)

    /// The font of the text at 100 %.
    void setTextFont(const QFont &font);
    [[nodiscard]] const QFont &textFont() const { return m_textFont; }
    /// Shows the text in that share of its font's size; 100 is its own size.
    void setZoom(int percent);
    /// Shows blanks, tabs, line ends and characters without a shape of their own.
    void setMarks(bool on);
    /// Tints parts of the text until others are set in that layer; an empty one is a thin upright. They stand
    /// in the order of the text and do not move with it.
    void setTint(TintLayer layer, const QList<Stretch> &stretches);
    /// Shows a layer in so much of its colours: 1 is all, 0 nothing.
    void fadeTint(TintLayer layer, float share);
    [[nodiscard]] const QList<Stretch> &tint(TintLayer layer) const { return m_tint.of(layer); }
    /// What of the text is in sight, in whole lines as the box breaks them.
    [[nodiscard]] Stretch textInSight() const;
    /// Font, size and marks as another box shows its text.
    void lookLike(const PlainTextBox &other);
    /// Keeps so many pixels free above the text, until it is scrolled.
    void setRoomAbove(int pixels);
    /// Called when the wheel is turned with Ctrl held: 1 for each step away from the user, -1 for each step
    /// back.
    std::function<void(int steps)> onZoom;

    /// Called when text is copied, cut or dragged.
    std::function<void()> onCopied;

    /// Reads what is pasted: the clipboard's text, or with `selection` that of the middle mouse button, with
    /// CR LF line ends; nothing if its owner doesn't answer. If this is not set, the toolkit reads and waits
    /// as long as the owner takes.
    std::function<std::optional<QString>(bool selection)> readForPaste;

    /// Takes files of this machine that are dropped; called once the drop is over, since a message box within
    /// it would block the program that drops. If this is not set, their names are inserted.
    std::function<void(const QStringList &paths)> onFilesDropped;

  protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    [[nodiscard]] QMimeData *createMimeDataFromSelection() const override;

  private:
    [[nodiscard]] int toText(int documentPosition) const;
    [[nodiscard]] int toDocument(qint64 textPosition) const;
    [[nodiscard]] QString fitting(const QString &text, int replaced = 0) const;
    [[nodiscard]] QString fittingOfUser(const QString &text, int replaced, bool typed);
    void reportCutLater(qint64 wanted);
    void pasteFromReader(bool selection);
    void insertAsTyped(const QString &text);
    void placeTabStops();
    void prepareFor(const QString &inserted);
    void load(const QString &text);
    void noteSelection();
    void edited();
    void cutToCapacity();
    void joinLineEnds();
    bool rereadText();
    void reportChange();
    void chooseLayout(QStringView text);
    void paintTint(TextTint::Side side, const QRect &exposed);

    Lines m_lines;
    int m_capacity = textLimit;
    QString m_text; ///< the document's text, kept since it is read far more often than changed
    StandIns m_standIns;
    const ClipboardLineEnds *m_lineEnds = nullptr;
    int m_editStart = 0; ///< the last change, in positions of the document
    int m_editEnd = 0;
    bool m_inKey = false;      ///< a key is being handled
    bool m_fullIsTold = false; ///< the lack of room for typed text has been reported
    bool m_ownEdit = false;    ///< an edit by code is under way; its end reports the change
    bool m_editing = false;    ///< the document is being changed; the selection is not final yet
    UserEdit m_userEdit;       ///< the report of the user's next edit
    QList<QAction *> m_undoActions;
    QList<QAction *> m_viewActions;
    QFont m_textFont;
    QMetaObject::Connection m_endOfRoom; ///< with the next scrolling
    int m_zoom = 100;
    int m_wheel = 0; ///< eighths of a degree that have not made a step yet
    bool m_marks = false;
    TextTint m_tint;
};

} // namespace tolvo
