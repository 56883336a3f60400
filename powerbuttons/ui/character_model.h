// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QList>

namespace tolvo {

/// Characters in rows of equal length, shown in one font. Those that the font lacks are shown in another,
/// pale.
class CharacterModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    explicit CharacterModel(int columns, QObject *parent = nullptr);

    void setCharacters(const QList<char32_t> &characters);
    void setFont(const QFont &font);
    /// The character of a cell, 0 after the last one.
    [[nodiscard]] char32_t at(const QModelIndex &index) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

  private:
    int m_columns;
    QList<char32_t> m_characters;
    QFont m_font;
};

} // namespace tolvo
