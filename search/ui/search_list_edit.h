// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <functional>

namespace tolvo {

/// An editable list of remembered texts that knows where its caret was when it lost the focus. A line end
/// that comes in by paste or drop becomes "\n".
class SearchListEdit final : public QComboBox {
    Q_OBJECT

  public:
    explicit SearchListEdit(const QString &name, QWidget *parent);

    /// Shows a list and a text.
    void show(const QStringList &entries, const QString &text);
    /// What is said of each entry of the lists that are shown from now on.
    std::function<QString(const QString &entry)> wordOn;
    /// Takes the focus, if it doesn't have it, with caret and selection as the user left them.
    void resume();
    /// Takes the focus with all of its text selected, for a new one to be typed over it.
    void begin();
    /// Puts a text in place of the selection where the caret last was.
    void insertText(const QString &text);

  signals:
    /// This is the list that the user was last in.
    void used();
    /// A text with line ends came in: escapes stand in their place.
    void escaped();

  private:
    /// Caret and selection, from 0.
    struct Place {
        int start = 0;
        int length = 0;
    };

    void remember();
    void addWords();
    void goTo(Place place);
    void escapeLineEnds(const QString &text);

    Place m_place; ///< as long as the list has the focus, what the line edit says
};

} // namespace tolvo
