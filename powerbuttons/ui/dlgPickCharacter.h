// SPDX-License-Identifier: MIT
// The character picker: blocks, search by name or code, the characters chosen last, any font.
#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;
class QFontComboBox;
class QLabel;
class QLineEdit;
class QModelIndex;
class QTableView;

namespace tolvo {

class CharacterModel;

class dlgPickCharacter : public QDialog {
    Q_OBJECT
  public:
    struct Choice {
        QString text; ///< up to three characters
        QString fontName;
    };

    /// `recent` is shown, and grows by what is chosen, newest first.
    dlgPickCharacter(const QString &fontName, QStringList &recent, QWidget *parent = nullptr);

    [[nodiscard]] Choice choice() const;
    void accept() override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void makeTables();
    void arrange();
    void find();
    void showFont();
    /// Shows the character in large; it is the one that OK takes.
    void showCharacter(const QModelIndex &index);
    void take(const QString &character);
    void rememberChosen();

    QStringList &m_recent;
    QFontComboBox *m_font;
    QLineEdit *m_find;
    QComboBox *m_block;
    QTableView *m_table;
    CharacterModel *m_characters;
    QTableView *m_recentTable;
    CharacterModel *m_recentCharacters;
    QLabel *m_large;
    QLabel *m_name;
    QLineEdit *m_chosen;
};

} // namespace tolvo
